#pragma once

#include "tests/support/ContractTest.h"

#include <string>

namespace tellurix::tests {

/// A test of the logistics of a contract, opened from the contract editor as a user does.
class LogisticsTest : public ContractTest {
protected:
    static constexpr std::int32_t fibreWood = 3; ///< six weeks, four helpers, every kind of setting

    /// Opens the logistics of a contract, works on them by a script, and goes back to the editor.
    void open(std::int32_t contract, const ScriptedDisplay::Script& script) {
        host.display.onWindow("F_Vertrag", [&](User& user) {
            host.statements.clear();
            user.click("btnLieferprofil_WVO");
            user.click("btnAbbrechen");
        });
        host.display.onWindow("F_Vertrag_WVO", script);
        host.openContract(contract, "R");
    }
};

} // namespace tellurix::tests
