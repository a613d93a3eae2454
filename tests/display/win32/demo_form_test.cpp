// The rules of input that depend on the platform: what Windows and its native controls do by
// themselves, on a screen with every kind of control.

#include "tests/display/win32/ScreenTest.h"
#include "tests/support/DemoForm.h"

#include "com/automation/wide.h"
#include "module/ui/controls/caption.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace tellurix::tests {

namespace {

using ui::Key;

class DemoFormOnWindows : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(isOpen(user, "DemoForm")); }

    void TearDown() override {
        if (user.top() != nullptr) click("btnClose");
        const HostThread::Outcome outcome = host.join();
        EXPECT_TRUE(outcome.ownerEnabled);
        EXPECT_TRUE(outcome.ownerActive);
        EXPECT_FALSE(outcome.ended);
    }

    std::string text(const std::string& control) { return WindowsUser::textOf(user.control(control)); }
    void press(Key key, bool shift = false) { user.key({.key = key, .shift = shift}); }
    void alt(char letter) { user.key({.key = static_cast<Key>(letter), .alt = true}); }
    void ctrl(char letter) { user.key({.key = static_cast<Key>(letter), .ctrl = true}); }
    void click(const std::string& control) { user.click(user.control(control)); }
    void clickTab(int page) {
        HWND tabs = user.control("tabs");
        RECT tab{};
        SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&tab));
        const LPARAM middle = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
        PostMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, middle);
        PostMessageW(tabs, WM_LBUTTONUP, 0, middle);
        user.settle();
    }
    void goTo(const std::string& control) {
        click(control);
        ASSERT_EQ(user.focused(), control);
    }
    /// Answers the message that holds a text.
    void answer(const std::string& containing, ui::Answer answer) {
        ASSERT_TRUE(eventually([&] { return user.message() != nullptr; })) << containing;
        EXPECT_NE(WindowsUser::messageText(user.message()).find(containing), std::string::npos)
            << WindowsUser::messageText(user.message());
        user.answer(user.message(), answer);
        ASSERT_TRUE(eventually([&] { return user.message() == nullptr; })) << containing;
        user.settle();
    }

    HostThread host{[](windows::Win32Display& display) {
        DemoForm form{display};
        display.showModal(form);
    }};
    WindowsUser user{host.id()};
};

/// What is seen of a control, in the client area of its window.
struct Piece {
    std::string name;
    RECT place;
    LONG textWidth; ///< what its caption takes, 0 for a control without one
};

/// The controls that are seen, without frames and tabs, which others stand on.
std::vector<Piece> piecesOf(HWND window) {
    std::vector<Piece> pieces;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t kind[32];
        GetClassNameW(child, kind, 32);
        const bool isButton = kind == std::wstring{L"Button"};
        const bool isGround = kind == std::wstring{WC_TABCONTROLW} ||
                              (isButton && (GetWindowLongW(child, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX);
        if (!IsWindowVisible(child) || isGround) continue;
        Piece piece{WindowsUser::nameOf(child), {}, 0};
        GetWindowRect(child, &piece.place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&piece.place), 2);
        const bool pictured = (GetWindowLongW(child, GWL_STYLE) & BS_ICON) != 0;
        if (kind == std::wstring{L"Static"} || (isButton && !pictured)) {
            wchar_t text[128];
            SendMessageW(child, WM_GETTEXT, 128, reinterpret_cast<LPARAM>(text));
            const std::wstring caption = windows::widen(ui::plainCaption(windows::narrow(text)));
            HDC dc = GetDC(child);
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(child, WM_GETFONT, 0, 0)));
            SIZE size{};
            GetTextExtentPoint32W(dc, caption.c_str(), static_cast<int>(caption.size()), &size);
            ReleaseDC(child, dc);
            piece.textWidth = size.cx;
        }
        pieces.push_back(piece);
    }
    return pieces;
}

void copyToClipboard(const std::string& text) {
    const std::wstring wide = windows::widen(text);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
    auto* place = static_cast<wchar_t*>(GlobalLock(memory));
    place[wide.copy(place, wide.size())] = L'\0';
    GlobalUnlock(memory);
    ASSERT_TRUE(eventually([] { return OpenClipboard(nullptr) != FALSE; }));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

TEST_F(DemoFormOnWindows, NothingOverlapsOrIsCutOff) {
    for (int page = 0; page < 2; ++page) {
        SCOPED_TRACE(page);
        clickTab(page);
        const std::vector<Piece> pieces = piecesOf(user.top());
        EXPECT_GT(pieces.size(), 20U);
        RECT client{};
        GetClientRect(user.top(), &client);
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            RECT common{};
            IntersectRect(&common, &pieces[i].place, &client);
            EXPECT_TRUE(EqualRect(&common, &pieces[i].place)) << pieces[i].name << " is not wholly seen";
            EXPECT_LE(pieces[i].textWidth, pieces[i].place.right - pieces[i].place.left) << pieces[i].name;
            for (std::size_t other = 0; other < i; ++other) {
                EXPECT_FALSE(IntersectRect(&common, &pieces[i].place, &pieces[other].place))
                    << pieces[i].name << " lies over " << pieces[other].name;
            }
        }
    }
}

