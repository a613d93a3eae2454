#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

/// What no statement can carry is refused in every screen alike: the message names the field, the focus
/// goes there, what was typed stays, and nothing is written.
class RefusedTexts : public ContractTest {
protected:
    std::string contract() {
        std::string all = row("SELECT * FROM VERTRAEGE WHERE ID_VERTRAG = 1");
        for (const char* lines : {"VERTRAG_PREISE", "VERTRAG_MENGEN"}) {
            const std::string of = std::string{" FROM "} + lines;
            all += "\n" + row("SELECT COUNT(*),MAX(ID)" + of) + row("SELECT *" + of + " WHERE ID = 1");
        }
        return all;
    }
};

TEST_F(RefusedTexts, AreNamedByTheirFieldAndGetTheFocus) {
    struct Case {
        const char* opens; ///< the editor's button for the screen, or none for the editor itself
        const char* form;
        std::vector<const char*> before; ///< pressed before the text is typed
        const char* box;
        const char* typed;
        const char* label;
        const char* press;              ///< what refuses it; none: leaving the box by Tab
        std::vector<const char*> after; ///< pressed to leave the screen
    };
    const char* const header = "F_HeaderVertrag";
    const char* const prices = "F_VertragPreise";
    const char* const quantities = "F_VertragMengen";
    const std::vector<const char*> cancelled{"btnCancel"};
    const std::vector<const char*> newLine{"cmdNeu"};
    const std::vector<const char*> line{"cmdBearbeiten"};
    const std::vector<const char*> given{"cmdAbbrechen", "cmdOk"};
    const Case cases[] = {
        {"btnHeader", header, {}, "txtKopf(0)", "Käufer's Wahl", "Text 3062", "btnOk", cancelled},
        {"btnHeader", header, {}, "txtKopf(9)", "x', KOPF2='y", "Text 3063", "btnOk", cancelled},
        {"btnHeader", header, {}, "txtRechn", "x' OR '1'='1' --'", "Text 293", nullptr, cancelled},
        {"btnHeader", header, {}, "txtBuchn", "'", "Text 294", nullptr, cancelled},
        {nullptr,
         "F_Vertrag",
         {"btnZusatz"},
         "txtZusatz",
         "'; DELETE FROM VERTRAEGE --",
         "Zusatztext",
         nullptr,
         {}},
        {"PreisButton", prices, newLine, "txtHa", "FI') ;'; DELETE FROM VERTRAG_PREISE --", "Ha",
         "cmdSpeichern", given},
        {"PreisButton", prices, newLine, "txtHs", "O'X", "Hs", "cmdSpeichern", given},
        {"PreisButton", prices, newLine, "txtGKL", "''", "GKL", "cmdSpeichern", given},
        {"PreisButton", prices, line, "txtStkl", "', SELEKTION_VALUE = '", "Stkl", "cmdSpeichern", given},
        {"PreisButton", prices, newLine, "txtPreis", "1; DELETE FROM VERTRAG_PREISE", "Preis", "cmdSpeichern",
         given},
        {"PreisButton", prices, line, "txtPreis_Abr2", "1' OR '1'='1", "Preis_Abr2", "cmdSpeichern", given},
        {"PreisButton",
         prices,
         {"btnPreiseAendern"},
         "txtWert",
         "10); DELETE FROM VERTRAG_PREISE --",
         "Wert",
         "btnPreiseAendern",
         {"cmdOk"}},
        {"PosButton", quantities, line, "txtMenge", "1 OR 1=1", "Menge", "cmdSpeichern", given},
        {"PosButton", quantities, newLine, "txtHa", "'FI'", "Ha", "cmdSpeichern", given},
    };
    host.session.site = "WVO";
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string{c.box} + " " + c.typed);
        const std::string before = contract();
        const auto errors = host.display.errors().size();
        if (c.box == std::string{"txtWert"})
            host.display.onMessage("Wollen Sie", Answer::yes, "Vertrag Preisänderung");
        const auto work = [&](User& user) {
            for (const char* button : c.before)
                user.click(button);
            const std::string was = user.text(c.box);
            user.replaceText(c.box, c.typed);
            c.press == nullptr ? user.key(Key::tab) : user.click(c.press);
            ASSERT_EQ(host.display.errors().size(), errors + 1);
            const std::string beginning = std::string{c.label} + " „" + c.typed + "“: ";
            EXPECT_EQ(host.display.errors().back().substr(0, beginning.size()), beginning);
            EXPECT_EQ(host.display.errors().back().find("Anweisung"), std::string::npos);
            EXPECT_EQ(user.focused(), c.box);
            EXPECT_EQ(user.text(c.box), c.typed);
            EXPECT_EQ(contract(), before);
            user.replaceText(c.box, was);
            for (const char* button : c.after)
                user.click(button);
        };
        host.display.onWindow("F_Vertrag", [&](User& user) {
            c.opens == nullptr ? work(user) : user.click(c.opens);
            user.click("btnAbbrechen");
        });
        if (c.opens != nullptr) host.display.onWindow(c.form, work);
        host.openContract(1);
    }
}

} // namespace
} // namespace tellurix::tests
