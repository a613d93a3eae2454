#pragma once

#include "tests/support/ContractTest.h"
#include "tests/support/EarlierVisit.h"

#include <memory>
#include <string>

namespace tellurix::tests {

/// A test of the line screens, which are opened from the contract editor as a user does, and for the
/// second time: the first time much was left behind.
class LinesTest : public ContractTest {
protected:
    void editPrices(std::int32_t contract, const ScriptedDisplay::Script& script,
                    const std::string& type = "R") {
        edit("PreisButton", "F_VertragPreise", contract, script, type);
    }
    void editQuantities(std::int32_t contract, const ScriptedDisplay::Script& script,
                        const std::string& type = "R") {
        edit("PosButton", "F_VertragMengen", contract, script, type);
    }

    /// The rows of a query, each as `row` writes it, one behind the other.
    std::string rows(const std::string& table, const std::string& columns, std::int32_t contract) {
        const std::string of = " FROM " + table + " WHERE ID_VERTRAG = " + std::to_string(contract);
        const int count = std::stoi(value("SELECT COUNT(*)" + of));
        std::string all;
        for (int place = 1; place <= count; ++place)
            all += "[" + row("SELECT " + columns + of + " AND ORDNUNG = " + std::to_string(place)) + "]";
        return all;
    }
    std::string prices(const std::string& columns, std::int32_t contract) {
        return rows("VERTRAG_PREISE", columns, contract);
    }
    /// The cells of a grid row, separated by "|".
    static std::string cells(const ui::Grid& grid, int row) {
        std::string text;
        for (const std::string& cell : grid.rows().at(static_cast<std::size_t>(row)))
            text +=
                (text.empty() && &cell == &grid.rows().at(static_cast<std::size_t>(row)).front() ? "" : "|") +
                cell;
        return text;
    }
    /// The statements sent since the last look that hold `part`.
    int sent(const std::string& part) {
        int count = 0;
        for (const std::string& statement : host.statements)
            count += statement.find(part) == std::string::npos ? 0 : 1;
        return count;
    }

private:
    void edit(const char* button, const char* form, std::int32_t contract,
              const ScriptedDisplay::Script& script, const std::string& type) {
        const auto fresh = std::make_shared<std::string>();
        host.display.onWindow("F_Vertrag", [=, this](User& user) {
            host.display.aside([&] {
                host.display.onWindow(form, [&](User& former) {
                    *fresh = stateOf(former.window());
                    leaveLinesBehind(former, host.display);
                });
                user.click(button);
            });
            user.click(button);
            user.click("btnAbbrechen");
        });
        host.display.onWindow(form, [fresh, script](User& user) {
            EXPECT_EQ(stateOf(user.window()), *fresh) << "of a screen that was used before";
            script(user);
        });
        host.openContract(contract, type);
    }
};

} // namespace tellurix::tests
