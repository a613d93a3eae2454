// What the host's own window goes through while a contract is open, and that nothing stays behind.
#include "com/automation/AutomationError.h"
#include "database/embedded/Database.h"
#include "standin/services/values/SystemClock.h"
#include "tests/standin/windows_host/HostTest.h"

#include <winternl.h>

#include <cstdint>

namespace tellurix::tests {
namespace {

using HostWindow = HostTest;
using ui::Key;

TEST_F(HostWindow, WaitsWhileAContractIsOpenAndIsBackAfterEveryWayOfClosing) {
    struct Case {
        const char* rule;
        standin::ContractToOpen contract;
        Script script;
        bool fails = false;
    };
    standin::ContractToOpen fresh = wolfsberg;
    fresh.isNew = true;
    standin::ContractToOpen missing = wolfsberg;
    missing.id = 4711;
    const Case cases[] = {
        {"saved", wolfsberg, [](WindowsUser& user) { user.click(user.control("btnSpeichern")); }},
        {"cancelled", wolfsberg, [](WindowsUser& user) { user.click(user.control("btnAbbrechen")); }},
        {"by Esc", wolfsberg, [](WindowsUser& user) { user.key({.key = Key::escape}); }},
        {"by the close box", wolfsberg, [](WindowsUser& user) { user.close(); }},
        {"over a child screen", wolfsberg,
         [](WindowsUser& user) {
             user.click(user.control("btnHeader"));
             user.key({.key = Key::escape});
             user.key({.key = Key::escape});
         }},
        {"an error while opening", missing, [](WindowsUser& user) { user.close(); }, true},
        {"a new one, thrown away", fresh,
         [](WindowsUser& user) {
             user.close();
             user.answer(user.message(), ui::Answer::yes);
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        SetActiveWindow(window());
        bool waited = false;
        const auto opening = [&] {
            open(c.contract, [&](WindowsUser& user) {
                waited = !IsWindowEnabled(window());
                c.script(user);
            });
        };
        if (c.fails) {
            EXPECT_THROW(opening(), windows::AutomationError);
        } else {
            EXPECT_NO_THROW(opening());
            EXPECT_TRUE(waited);
        }
        EXPECT_TRUE(IsWindowEnabled(window()));
        EXPECT_EQ(GetActiveWindow(), window());
    }
}

TEST_F(HostWindow, WaitsWhileReportsAreOpen) {
    struct Case {
        const char* form;
        void (windows::ComContractOpener::*open)(std::int16_t);
    };
    for (const Case& c : {Case{"F_Bereitstellung_WVO", &windows::ComContractOpener::openProvisionReports},
                          {"F_VertragMengenmeldung_WVO", &windows::ComContractOpener::openQuantityReports}}) {
        SCOPED_TRACE(c.form);
        bool waited = false;
        work(
            c.form, [&] { (opener().*c.open)(1); },
            [&](WindowsUser& user) {
                waited = !IsWindowEnabled(window());
                user.close();
            });
        EXPECT_TRUE(waited);
        EXPECT_TRUE(IsWindowEnabled(window()));
    }
}

TEST_F(HostWindow, ADatabaseErrorLeavesTheScreenAsItIs) {
    open(wolfsberg, [&](WindowsUser& user) {
        user.click(user.control("chkAbgeschlossen"));
        const standin::SystemClock clock;
        embedded::Database{file(), clock}.connect()->execute("DROP TABLE VERTRAEGE");
        user.click(user.control("btnSpeichern"));
        ASSERT_NE(user.message(), nullptr);
        EXPECT_NE(WindowsUser::messageText(user.message()).find("VERTRAEGE"), std::string::npos);
        user.answer(user.message(), ui::Answer::ok);
        EXPECT_EQ(WindowsUser::nameOf(user.top()), "F_Vertrag");
        EXPECT_EQ(WindowsUser::textOf(user.control("chkAbgeschlossen")), "ja");
        user.key({.key = Key::escape});
    });
    EXPECT_TRUE(IsWindowEnabled(window()));
}

/// What a process holds on to.
struct Held {
    int windows = 0;
    int drawing = 0; ///< fonts, brushes, bitmaps and the like
    ULONG connection = 0;
    bool operator==(const Held&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Held& held) {
    return out << held.windows << " windows, " << held.drawing << " drawing objects, " << held.connection
               << " references to the connection";
}

/// Entries of the table in which Windows keeps the drawing objects of a process. GetGuiResources, which
/// counts them, answers 0 under Wine. Wine's entries have room for 64 bit in both kinds of processes.
int drawingObjects() {
    struct Entry {
        std::uint64_t object;
        USHORT process;
        USHORT count;
        USHORT unique;
        USHORT type;
        std::uint64_t user;
    };
    constexpr int entries = 0x4000;
    constexpr std::size_t tableOffset = sizeof(void*) == 8 ? 0xF8 : 0x94; // in the process' own block
    PROCESS_BASIC_INFORMATION process{};
    NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process,
                              nullptr);
    const auto* table =
        *reinterpret_cast<Entry* const*>(reinterpret_cast<const char*>(process.PebBaseAddress) + tableOffset);
    int used = 0;
    for (int i = 0; i < entries; ++i)
        used += table[i].type != 0 ? 1 : 0;
    return used;
}

BOOL CALLBACK countWindow(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

Held held(IDispatch& connection) {
    Held now;
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&now.windows));
    now.drawing = drawingObjects();
    connection.AddRef();
    now.connection = connection.Release();
    return now;
}

TEST_F(HostWindow, TwoHundredOpenedContractsLeaveNothingBehind) {
    const auto openAndClose = [this] {
        open(wolfsberg, [](WindowsUser& user) { user.key({.key = Key::escape}); });
    };
    openAndClose();
    const Held before = held(*connection().object().get());
    EXPECT_GT(before.drawing, 0);
    for (int i = 0; i < 200; ++i)
        openAndClose();
    EXPECT_EQ(held(*connection().object().get()), before);
    // Nothing in the module is alive, so Windows may unload it.
    const HMODULE library = GetModuleHandleW(L"Tellurix_Vertrag.dll");
    ASSERT_NE(library, nullptr);
    const auto canUnload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
    EXPECT_EQ(canUnload(), S_OK);
}

} // namespace
} // namespace tellurix::tests
