#include "module/base/text.h"
#include "tests/logistics/LogisticsTest.h"

#include <fstream>
#include <map>
#include <set>
#include <utility>

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

/// The texts that the logistics screens send, blanks and line ends included, as sent_statements.txt has them.
class SentStatements : public LogisticsTest {
protected:
    using Texts = std::vector<std::string>;

    SentStatements() {
        ownTables = {"WVO_VERTRAG", "WVO_VERTAG_KALENDER", "WVO_VERTRAG_WALDHELFER", "WVO_BEREITMELDUNG_KW"};
    }

    /// What an action of the user sends for the first time is the section of the file with that name.
    void expect(const std::string& section, const std::function<void()>& action) {
        host.statements.clear();
        action();
        Texts sent;
        for (const std::string& statement : host.statements)
            if (known_.insert(statement).second) sent.push_back(statement);
        EXPECT_EQ(sent, given_[section]) << section << "\n" << written(sent);
    }

private:
    /// As the file has them: a statement a paragraph, "⏎" at the end of a line that does not end it.
    static std::string written(const Texts& texts) {
        std::string all;
        for (const std::string& text : texts)
            all += base::replaceAll(text, "\r\n", "⏎\n") + "\n\n";
        return all;
    }
    static std::map<std::string, Texts> read() {
        std::map<std::string, Texts> sections;
        std::ifstream file{TELLURIX_TEST_FOLDER "/sent_statements.txt"};
        std::string section;
        std::string text;
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("# ")) {
                section = line.substr(2);
            } else if (line.ends_with("⏎")) {
                text += base::replaceAll(line, "⏎", "\r\n");
            } else if (!line.empty()) {
                sections[section].push_back(std::exchange(text, {}) + line);
            }
        }
        return sections;
    }

    std::map<std::string, Texts> given_ = read();
    std::set<std::string> known_;
};

TEST_F(SentStatements, OfTheLogisticsOfAContract) {
    open(fibreWood, [&](User& user) {
        const auto opening = host.statements;
        expect("opening", [&] { host.statements = opening; });
        expect("saving the settings", [&] {
            user.click("btnBearbeiten");
            user.type("txtBemerkung", "so gut wie's geht");
            user.click("btnSpeichern");
        });
        user.select("SSTab1", 1);
        expect("ordering the weeks", [&] {
            user.clickHeading("DataGridKalendar", 2);
            user.clickHeading("DataGridKalendar", 2);
        });
        host.display.onMessage("", Answer::yes);
        expect("deleting a week", [&] { user.click("btnLoschen1"); });
        expect("generating the weeks", [&] { user.click("btnGenWeek"); });
        expect("saving a week", [&] {
            user.click("btnBearbeiten1");
            user.type("txtPlanmenge", "12,5");
            user.click("btnSpeichern1");
        });
        user.select("DataGridKalendar", 0);
        const std::string week = user.grid("DataGridKalendar").cell(0, 0); // 2025/24
        host.display.onMessage("", Answer::yes);
        user.click("btnLoschen1");
        expect("saving a new week", [&] {
            user.click("btnNeu1");
            user.type("txtJahr", week.substr(0, 4));
            user.type("txtWoche", week.substr(5));
            user.type("txtPlanmenge", "7");
            user.click("btnSpeichern1");
        });
        user.select("SSTab1", 2);
        expect("filtering the helpers", [&] {
            user.type("txtFilter", "öll");
            user.key(Key::enter);
        });
        user.type("txtFilter", "");
        user.key(Key::tab);
        expect("saving quantities", [&] {
            user.click("btnBearbeiten2");
            user.select("MSFG", 0, 4);
            user.type("1.250");
            user.key(Key::enter);
            user.click("btnSpeichern2");
        });
        host.pickedSeveral = {{20, 21, 22, 25}};
        expect("adding and removing several", [&] { user.click("btnWaldhelfer"); });
        host.display.onMessage("Aktualisieren beendet.");
        expect("confirming what is announced", [&] { user.click("btnAMB"); });
        host.display.onMessage("Aktualisieren beendet.");
        expect("confirming what the owners announced", [&] { user.click("btnAWBMB"); });
        host.display.onMessage("", Answer::yes);
        expect("removing one", [&] { user.click("btnLoschen2"); });
        expect("mailing", [&] { user.click("btnSerienmail"); });
        user.click("btnClose");
    });
}

TEST_F(SentStatements, OfTheProvisionReports) {
    host.display.onWindow("F_Bereitstellung_WVO", [&](User& user) {
        expect("choosing a contract", [&] {
            user.focus("txtVertrag");
            user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
            user.key(Key::tab);
        });
        expect("choosing a week", [&] {
            user.type("txtKalender", "23/2025");
            user.key(Key::tab);
        });
        expect("filtering the reports", [&] {
            user.type("txtWaldhelfer", "e");
            user.key(Key::tab);
            user.type("txtWHNummer", "30");
            user.key(Key::tab);
        });
        const auto enter = [&](int row, int column, const std::string& text) {
            user.select("MSFG", row, column);
            user.doubleClick("MSFG");
            user.replaceText("txtEdit", text);
            user.key(Key::enter);
        };
        user.click("btnBearbeiten");
        enter(0, 6, "Kögl");
        enter(1, 3, "");
        enter(2, 5, "7");
        expect("saving reports", [&] { user.click("btnSpeichern"); });
        user.close();
    });
    host.openProvisionReports(1);
}

TEST_F(SentStatements, OfTheQuantityReports) {
    host.display.onWindow("F_VertragMengenmeldung_WVO", [&](User& user) {
        host.pickedPerson = 20;
        user.focus("txtWaldhelfer");
        expect("choosing a helper", [&] { user.ctrl(); });
        user.click("btnBearbeiten");
        user.select("MSFG", 0, 2);
        user.type("5");
        user.key(Key::enter);
        user.select("MSFG", 1, 3);
        user.key(Key::del);
        user.key(Key::enter);
        expect("saving reported quantities", [&] { user.click("btnSpeichern"); });
        expect("exporting the listings", [&] { user.click("btnExcel"); });
        user.close();
    });
    host.openQuantityReports();
}

} // namespace
} // namespace tellurix::tests