TEST_F(DemoFormOnWindows, TypesFilteredAndFree) {
    EXPECT_FALSE(IsWindowEnabled(host.owner()));
    EXPECT_EQ(user.focused(), "txtName");
    user.type("Käufer Öl");
    press(Key::tab);
    EXPECT_EQ(user.focused(), "txtDate");
    user.type("1x2.3.2025");
    press(Key::enter);
    EXPECT_EQ(user.focused(), "txtAmount");
    EXPECT_EQ(text("txtDate"), "12.03.2025");
    user.type("1a2,57");
    press(Key::left);
    press(Key::backspace);
    EXPECT_EQ(text("txtState"), "Käufer Öl|12.03.2025|12,7|");
    press(Key::tab, true);
    EXPECT_EQ(user.focused(), "txtDate");
    EXPECT_EQ(text("txtAmount"), "12,70");
    user.type("5"); // the whole text was selected
    EXPECT_EQ(text("txtDate"), "5");
    user.type(".1.25");
    press(Key::tab);
}

TEST_F(DemoFormOnWindows, PastesAndCutsAsTheBoxAllows) {
    const struct {
        const char* rule;
        const char* box;
        const char* pasted;
        const char* shown;
    } cases[] = {
        {"a box of one line has no line ends", "txtName", "zwei\r\nZeilen", "zweiZeilen"},
        {"no more than fits", "txtName", "1234567890123456789012345678901234",
         "123456789012345678901234567890"},
        {"grouping is not typed", "txtAmount", "1.234,50", "1234,50"},
        {"line ends where there are several lines", "txtNotes", "a\nb", "a\r\nb"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.rule);
        if (row.box == std::string{"txtNotes"}) clickTab(1);
        goTo(row.box);
        ctrl('A');
        copyToClipboard(row.pasted);
        ctrl('V');
        EXPECT_EQ(text(row.box), row.shown);
    }
    ctrl('A');
    ctrl('X');
    EXPECT_EQ(text("txtNotes"), "");
    user.key({.key = Key::enter, .ctrl = true});
    EXPECT_EQ(text("txtNotes"), "\r\n");
    goTo("txtLocked");
    ctrl('V');
    EXPECT_EQ(text("txtLocked"), "M. Weiß, 03.02.2024");
}

TEST_F(DemoFormOnWindows, CtrlAloneF4AndTheSmallButtonPick) {
    const auto pickThird = [&] {
        ASSERT_TRUE(isOpen(user, "DemoPicker"));
        HWND below = GetWindow(user.top(), GW_OWNER);
        EXPECT_EQ(WindowsUser::nameOf(below), "DemoForm");
        EXPECT_FALSE(IsWindowEnabled(below));
        EXPECT_EQ(user.focused(), "txtSearch");
        press(Key::tab);
        user.key({.key = Key::end, .ctrl = true});
        press(Key::enter);
        ASSERT_TRUE(isOpen(user, "DemoForm"));
        EXPECT_EQ(text("txtKunde"), "Zimmerei Bär");
        EXPECT_EQ(user.focused(), "txtKunde");
        user.type("x");
        EXPECT_EQ(text("txtKunde"), "x");
    };
    goTo("txtKunde");
    ctrl('C');
    user.withCtrl([&] { user.wheel(user.control("txtKunde"), -WHEEL_DELTA); });
    user.withCtrl([&] { user.click(user.top(), 1, 1); }); // on free ground
    EXPECT_EQ(WindowsUser::nameOf(user.top()), "DemoForm");
    press(Key::ctrl);
    pickThird();
    press(Key::f4);
    pickThird();
    goTo("txtName");
    user.click(GetWindow(user.control("txtKunde"), GW_HWNDNEXT));
    pickThird();
    press(Key::f4);
    ASSERT_TRUE(isOpen(user, "DemoPicker"));
    press(Key::escape);
    ASSERT_TRUE(isOpen(user, "DemoForm"));
}

