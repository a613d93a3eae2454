#pragma once

#include "tests/logistics/LogisticsTest.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tellurix::tests {

/// A test of announced and confirmed quantities in a grid "MSFG" of rows of `WVO_VERTRAG_WALDHELFER`.
class QuantityTest : public LogisticsTest {
protected:
    QuantityTest() { ownTables = {"WVO_VERTRAG_WALDHELFER"}; }

    static void typeCell(User& user, int row, int column, const std::string& text) {
        user.select("MSFG", row, column);
        user.doubleClick("MSFG");
        user.replaceText("txtEdit", text);
        user.key(ui::Key::enter);
    }
    /// The rows as the user sees them, one a line.
    static std::string shown(User& user) {
        std::string all;
        for (const ui::Grid::Row& row : user.grid("MSFG").rows()) {
            for (const std::string& cell : row)
                all += cell + "|";
            all += "\n";
        }
        return all;
    }
    static std::string cell(User& user, int row, int column) { return user.grid("MSFG").cell(row, column); }

    /// Announced, confirmed, and when the centre changed them.
    std::string stored(int key) {
        return row("SELECT MENGE_ANG,MENGE_BES,DATUM_CHANGE_ZENT FROM WVO_VERTRAG_WALDHELFER WHERE ID = " +
                   std::to_string(key));
    }
    void colleague(const std::string& change, int key) {
        host.database.execute("UPDATE WVO_VERTRAG_WALDHELFER SET " + change +
                              " WHERE ID = " + std::to_string(key));
    }
    /// The statements that began so.
    std::vector<std::string> sent(const std::string& beginning) const {
        std::vector<std::string> all;
        for (const std::string& statement : host.statements)
            if (statement.starts_with(beginning)) all.push_back(statement);
        return all;
    }
};

} // namespace tellurix::tests
