#include "module/entry/clsVertrag.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/control_caption.h"
#include "tests/standin/services/ServicesTest.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace tellurix::tests {
namespace {

using ui::Answer;
using Words = std::set<std::string>;

bool hasLetter(const std::string& text) {
    return std::ranges::any_of(text, [](unsigned char c) { return std::isalpha(c) != 0 || c >= 0x80; });
}

/// Plays all screens of the module and their messages, and gathers every word that is not data.
class Languages : public ServicesTest {
protected:
    ~Languages() override { host::releaseModuleState(); }

    /// @param doomed a contract that is deleted on the way
    Words wordsIn(const std::string& language, int doomed) {
        session.language = language;
        words_.clear();
        const std::size_t before = display.messages().size();
        openContract(1, [this](User& user) { editContract(user); });
        db("UPDATE VERTRAEGE SET VERTRAG_NAME = 'O''Neill' WHERE ID_VERTRAG = " + std::to_string(doomed));
        openContract(doomed, [&](User& user) {
            gather(user);
            db("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(doomed));
            expectMessage();
            user.click("btnSpeichern");
            user.click("btnAbbrechen");
        });
        openQuantityReports();
        display.onWindow("F_Bereitstellung_WVO", [this](User& user) { editReports(user); });
        host::clsVertrag{host}.F_Bereitstellung_WVO_Run(session, 1);
        for (std::size_t i = before; i < display.messages().size(); ++i) {
            add(display.messages()[i].text);
            add(display.messages()[i].title);
        }
        return words_;
    }

    void db(const std::string& statement) { session.connection->execute(statement); }

private:
    void openContract(int contract, const ScriptedDisplay::Script& script) {
        display.onWindow("F_Vertrag", script);
        host::Variant blnOK = false;
        host::Boolean16 euroChange = host::Boolean16::False;
        host::clsVertrag module{host};
        module.Vertrag_Run(session, contract, "", "R", ".", ",", "", blnOK, euroChange, services.mainWindow(),
                           1, false, "-", false);
    }

    void openQuantityReports() {
        display.onWindow("F_VertragMengenmeldung_WVO", [this](User& user) { editQuantityReports(user); });
        host::clsVertrag{host}.F_VertragMengenmeldung_WVO_Run(session, 1);
    }

    void expectMessage(Answer answer = Answer::ok) { display.onMessage("", answer); }

    void editContract(User& user) {
        gather(user);
        display.onWindow("F_HeaderVertrag", [this](User& header) { editHeader(header); });
        user.click("btnHeader");
        display.onWindow("F_VertragPreise", [this](User& prices) { editPrices(prices); });
        user.click("PreisButton");
        display.onWindow("F_VertragMengen", [this](User& quantities) { editQuantities(quantities); });
        user.click("PosButton");
        takeOver(user, "4711", {Answer::ok});
        takeOver(user, "R-2025-003 Faserholz Judenburg", {});
        takeOver(user, "A1-2025-001 Einkauf Breitenau", {Answer::no});
        user.click("btnZusatz");
        user.type("txtZusatz", "4'711");
        gather(user);
        expectMessage(Answer::yes);
        user.close();
    }

    void takeOver(User& user, const std::string& name, const std::vector<Answer>& answers) {
        for (const Answer answer : answers)
            expectMessage(answer);
        user.type("txtVertrag", name);
        user.click("btnUbernehmen");
        add(user.window().status().text());
        user.type("txtVertrag", "");
    }

    void editHeader(User& user) {
        gather(user);
        user.type("txtKopf(0)", "4'711");
        expectMessage();
        user.click("btnOk");
        user.click("btnCancel");
    }

    void editPrices(User& user) {
        gather(user);
        user.click("btnPreiseAendern");
        user.type("txtWert", "99999,99");
        user.select("cmbFixProzent", 1);
        gather(user);
        for (const ui::Grid::Row& row : user.grid("grdVorschau").rows())
            add(row.back());
        expectMessage(Answer::no);
        user.click("btnPreiseAendern");
        user.click("cmdNeu");
        user.type("txtBEZEICHNUNG", "4711");
        user.type("txtPreis", "0");
        expectMessage(Answer::no);
        user.click("cmdSpeichern");
        expectMessage(Answer::yes);
        user.close();
    }

    void editQuantities(User& user) {
        gather(user);
        display.onWindow("F_OffeneMenge", [this](User& explanation) {
            gather(explanation);
            explanation.click("btnSchliessen");
        });
        user.click("btnOffen");
        expectMessage();
        user.select("MSFlexGrid1", 2);
        user.click("cmdOk");
    }

    void editQuantityReports(User& user) {
        user.type("txtWaldhelfer", "3001");
        user.key(ui::Key::enter);
        gather(user);
        user.click("btnBearbeiten");
        user.type("99999999");
        expectMessage();
        user.key(ui::Key::enter);
        user.replaceText("txtEdit", "4711");
        user.key(ui::Key::enter);
        db("UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = ISNULL(MENGE_ANG,0) + 1 WHERE ID = 1");
        display.onWindow("F_Inzwischen", [this](User& question) {
            gather(question);
            question.close();
        });
        user.click("btnSpeichern");
        expectMessage(Answer::yes);
        user.close();
    }

    void editReports(User& user) {
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        user.key(ui::Key::tab);
        user.type("txtKalender", "23/2025");
        user.key(ui::Key::tab);
        for (const ui::Grid::Row& row : user.grid("MSFG").rows())
            add(row[2]);
        user.click("btnBearbeiten");
        user.select("MSFG", 0, 3);
        user.doubleClick("MSFG");
        expectMessage();
        user.replaceText("txtEdit", "47110");
        user.key(ui::Key::enter);
        user.replaceText("txtEdit", "");
        user.key(ui::Key::enter);
        user.select("MSFG", 0, 6);
        gather(user);
        expectMessage();
        user.click("btnSpeichern"); // a number alone cannot be emptied
        user.close();
    }

    void gather(User& user) {
        ui::Form& form = user.window();
        add(form.title().substr(0, form.title().find(" ("))); // without the contract's name
        for (ui::Control* control : form.controls()) {
            if (control->name() != "lblZeile") // the line's own description
                addEach(ui::captionText(*control).value_or(""), '|');
            add(control->toolTip());
            if (const auto* grid = ui::as<ui::Grid>(control))
                for (const ui::Grid::Column& column : grid->columns())
                    add(column.toolTip);
            if (const auto* box = ui::as<ui::TextBox>(control)) add(box->warning());
            // What stands before the colon is ours.
            if (const auto* list = ui::as<ui::ListBox>(control))
                for (const auto& item : list->items())
                    add(item.text.substr(0, item.text.find(':')));
        }
    }

    void addEach(const std::string& texts, char separator) {
        std::istringstream rest{texts};
        for (std::string text; std::getline(rest, text, separator);)
            add(text);
    }
    void add(const std::string& text) {
        if (hasLetter(text)) words_.insert(text);
    }

    Words words_;
};

TEST_F(Languages, InEnglishNothingButTheGivenTextsIsGerman) {
    db("UPDATE VERTRAG_PREISE SET PREIS = 99999999.9999 WHERE ID_VERTRAG = 1 AND ORDNUNG = 1");
    db("UPDATE VERTRAG_MENGEN SET MENGE = 0 WHERE ID_VERTRAG = 1 AND ORDNUNG = 1");
    db("UPDATE VERTRAG_MENGEN SET SELEKTION_VALUE = '4711' WHERE ID_VERTRAG = 1 AND ORDNUNG = 3");
    db("UPDATE PERSONAL SET NAME = 'Ollinger' WHERE NAME = 'Öllinger'"); // who has not reported is named
    display.reportTo(host.errors);
    const Words german = wordsIn("de", 9);
    const Words english = wordsIn("en", 10);
    // Questions and captions that are given as they are, in German.
    const Words given{"Selec&tion", "Vertrag Preise", "Vertrag Preisänderung",
                      "Wollen Sie die Position mit dem Preis von 0,00 Euro speichern?",
                      "Wollen Sie die Preise des Vertrages um 99999,99 Prozent verändern?"};
    const Words alike{"Tellurix", "Bonus %", "Fm", "&Edit"};
    Words same;
    std::ranges::set_intersection(german, english, std::inserter(same, same.end()));
    for (const std::string& word : alike)
        EXPECT_EQ(same.erase(word), 1U) << word;
    EXPECT_EQ(same, given);
    for (const std::string& text : english) {
        if (given.contains(text)) continue;
        for (const char* letter : {"ä", "ö", "ü", "ß", "Ä", "Ö", "Ü", "„"})
            EXPECT_EQ(text.find(letter), std::string::npos) << text;
    }
    for (const char* seen :
         {"missing", "Carrier", "2 of 4 have reported", "too large",
          "Over-delivery: 37,50 delivered, 0,00 permitted", "Claimed by earlier lines",
          "The text could not be saved. Discard it?", "Delivery period", "Changed in the meantime"})
        EXPECT_TRUE(english.contains(seen)) << seen;
}

} // namespace
} // namespace tellurix::tests
