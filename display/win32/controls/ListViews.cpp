#include "display/win32/controls/ListViews.h"

#include "com/automation/wide.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

constexpr int openRows = 12; ///< of a drop-down list

} // namespace

void ItemView::draw() {
    if (list_.itemsDirty() || isNew()) {
        SendMessageW(handle(), WM_SETREDRAW, FALSE, 0);
        SendMessageW(handle(), messages_.clear, 0, 0);
        for (const auto& item : list_.items()) {
            SendMessageW(handle(), messages_.add, 0, reinterpret_cast<LPARAM>(widen(item.text).c_str()));
        }
        SendMessageW(handle(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(handle(), nullptr, TRUE);
    }
    if (SendMessageW(handle(), messages_.selected, 0, 0) != list_.selected()) {
        SendMessageW(handle(), messages_.select, static_cast<WPARAM>(list_.selected()), 0);
    }
}

void ItemView::tellSelection() {
    const auto index = static_cast<int>(SendMessageW(handle(), messages_.selected, 0, 0));
    if (index == list_.selected()) return;
    markStale();
    tell(ui::SelectEvent{&list_, index, 0});
}

ComboBoxView::ComboBoxView(ViewHost& host, ui::ItemList& list)
    : ItemView(host, list, {CB_ADDSTRING, CB_RESETCONTENT, CB_SETCURSEL, CB_GETCURSEL}) {
    create(L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS);
    RECT closed{};
    GetWindowRect(handle(), &closed);
    borders_ = heightOf(closed) - static_cast<int>(SendMessageW(handle(), CB_GETITEMHEIGHT, ~WPARAM{0}, 0));
    SendMessageW(handle(), CB_SETITEMHEIGHT, ~WPARAM{0}, theme().lineHeight() - borders_);
}

Room ComboBoxView::measure() const {
    const int width = list().width() * theme().characterWidth() + theme().listEdges();
    const int small = std::min(width, 8 * theme().characterWidth() + theme().listEdges());
    return {{small, width}, Extent::fixed(theme().lineHeight())};
}

void ComboBoxView::placeControl(const RECT& rect) {
    if (isAt(rect)) return;
    // The height that a combo box is given is that with its list open.
    RECT open = rect;
    open.bottom += openRows * theme().itemHeight();
    ControlView::placeControl(open);
    rememberPlace(rect);
}

bool ComboBoxView::hasOpenList() const {
    return SendMessageW(handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

void ComboBoxView::closeList() {
    tellSelection();
    SendMessageW(handle(), CB_SHOWDROPDOWN, FALSE, 0);
}

void ComboBoxView::notified(UINT code, NMHDR*) {
    switch (code) {
    case CBN_DROPDOWN:
        cancelled_ = false;
        break;
    case CBN_SELENDCANCEL:
        cancelled_ = true;
        break;
    case CBN_CLOSEUP:
        // Moving in the open list is no choice yet; closing it is one.
        if (cancelled_) {
            markStale();
            tell(ui::FocusEvent{&list()});
        } else {
            tellSelection();
        }
        break;
    case CBN_SELCHANGE:
        if (!hasOpenList()) tellSelection();
        break;
    default:
        break;
    }
}

ListBoxView::ListBoxView(ViewHost& host, ui::ListBox& list)
    : ItemView(host, list, {LB_ADDSTRING, LB_RESETCONTENT, LB_SETCURSEL, LB_GETCURSEL}), listBox_(list) {
    create(L"LISTBOX", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
           WS_EX_CLIENTEDGE);
    SendMessageW(handle(), LB_SETITEMHEIGHT, 0, theme().itemHeight());
}

Room ListBoxView::measure() const {
    const int width = list().width() * theme().characterWidth() + theme().listEdges();
    const int row = theme().itemHeight();
    const int rows = listBox_.rows();
    const int border = theme().scaled(6);
    return {{std::min(width, 16 * theme().characterWidth()), width},
            {std::min(rows, 3) * row + border, rows * row + border}};
}

void ListBoxView::notified(UINT code, NMHDR*) {
    if (code == LBN_SELCHANGE) tellSelection();
    if (code == LBN_DBLCLK) tell(ui::DoubleClickEvent{&list()});
}

} // namespace tellurix::windows
