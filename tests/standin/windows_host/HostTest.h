#pragma once

#include "com/automation/Dispatch.h"
#include "standin/windows_host/ComContractOpener.h"
#include "tests/support/windows/WindowsUser.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace tellurix::tests {

/// A host of its own: a plain window, an ADO connection to a fresh sample database, and contracts
/// opened through COM. The thread of the test is the host's apartment.
class HostTest : public testing::Test {
public:
    using Script = std::function<void(WindowsUser&)>;

protected:
    HostTest();
    ~HostTest() override;

    /// Opens a contract; the script works its editor from a thread of its own and has to close it.
    void open(const standin::ContractToOpen& contract, const Script& script);
    /// The same for a form that `opening` shows.
    void work(const std::string& form, const std::function<void()>& opening, const Script& script);

    const std::filesystem::path& file() const { return file_; }
    HWND window() const { return window_; }
    windows::Dispatch& connection() { return connection_; }
    windows::ComContractOpener& opener() { return opener_; }

private:
    struct Apartment {
        Apartment();
        ~Apartment();
    };

    std::filesystem::path file_;
    Apartment apartment_;
    HWND window_;
    windows::Dispatch connection_;
    host::TlxVar session_{.homeCurrency = "CHF", .site = {}, .user = "test"};
    windows::ComContractOpener opener_;
};

/// A contract of the sample trade.
inline const standin::ContractToOpen wolfsberg{
    .id = 1, .name = "R-2025-001 Fichte Wolfsberg", .type = "R", .caption = "Vertrag"};

} // namespace tellurix::tests
