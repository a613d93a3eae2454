// Windows as the host sees them: they go as they came, whatever ends them.

#include "display/win32/grid/GridView.h"
#include "module/ui/input/GridEditor.h"
#include "tests/display/win32/ScreenTest.h"
#include "tests/support/DemoForm.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tellurix::tests {

namespace {

using ui::Key;

/// Windows counts the GDI objects of a process. Wine does not, but knows an object by its place in the
/// table of all, which Windows does not.
DWORD gdiObjects() {
    constexpr std::uintptr_t places = 0x4000;
    DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (std::uintptr_t place = 1; place < places; ++place)
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(place)) != 0 ? 1U : 0U;
    return count;
}

BOOL CALLBACK countWindow(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

/// Windows of a thread, and the GDI and USER objects of the process. An icon has bitmaps, which are GDI
/// objects.
struct Held {
    int windows = 0;
    DWORD gdi = gdiObjects();
    DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);

    Held() { EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&windows)); }
    bool operator==(const Held&) const = default;
};

/// A table that is edited in place, wider than its window has to be: its numbers take digits only, and "7" is
/// not written.
class EditedTable final : public ui::Form {
public:
    EditedTable() : Form("EditedTable", "Tabelle") {
        grdTable.setColumns(
            {{"Text", 12, false}, {"Zahl", 8, true}, {"Preis", 12, true}, {"Summe", 12, true}});
        std::vector<ui::Grid::Row> rows;
        for (int i = 0; i < 40; ++i)
            rows.push_back({"Zeile", std::to_string(i), "98,40", "9.840,00"});
        grdTable.setRows(std::move(rows));
        grdTable.setCurrent(0, 1);
        txtCell.onKeyPress = [](char32_t& character) {
            if (character < U'0' || character > U'9') character = 0;
        };
        grdTable.openColumns({1});
        editor_.write = [](int, int, const std::string& typed) {
            if (typed == "7") throw std::runtime_error{"Sieben geht nicht."};
            return typed + "!";
        };
        setLayout(ui::column({ui::Layout{grdTable}.growing(), btnNext}));
    }

    ui::Grid grdTable{*this, "grdTable", 6};

private:
    ui::TextBox txtCell{*this, "txtCell", 8};
    ui::Button btnNext{*this, "btnNext", "&Weiter"};
    ui::GridEditor editor_{grdTable, txtCell};
};

/// Closes itself as soon as it has been shown.
class ShortForm final : public ui::Form {
public:
    explicit ShortForm(bool fails) : Form("ShortForm") {
        txtOne.onFocus = [this, fails] {
            if (fails) throw std::string{"no std::exception"};
            unload();
        };
        setLayout(ui::column({txtOne}));
    }

private:
    ui::TextBox txtOne{*this, "txtOne"};
};

} // namespace

TEST(WindowsOfScreens, LeaveNothingBehind) {
    Held before;
    Held after;
    HostThread host{[&](windows::Win32Display& display) {
        const auto openAndClose = [&display] {
            DemoForm form{display};
            form.txtName.onFocus = [&] {
                display.refresh();
                PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0);
            };
            display.showModal(form);
        };
        // What Windows keeps for the next time is made by the first ones.
        for (int i = 0; i < 3; ++i)
            openAndClose();
        before = Held{};
        for (int i = 0; i < 200; ++i)
            openAndClose();
        after = Held{};
    }};
    host.waitUntilClosed();
    EXPECT_FALSE(host.join().ended);
    EXPECT_GT(before.gdi, 0U);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.gdi, before.gdi);
    EXPECT_EQ(after.user, before.user);
}

TEST(WindowsOfScreens, FreeTheOwnerHoweverTheyEnd) {
    const struct {
        const char* how;
        HostThread::Show show;
    } cases[] = {
        {"closed by the form",
         [](windows::Win32Display& display) {
             ShortForm form{false};
             display.showModal(form);
         }},
        {"an exception that no event loop takes",
         [](windows::Win32Display& display) {
             ShortForm form{true};
             EXPECT_THROW(display.showModal(form), std::string);
         }},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.how);
        HostThread host{row.show};
        host.waitUntilClosed();
        const HostThread::Outcome outcome = host.join();
        EXPECT_TRUE(outcome.ownerEnabled);
        EXPECT_TRUE(outcome.ownerActive);
    }
}

