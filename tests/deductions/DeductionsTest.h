#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "tests/support/ContractTest.h"

#include <string>
#include <vector>

namespace tellurix::tests {

/// A test of the surcharge and deduction lines, opened from the contract editor as a user does.
class DeductionsTest : public ContractTest {
protected:
    static constexpr const char* spruce = "R-2025-001 Fichte Wolfsberg"; ///< contract 1, three lines

    /// Opens the lines of a contract, works on them by a script, and goes back to the editor.
    /// @return the model that the editor shows then
    std::string edit(std::int32_t contract, const ScriptedDisplay::Script& script,
                     const std::string& type = "R") {
        std::string model;
        host.display.onWindow("F_Vertrag", [&](User& user) {
            host.statements.clear();
            user.click("btnAbschlag");
            model = user.text("txtAbschlag");
            said = user.status();
            user.click("btnAbbrechen");
        });
        host.display.onWindow("F_Abschlag", script);
        host.openContract(contract, type);
        return model;
    }

    std::string said; ///< by the editor, when the lines are closed

    static std::string at(const char* array, std::size_t line) {
        return std::string{array} + "(" + std::to_string(line) + ")";
    }
    /// The line as the user sees it: statistic, designation, value, references, and "*" for a subset.
    static std::string line(User& user, std::size_t number) {
        return user.control<ui::ComboBox>(at("CmbStat", number)).selectedText() + "|" +
               user.text(at("TextBez", number)) + "|" + user.text(at("TextWert", number)) + "|" +
               user.text(at("txtWert", number)) + (user.checked(at("Check1", number)) ? "|*" : "|");
    }
    static void enter(User& user, std::size_t number, int statistic, const std::string& value,
                      const std::string& designation = "") {
        user.select(at("CmbStat", number), statistic);
        user.type(at("TextWert", number), value);
        user.type(at("TextBez", number), designation);
    }

    /// The stored lines of a contract's calculation, each in brackets.
    std::string stored(const std::string& name, const std::string& columns, const std::string& type = "V") {
        const std::string of =
            " FROM ABSCHLAG WHERE RECH_NAME = '" + name + "' AND VER_TYPE = '" + type + "'";
        std::string all;
        for (int number = 0; number < 16; ++number) {
            const std::string found =
                row("SELECT " + columns + of + " AND LINE_NUM = " + std::to_string(number));
            if (found != "no row") all += "[" + found + "]";
        }
        return all;
    }
    std::vector<std::string> sentFrom(std::size_t first) const {
        return {host.statements.begin() + static_cast<std::ptrdiff_t>(first), host.statements.end()};
    }
};

} // namespace tellurix::tests