TEST_F(DemoFormOnWindows, LeavingCanBeRefused) {
    const auto refused = [&] {
        answer("Kein gültiges Datum: 99", ui::Answer::ok);
        EXPECT_EQ(user.focused(), "txtDate");
        EXPECT_EQ(text("txtDate"), "99");
        EXPECT_EQ(user.message(), nullptr);
    };
    goTo("txtDate");
    user.type("99");
    press(Key::tab);
    refused();
    click("btnQuestion");
    refused();
    click("txtName");
    refused();
    click("lstSorts");
    refused();
    clickTab(1);
    refused();
    EXPECT_TRUE(IsWindowVisible(user.control("grdLines")));
    EXPECT_EQ(WindowsUser::errorOf(user.control("txtDate")), "TT.MM.JJJJ");
    user.type("1.2.25");
    press(Key::tab);
    EXPECT_EQ(WindowsUser::errorOf(user.control("txtDate")), "") << "it is right";
}

TEST_F(DemoFormOnWindows, WhatABoxDoesNotTakeIsToldAndCtrlZUndoesInOneGo) {
    goTo("txtAmount");
    user.type("12x");
    EXPECT_NE(WindowsUser::hintOf(user.control("txtAmount")).find("Hier passt eine Zahl bis"),
              std::string::npos);
    user.type(",5");
    EXPECT_EQ(WindowsUser::hintOf(user.control("txtAmount")), "");
    EXPECT_EQ(text("txtAmount"), "12,5");
    ctrl('Z');
    EXPECT_EQ(text("txtAmount"), "");
    goTo("txtName");
    copyToClipboard(std::string(40, 'x'));
    ctrl('V');
    EXPECT_EQ(text("txtName"), std::string(30, 'x'));
    EXPECT_EQ(WindowsUser::hintOf(user.control("txtName")),
              "Nicht alles passt: 30 von 40 Zeichen übernommen");
}

TEST_F(DemoFormOnWindows, TheStatusBarSaysWhatWasDoneAndItsOfferIsPressed) {
    goTo("txtKunde");
    user.type("Maier");
    click("btnDelete");
    EXPECT_EQ(text("status"), "Kunde entfernt");
    EXPECT_EQ(text("txtKunde"), "");
    alt('R');
    EXPECT_EQ(text("txtKunde"), "Maier");
    EXPECT_EQ(text("status"), "");
    click("btnDelete");
    click("statusAction");
    EXPECT_EQ(text("txtKunde"), "Maier");
    EXPECT_EQ(user.focused(), "btnDelete") << "the offer never has the focus";
    EXPECT_ANY_THROW(user.control("statusAction"));
}

TEST_F(DemoFormOnWindows, AccessKeysAndMessages) {
    alt('F');
    answer("gespeichert werden?", ui::Answer::no);
    EXPECT_EQ(text("txtState"), "Antwort 7");
    alt('D');
    EXPECT_EQ(user.focused(), "txtDate");
    alt('A');
    EXPECT_EQ(user.focused(), "cboType");
    alt('S');
    EXPECT_EQ(text("chkClosed"), "ja");
    EXPECT_EQ(user.focused(), "chkClosed");
    press(Key::space);
    EXPECT_EQ(text("chkClosed"), "nein");
    click("chkClosed");
    clickTab(1);
    EXPECT_FALSE(IsWindowEnabled(user.control("txtNotes")));
}

