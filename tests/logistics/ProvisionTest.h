#pragma once

#include "tests/support/ContractTest.h"

#include <string>
#include <vector>

namespace tellurix::tests {

/// The provision reports, opened as the host does.
class ProvisionTest : public ContractTest {
protected:
    static constexpr int announced = 3;
    static constexpr int confirmed = 5;
    static constexpr int carrier = 6;
    static constexpr const char* fibreWood = "R-2025-003 Faserholz Judenburg"; ///< contract 3, four helpers
    static constexpr const char* chips = "R-2025-004 Hackgut Wörgl";           ///< contract 4, two helpers

    static constexpr const char* asStored =
        "3001||4|3|Fuhrwerk Reisinger\n3002||2||\n3003|fehlt|||\n3005|fehlt|||\n";

    ProvisionTest() { ownTables = {"WVO_BEREITMELDUNG_KW"}; }

    void open(const ScriptedDisplay::Script& script, std::int16_t modul = 1) {
        host.display.onWindow("F_Bereitstellung_WVO", script);
        host.openProvisionReports(modul);
    }
    /// Opens the reports of contract 3 for week 23 of 2025, works on them, and closes.
    void work(const ScriptedDisplay::Script& script) {
        open([&](User& user) {
            choose(user);
            host.statements.clear();
            script(user);
            user.close();
        });
    }
    /// The same, in edit mode; what is not saved is thrown away.
    void edit(const ScriptedDisplay::Script& script) {
        work([&](User& user) {
            user.click("btnBearbeiten");
            script(user);
            if (user.usable("btnAbbrechen")) user.click("btnAbbrechen");
        });
    }
    static void choose(User& user, const std::string& contract = fibreWood,
                       const std::string& week = "23/2025") {
        user.type("txtVertrag", contract);
        user.key(ui::Key::tab);
        user.type("txtKalender", week);
        user.key(ui::Key::tab);
    }
    /// Types into a cell.
    static void enter(User& user, int row, int column, const std::string& text) {
        user.select("MSFG", row, column);
        user.doubleClick("MSFG");
        user.type("txtEdit", text);
        user.key(ui::Key::enter);
    }

    /// The helpers that are seen, a line each: number, mark, announced, confirmed, carrier.
    static std::string list(User& user) {
        std::string text;
        for (const ui::Grid::Row& row : user.grid("MSFG").rows())
            text += row[0] + "|" + row[2] + "|" + row[announced] + "|" + row[confirmed] + "|" + row[carrier] +
                    "\n";
        return text;
    }
    static std::string sums(User& user) {
        return user.caption("lblWH2") + " " + user.caption("lblWH3") + " / " + user.caption("lblZ2") + " " +
               user.caption("lblZ3");
    }
    /// The week's stored reports of contract 3, each in brackets.
    std::string stored(const std::string& columns = "ID_PERSONAL_WH,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT") {
        std::string all;
        const auto row =
            host.database.open("SELECT " + columns +
                               " FROM WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = 3 AND JAHR = 2025 "
                               "AND WOCHE = 23 ORDER BY ID");
        for (; !row->atEnd(); row->moveNext()) {
            all += all.empty() || all.back() == ']' ? "[" : "";
            for (std::size_t i = 0; i < row->fieldCount(); ++i)
                all += (i == 0 ? "" : " | ") + written(row->field(i));
            all += "]";
        }
        return all;
    }
    /// The statements sent since, but for reads.
    std::vector<std::string> writes() const {
        std::vector<std::string> all;
        for (const std::string& statement : host.statements)
            if (!statement.starts_with("SELECT")) all.push_back(statement);
        return all;
    }
    std::string lastError() const {
        return host.display.errors().empty() ? "" : host.display.errors().back();
    }
};

} // namespace tellurix::tests