TEST(WindowsOfScreens, EndWithTheirOwnerOrTheThreadWhateverIsOpen) {
    // What is typed is something that closing would ask about.
    const struct {
        const char* open;
        const char* clicked;
        bool message;
    } cases[] = {
        {"a box that is being edited", "txtName", false},
        {"another screen", "btnOpen", false},
        {"an open list", "cboType", false},
        {"a message", "btnQuestion", true},
    };
    for (const auto& row : cases)
        for (const bool byOwner : {true, false}) {
            SCOPED_TRACE(std::string{row.open} + (byOwner ? ", owner" : ", thread"));
            std::string state;
            HostThread host{[&](windows::Win32Display& display) {
                DemoForm form{display};
                try {
                    display.showModal(form);
                } catch (...) {
                    state = form.txtState.text();
                    throw;
                }
            }};
            WindowsUser user{host.id()};
            ASSERT_TRUE(isOpen(user, "DemoForm"));
            user.type("offen");
            user.click(user.control(row.clicked));
            EXPECT_TRUE(eventually([&] { return (user.message() != nullptr) == row.message; }));
            byOwner ? host.closeOwner() : host.end();
            host.waitUntilClosed();
            EXPECT_EQ(user.top(), nullptr);
            EXPECT_EQ(user.message(), nullptr);
            const HostThread::Outcome outcome = host.join();
            EXPECT_EQ(outcome.ownerClosed, byOwner);
            EXPECT_EQ(outcome.ended, !byOwner);
            EXPECT_EQ(outcome.ownerEnabled, !byOwner);
            EXPECT_EQ(state, "offen|||") << "nothing was answered";
        }
}