TEST_F(DemoFormOnWindows, ListsByKeyboardAndPointer) {
    goTo("lstSorts");
    press(Key::down);
    user.type("e");
    EXPECT_EQ(SendMessageW(user.control("lstSorts"), LB_GETCURSEL, 0, 0), 4);

    alt('A');
    HWND combo = user.control("cboType");
    press(Key::down);
    EXPECT_EQ(text("cboType"), "Einkauf Schnittholz");
    press(Key::f4);
    EXPECT_TRUE(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
    press(Key::down);
    press(Key::enter);
    EXPECT_FALSE(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(text("cboType"), "Verkauf Rundholz");
    press(Key::f4);
    press(Key::down);
    press(Key::escape);
    EXPECT_EQ(text("cboType"), "Verkauf Rundholz");
    EXPECT_EQ(WindowsUser::nameOf(user.top()), "DemoForm");

    press(Key::f4);
    press(Key::up);
    press(Key::tab); // takes what the open list stands on
    EXPECT_EQ(text("cboType"), "Einkauf Schnittholz");
    EXPECT_EQ(user.focused(), "txtWeek");

    user.click(user.control("updWeek"), 1, 4);
    EXPECT_EQ(user.focused(), "updWeek");
    EXPECT_EQ(text("txtWeek"), "15");
    press(Key::down);
    press(Key::down);
    EXPECT_EQ(text("txtWeek"), "13");
}

TEST_F(DemoFormOnWindows, TheGridHasACurrentCell) {
    user.clickRow(user.control("grdLines"), 2, false);
    EXPECT_EQ(user.focused(), "grdLines");
    EXPECT_EQ(text("grdLines"), "Vertrag 2024/017 – Holzhandel Müller 3/600, Pos.: 3");
    press(Key::right);
    press(Key::down);
    EXPECT_EQ(text("grdLines"), "Vertrag 2024/017 – Holzhandel Müller 4/600, Holzart: Fichte");
    press(Key::enter);
    EXPECT_EQ(text("txtState"), "Zeile 4");
    user.key({.key = Key::end, .ctrl = true});
    press(Key::enter);
    EXPECT_EQ(text("txtState"), "Zeile 600");
    user.clickRow(user.control("grdLines"), 42, true);
    EXPECT_EQ(text("txtState"), "Zeile 43");
    press(Key::tab);
    EXPECT_EQ(user.focused(), "lstSorts");
}

TEST_F(DemoFormOnWindows, PicturesFollowTheSystemsColours) {
    const auto pictureHas = [&](COLORREF colour) {
        ICONINFO icon{};
        GetIconInfo(
            reinterpret_cast<HICON>(SendMessageW(user.control("btnDelete"), BM_GETIMAGE, IMAGE_ICON, 0)),
            &icon);
        HDC dc = CreateCompatibleDC(nullptr);
        SelectObject(dc, icon.hbmColor);
        bool found = false;
        for (int pixel = 0; pixel < 16 * 16; ++pixel)
            found = found || GetPixel(dc, pixel % 16, pixel / 16) == colour;
        DeleteDC(dc);
        DeleteObject(icon.hbmColor);
        DeleteObject(icon.hbmMask);
        return found;
    };
    const int element = COLOR_BTNTEXT;
    const COLORREF before = GetSysColor(element);
    const COLORREF yellow = RGB(255, 255, 0);
    EXPECT_FALSE(pictureHas(yellow));
    SetSysColors(1, &element, &yellow);
    EXPECT_TRUE(eventually([&] { return pictureHas(yellow); }));
    SetSysColors(1, &element, &before);
}

TEST_F(DemoFormOnWindows, PagesOfTabs) {
    clickTab(1);
    EXPECT_EQ(user.focused(), "tabs");
    EXPECT_THROW(user.control("grdLines"), std::runtime_error);
    EXPECT_NO_THROW(user.control("txtNotes"));
    press(Key::left);
    EXPECT_NO_THROW(user.control("grdLines"));
}

TEST_F(DemoFormOnWindows, AnErrorLeavesTheScreenAsItWas) {
    user.type("Eiche");
    click("btnFail");
    answer("Die Anweisung ist fehlgeschlagen.", ui::Answer::ok);
    EXPECT_EQ(text("txtName"), "Eiche");
    click("btnSlow");
    EXPECT_EQ(user.focused(), "txtName");
}

TEST_F(DemoFormOnWindows, ClosingCanBeRefused) {
    user.type("offen");
    user.close();
    answer("verwerfen?", ui::Answer::no);
    EXPECT_EQ(user.focused(), "txtName");
    press(Key::escape);
    answer("verwerfen?", ui::Answer::yes);
    EXPECT_TRUE(eventually([&] { return IsWindowEnabled(host.owner()) != FALSE; }));
}

TEST_F(DemoFormOnWindows, ScreensOfTwoThreadsAreIndependent) {
    HostThread other{[](windows::Win32Display& display) {
        DemoForm form{display};
        display.showModal(form);
    }};
    {
        WindowsUser otherUser{other.id()};
        ASSERT_TRUE(isOpen(otherUser, "DemoForm"));
        otherUser.click(otherUser.control("btnQuestion"));
        ASSERT_TRUE(eventually([&] { return otherUser.message() != nullptr; }));
        EXPECT_EQ(user.message(), nullptr);
        user.click(user.control("chkClosed"));
        EXPECT_TRUE(eventually([&] { return text("chkClosed") == "ja"; }));
        otherUser.answer(otherUser.message(), ui::Answer::yes);
        HWND state = otherUser.control("txtState");
        EXPECT_TRUE(eventually([&] { return WindowsUser::textOf(state) == "Antwort 6"; }));
        otherUser.close();
    }
    EXPECT_TRUE(other.join().ownerEnabled);
}

} // namespace
} // namespace tellurix::tests
