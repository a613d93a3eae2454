#include "tests/standin/services/ServicesTest.h"

#include "module/base/Refused.h"
#include "module/ui/controls/ComboBox.h"

namespace tellurix::tests {
namespace {

using host::CalculationLines;
using ui::Answer;

/// The named models of surcharge and deduction lines, and the article catalogue.
class Models : public ServicesTest {
protected:
    struct Screen final : ui::Form, host::CalculationForm {
        Screen() : Form("Screen") {}
        CalculationLines lines() const override { return present; }
        void setLines(const CalculationLines& lines) override { present = lines; }
        CalculationLines present;
        ui::ComboBox list{*this, "list"};
    };

    std::string listed(const std::string& category) {
        host.models.fill(session, screen.list, category);
        std::string names;
        for (const auto& item : screen.list.items())
            names += item.text + "/" + std::to_string(item.itemData) + " ";
        return names;
    }
    void manage(const ScriptedDisplay::Script& script) {
        display.onWindow("F_Models", script);
        host.models.manage(session, "ABSCHLAG", screen, screen.list);
    }

    Screen screen;
};

TEST_F(Models, AreListedAndCopiedByCategory) {
    EXPECT_EQ(listed("ABSCHLAG"), "Industrieholz frei Werk/2 Sägewerk Standard/1 ");
    EXPECT_EQ(listed("ABSCHLAG1"), "Einkauf Großwald/4 Einkauf Kleinwald/3 ");
    EXPECT_EQ(listed("ABSCHLAG8"), "");
    screen.present[5].value = "99";
    for (const char* category : {"ABSCHLAG", "ABSCHLAG_A"}) {
        host.models.copy(session, category, 1, screen);
        EXPECT_EQ(screen.present[0].designation, "Rindenabzug Fichte");
        EXPECT_EQ(screen.present[1].subset, "90 IN ('CX') ;");
        EXPECT_EQ(screen.present[2].references, "1,2");
        EXPECT_EQ(screen.present[5], host::CalculationLine{})
            << "lines that the model does not have are empty";
        screen.present = {};
    }
    EXPECT_THROW(host.models.copy(session, "ABSCHLAG1", 1, screen), base::Refused);
    EXPECT_EQ(screen.present, CalculationLines{}) << "a model that is gone copies nothing";
}

TEST_F(Models, AreSavedRenamedAndDeleted) {
    screen.present[0] = {.statistic = 5, .designation = "Fracht's", .value = "8,50", .article = 1};
    screen.present[1] = {.statistic = 0, .value = "0,00"}; // only gone through
    manage([&](User& user) {
        EXPECT_EQ(user.text("txtName"), "Industrieholz frei Werk");
        EXPECT_EQ(user.grid("grdLines").cell(1, 1), "Manipulation");
        user.type("txtName", " Neu ");
        user.ctrl('S');
        EXPECT_EQ(user.status(), "Modell „Neu“ gespeichert");
        EXPECT_EQ(user.grid("grdModels").cell(1, 0), "Neu");
        EXPECT_EQ(user.grid("grdLines").rows().size(), 1U);
        user.close();
    });
    EXPECT_EQ(screen.list.selectedText(), "Neu") << "the lines are of this model now";
    host.models.copy(session, "ABSCHLAG", static_cast<std::int32_t>(screen.list.items()[1].itemData), screen);
    EXPECT_EQ(screen.present[0].designation, "Fracht's");
    EXPECT_EQ(screen.present[1], host::CalculationLine{});

    screen.present[0].designation = "anders";
    manage([&](User& user) {
        EXPECT_EQ(user.text("txtName"), "Neu") << "starts on the current one";
        for (const Answer answer : {Answer::no, Answer::yes}) {
            user.type("txtName", "neu");
            display.onMessage("„neu“ gibt es schon", answer);
            user.click("btnSave");
            EXPECT_EQ(value("SELECT BEZEICH FROM WORKBENCH_MODEL_LINE WHERE ID_MODEL > 5"),
                      answer == Answer::yes ? "anders" : "Fracht's");
        }
        user.select("grdModels", 0);
        user.type("txtName", "Sägewerk Standard");
        user.click("btnRename");
        EXPECT_NE(display.errors().back().find("gibt es schon"), std::string::npos);
        EXPECT_EQ(user.error("txtName"), display.errors().back());
        user.select("grdModels", 1);
        EXPECT_EQ(user.text("txtName"), "Sägewerk Standard") << "what is typed stays";
        user.select("grdModels", 0);
        user.type("txtName", "D'Angelo");
        user.click("btnRename");
        EXPECT_EQ(user.focused(), "txtName") << "no name with an apostrophe goes on lines";
        user.type("txtName", "Industrieholz");
        user.click("btnRename");
        EXPECT_EQ(user.status(), "Das Modell heißt jetzt „Industrieholz“");
        EXPECT_EQ(user.grid("grdModels").cell(0, 0), "Industrieholz");
        display.onMessage("Namen");
        user.type("txtName", " ");
        user.click("btnSave");
        display.onMessage("„Industrieholz“ gelöscht", Answer::no);
        user.click("btnDelete");
        display.onMessage("„Industrieholz“ gelöscht", Answer::yes);
        user.focus("grdModels");
        user.key(ui::Key::del);
        EXPECT_EQ(user.status(), "Modell „Industrieholz“ gelöscht");
        user.clickHeading("grdModels", 0);
        user.clickHeading("grdModels", 0);
        EXPECT_EQ(user.text("txtName"), user.grid("grdModels").cell(1, 0)) << "the row stays the current one";
        user.select("grdModels", 0);
        EXPECT_EQ(user.text("txtName"), user.grid("grdModels").cell(0, 0));
        user.close();
    });
    EXPECT_EQ(value("SELECT COUNT(*) FROM WORKBENCH_MODEL_LINE WHERE ID_MODEL = 2"), "0");
}

TEST_F(Models, ArticlesAreOfferedByContractTypeAndAccessLevel) {
    struct Case {
        const char* type;
        int accessLevel;
        std::size_t count;
    };
    for (const Case& c : {Case{"R", 0, 6}, Case{"A3", 0, 7}, Case{"R", 5, 7}, Case{"A3", 5, 8}}) {
        SCOPED_TRACE(c.type);
        session.accessLevel = c.accessLevel;
        display.onWindow("F_ListPicker", [&](User& user) {
            EXPECT_EQ(user.grid("grdList").rows().size(), c.count);
            user.type("txtFilter", "vermessung");
            user.key(ui::Key::enter);
        });
        EXPECT_EQ(host.catalogue.choose(session, "WAREN", c.type, 0), 5);
    }
    display.onWindow("F_ListPicker", [](User& user) {
        EXPECT_EQ(user.grid("grdList").cell(user.grid("grdList").currentRow(), 1), "Rindenabzug Fichte");
        user.key(ui::Key::escape);
    });
    EXPECT_EQ(host.catalogue.choose(session, "WAREN", "R", 2), 0) << "cancelled";
    EXPECT_THROW(host.catalogue.choose(session, "HOLZ", "R", 0), std::invalid_argument);
}

} // namespace
} // namespace tellurix::tests