/// A function of newer systems than those that these programs are built for.
template <typename Function>
Function* newer(const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

TEST(WindowsOfScreens, HaveTheResolutionOfTheMainScreenWhateverTheHostsThreadHas) {
    const HANDLE ofEachScreen = reinterpret_cast<HANDLE>(LONG_PTR{-3});
    auto* const setOfThread = newer<HANDLE WINAPI(HANDLE)>("SetThreadDpiAwarenessContext");
    auto* const contextOf = newer<HANDLE WINAPI(HWND)>("GetWindowDpiAwarenessContext");
    auto* const kindOf = newer<int WINAPI(HANDLE)>("GetAwarenessFromDpiAwarenessContext");
    HANDLE after = nullptr;
    HostThread host{[&](windows::Win32Display& display) {
        setOfThread(ofEachScreen);
        DemoForm form{display};
        display.showModal(form);
        after = setOfThread(ofEachScreen);
    }};
    HWND grid = nullptr;
    {
        WindowsUser user{host.id()};
        ASSERT_TRUE(isOpen(user, "DemoForm"));
        EXPECT_EQ(kindOf(contextOf(user.top())), 1) << "that of the system";
        grid = user.control("grdLines");
        EXPECT_FALSE(WindowsUser::rowOf(grid, 0).empty());
    }
    EXPECT_TRUE(WindowsUser::rowOf(grid, 0).empty()) << "no test driver, no answer";
    PostMessageW(GetParent(grid), WM_CLOSE, 0, 0);
    host.waitUntilClosed();
    host.join();
    EXPECT_EQ(kindOf(after), 2) << "as the host had it";
}

TEST(WindowsOfScreens, TheGridFollowsTheWheel) {
    HostThread host{[](windows::Win32Display& display) {
        EditedTable form;
        display.showModal(form);
    }};
    WindowsUser user{host.id()};
    ASSERT_TRUE(isOpen(user, "EditedTable"));
    SetWindowPos(user.top(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER); // as small as it gets
    const struct {
        const char* rule;
        int delta;
        WORD keys;
        UINT message;
        int rows;
        int across; ///< direction
    } cases[] = {
        {"three rows a notch", -WHEEL_DELTA, 0, WM_MOUSEWHEEL, 3, 0},
        {"half a notch", -WHEEL_DELTA / 2, 0, WM_MOUSEWHEEL, 1, 0},
        {"and another half", -WHEEL_DELTA / 2, 0, WM_MOUSEWHEEL, 2, 0},
        {"Shift goes across", -WHEEL_DELTA, MK_SHIFT, WM_MOUSEWHEEL, 0, 1},
        {"a tilted wheel, back", -WHEEL_DELTA, 0, WM_MOUSEHWHEEL, 0, -1},
        {"and forth", WHEEL_DELTA, 0, WM_MOUSEHWHEEL, 0, 1},
    };
    HWND grid = user.control("grdTable");
    for (const auto& row : cases) {
        const int rows = GetScrollPos(grid, SB_VERT);
        const int across = GetScrollPos(grid, SB_HORZ);
        user.wheel(grid, row.delta, row.keys, row.message);
        EXPECT_EQ(GetScrollPos(grid, SB_VERT) - rows, row.rows) << row.rule;
        const int moved = GetScrollPos(grid, SB_HORZ) - across;
        EXPECT_EQ((moved > 0) - (moved < 0), row.across) << row.rule;
    }
    user.close();
    EXPECT_FALSE(host.join().ended);
}

TEST(Tables, AColumnIsAsWideAsItsEdgeWasPulled) {
    EditedTable form;
    int told = 0;
    form.grdTable.onColumnSized = [&] { ++told; };
    HostThread host{[&](windows::Win32Display& display) { display.showModal(form); }};
    WindowsUser user{host.id()};
    ASSERT_TRUE(isOpen(user, "EditedTable"));
    HWND grid = user.control("grdTable");
    const auto edge = [&] {
        user.settle();
        RECT cell{};
        SendMessageW(grid, windows::gridMessages().cellPlace, MAKEWPARAM(0, 0),
                     reinterpret_cast<LPARAM>(&cell));
        return static_cast<int>(cell.right);
    };
    const int before = edge();
    const auto mouse = [&](UINT message, int x) {
        SendMessageW(grid, message, MK_LBUTTON, MAKELPARAM(x, 4));
    };
    mouse(WM_LBUTTONDOWN, before - 1);
    mouse(WM_LBUTTONUP, before - 1);
    EXPECT_EQ(edge(), before) << "pressed, but not pulled";
    mouse(WM_LBUTTONDOWN, before - 1);
    mouse(WM_MOUSEMOVE, before + 60);
    mouse(WM_LBUTTONUP, before + 60);
    EXPECT_NEAR(edge(), before + 60, 12) << "rounded to characters";
    mouse(WM_LBUTTONDBLCLK, edge() - 1);
    EXPECT_NE(edge(), before + 60) << "as wide as its longest text";
    user.close();
    EXPECT_FALSE(host.join().ended);
    EXPECT_EQ(told, 2);
    EXPECT_TRUE(form.grdTable.columns()[0].sized);
}

TEST(EditingInPlace, TheBoxFloatsOverItsCell) {
    HostThread host{[](windows::Win32Display& display) {
        EditedTable form;
        display.showModal(form);
    }};
    {
        WindowsUser user{host.id()};
        ASSERT_TRUE(isOpen(user, "EditedTable"));
        const auto cell = [&](int row) { return WindowsUser::rowOf(user.control("grdTable"), row).at(1); };
        const auto press = [&](Key key) { user.key({.key = key}); };
        user.type("x"); // filtered out: the box stays away
        EXPECT_EQ(user.focused(), "grdTable");
        user.type("45");
        EXPECT_EQ(user.focused(), "txtCell");
        RECT box{};
        RECT place{};
        GetWindowRect(user.control("txtCell"), &box);
        SendMessageW(user.control("grdTable"), RegisterWindowMessageW(L"Tellurix.CellPlace"),
                     MAKEWPARAM(0, 1), reinterpret_cast<LPARAM>(&place));
        MapWindowPoints(user.control("grdTable"), nullptr, reinterpret_cast<POINT*>(&place), 2);
        EXPECT_TRUE(EqualRect(&box, &place));
        press(Key::down);
        EXPECT_EQ(cell(0), "45!");
        EXPECT_EQ(user.focused(), "grdTable");
        user.clickRow(user.control("grdTable"), 1, false);
        press(Key::right);
        user.type("7");
        press(Key::enter);
        ASSERT_TRUE(eventually([&] { return user.message() != nullptr; }));
        user.answer(user.message(), ui::Answer::ok);
        EXPECT_EQ(user.focused(), "txtCell");
        EXPECT_EQ(cell(1), "1");
        user.type("8");
        press(Key::tab);
        EXPECT_EQ(user.focused(), "btnNext");
        EXPECT_EQ(cell(1), "78!");
        user.close();
    }
    EXPECT_FALSE(host.join().ended);
}

TEST(EditingInPlace, ScrolledAwayTheCellComesBackForAKeyButNotForWhatLeavingItWrites) {
    HostThread host{[](windows::Win32Display& display) {
        EditedTable form;
        display.showModal(form);
    }};
    {
        WindowsUser user{host.id()};
        ASSERT_TRUE(isOpen(user, "EditedTable"));
        HWND table = user.control("grdTable");
        const auto firstRow = [&] { return GetScrollPos(table, SB_VERT); };
        const auto scrollAway = [&] {
            constexpr auto down = static_cast<WORD>(-10 * WHEEL_DELTA);
            PostMessageW(table, WM_MOUSEWHEEL, MAKEWPARAM(0, down), 0);
            user.settle();
            EXPECT_GT(firstRow(), 10);
        };
        scrollAway();
        user.type("45");
        EXPECT_EQ(WindowsUser::textOf(user.control("txtCell")), "45");
        EXPECT_EQ(firstRow(), 0);
        scrollAway();
        EXPECT_EQ(user.focused(), "grdTable");
        EXPECT_EQ(WindowsUser::rowOf(table, 0).at(1), "45!");
        for (const Key key : {Key::home, Key::up}) {
            scrollAway();
            user.key({.key = key});
            EXPECT_EQ(firstRow(), 0);
        }
        user.close();
    }
    EXPECT_FALSE(host.join().ended);
}

} // namespace tellurix::tests
