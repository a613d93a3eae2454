#include "display/win32/controls/TextBoxView.h"

#include "com/automation/wide.h"
#include "display/win32/native/clipboard.h"
#include "display/win32/native/shown_text.h"
#include "module/base/text.h"

#include <algorithm>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr wchar_t selectAllCharacter = 1; // Ctrl+A
constexpr wchar_t undoCharacter = 26;     // Ctrl+Z
constexpr UINT_PTR flashTimer = 1;
constexpr UINT flashTime = 250; ///< milliseconds
constexpr int leastWidth = 10;  ///< in average characters: a date can be read whole

} // namespace

TextBoxView::TextBoxView(ViewHost& host, ui::TextBox& box)
    : ControlView(host, box), box_(box), hint_(host.theme(), host.window()), refusals_(box.refusals()) {
    make();
}

DWORD TextBoxView::wantedStyle() const {
    DWORD style = WS_TABSTOP | ES_LEFT;
    if (box_.rightAligned()) style |= ES_RIGHT;
    style |= severalLines() ? DWORD{ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL} : DWORD{ES_AUTOHSCROLL};
    return style;
}

void TextBoxView::make() {
    style_ = wantedStyle();
    create(L"EDIT", style_, WS_EX_CLIENTEDGE);
}

bool TextBoxView::has(HWND window) const {
    return ControlView::has(window) || window == pick_ || hint_.has(window);
}

Room TextBoxView::measure() const {
    const int width =
        box_.width() * theme().characterWidth() + (severalLines() ? theme().scaled(28) : theme().textEdges());
    const int pick = box_.onPick ? theme().lineHeight() : 0;
    const int extraLines = (box_.lines() - 1) * theme().textHeight();
    const int small = std::min(width, leastWidth * theme().characterWidth() + theme().textEdges());
    return {{small + pick, width + pick},
            {theme().lineHeight() + (extraLines > 0 ? theme().textHeight() : 0),
             theme().lineHeight() + extraLines}};
}

void TextBoxView::placeControl(const RECT& rect) {
    RECT text = rect;
    if (pick_ != nullptr && box_.onPick) text.right -= theme().lineHeight();
    if (isAt(text)) return;
    if (pick_ != nullptr) move(pick_, {text.right, rect.top, rect.right, rect.bottom});
    ControlView::placeControl(text);
    // What can be seen of a text depends on the room for it.
    if (selection() == known_ || !host().isFocused(*this)) showSelection();
}

void TextBoxView::draw() {
    if (wantedStyle() != style_) {
        // These styles cannot be changed in a control that exists.
        const HWND above = GetWindow(handle(), GW_HWNDPREV);
        const RECT where = rect();
        destroy();
        make();
        move(handle(), where);
        SetWindowPos(handle(), above == nullptr ? HWND_TOP : above, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    SendMessageW(handle(), EM_SETLIMITTEXT, static_cast<WPARAM>(box_.maxLength()), 0);
    SendMessageW(handle(), EM_SETREADONLY, box_.locked(), 0);
    showText(shownText(box_.text(), severalLines()));
    showSelection();
    InvalidateRect(handle(), nullptr, FALSE);
    drawPick();
    drawRefusal();
}

void TextBoxView::drawRefusal() {
    hint_.show(box_.refusal(), handle());
    if (box_.refusals() == std::exchange(refusals_, box_.refusals()) || box_.refusal().empty()) return;
    setFlashing(true);
    SetTimer(handle(), flashTimer, flashTime, nullptr);
}

void TextBoxView::showSelection() {
    known_ = {box_.selectionStart(), box_.selectionLength()};
    // A box that nobody works in shows the beginning of its text.
    const bool focused = host().isFocused(*this);
    const int start = focused ? shownUnits(box_.text(), known_.start, severalLines()) : 0;
    const int end = focused ? shownUnits(box_.text(), known_.start + known_.length, severalLines()) : 0;
    const bool all = start == 0 && end == GetWindowTextLengthW(handle());
    // The same goes for one whose whole text is selected, because somebody has just come to it.
    if (all) {
        SendMessageW(handle(), EM_SETSEL, 0, 0);
        SendMessageW(handle(), EM_SCROLLCARET, 0, 0);
    }
    SendMessageW(handle(), EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!all) SendMessageW(handle(), EM_SCROLLCARET, 0, 0);
}

void TextBoxView::drawPick() {
    if (!box_.onPick || pick_ != nullptr) return;
    pick_ = createPart(L"BUTTON", BS_PUSHBUTTON, 0, L"\u2026");
    SetWindowPos(pick_, handle(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TextBoxView::enable(bool visible, bool enabled) {
    ControlView::enable(visible, enabled);
    if (pick_ == nullptr) return;
    ControlView::enable(pick_, visible && box_.onPick, enabled && !box_.locked());
    host().setToolTip(pick_, host().display().language == "en" ? "Choose (F4)" : "Auswählen (F4)");
}

TextBoxView::Selection TextBoxView::selection() const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const int first = charactersBefore(box_.text(), static_cast<int>(start), severalLines());
    return {first, charactersBefore(box_.text(), static_cast<int>(end), severalLines()) - first};
}

std::optional<ui::Event> TextBoxView::newSelection() {
    const Selection now = selection();
    if (now == known_) return std::nullopt;
    known_ = now;
    return ui::SelectionEvent{&box_, now.start, now.length};
}

void TextBoxView::notified(UINT code, NMHDR*) {
    if (code == EN_CHANGE) edited();
}

void TextBoxView::partNotified(UINT code) {
    if (code == BN_CLICKED) tell(ui::PickEvent{&box_});
}

void TextBoxView::edited() {
    const std::wstring now = windowText(handle());
    if (now == shownText(box_.text(), severalLines())) return;
    markStale();
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    std::string text = editedText(now, severalLines());
    const int first = charactersBefore(text, static_cast<int>(start), severalLines());
    const int last = charactersBefore(text, static_cast<int>(end), severalLines());
    known_ = {first, last - first};
    tell(ui::TextEditedEvent{&box_, std::move(text), first, last - first});
}

void TextBoxView::paste() {
    if (!box_.changeable()) return;
    const std::string text = editedText(clipboardText(handle()), severalLines());
    if (text.empty()) return;
    const auto characters = static_cast<std::size_t>(base::decodeUtf8(text).size());
    const int kept = static_cast<int>(base::decodeUtf8(box_.text()).size()) - selection().length;
    const bool fits = box_.maxLength() == 0 || characters + static_cast<std::size_t>(kept) <=
                                                   static_cast<std::size_t>(box_.maxLength());
    // The native control would cut a text that is too long without a word.
    if (box_.filtered() || !fits) {
        if (auto selected = newSelection()) tell(*selected);
        tell(ui::PasteEvent{&box_, text});
    } else {
        // The native paste would end at the first line end.
        SendMessageW(handle(), EM_REPLACESEL, TRUE,
                     reinterpret_cast<LPARAM>(shownText(text, severalLines()).c_str()));
    }
}

LRESULT TextBoxView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
        // A click into a box goes to it, and going to a box selects its text.
        if (host().isFocused(*this) && GetFocus() == handle()) break;
        tell(ui::FocusEvent{&box_});
        return 0;
    case WM_PASTE:
        paste();
        return 0;
    case WM_UNDO:
    case EM_UNDO:
        // The native one would bring back text past the filter.
        if (!box_.filtered()) break;
        tell(ui::KeyDownEvent{{.key = ui::Key{'Z'}, .ctrl = true}});
        return FALSE;
    case WM_TIMER:
        if (wParam != flashTimer) break;
        KillTimer(handle(), flashTimer);
        setFlashing(false);
        return 0;
    case WM_CHAR:
        if (wParam == selectAllCharacter) {
            SendMessageW(handle(), EM_SETSEL, 0, -1);
            return 0;
        }
        if (wParam == undoCharacter && box_.filtered()) return 0;
        break;
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS | DLGC_HASSETSEL;
    default:
        break;
    }
    return native(message, wParam, lParam);
}

HBRUSH TextBoxView::colourOf(HWND window, HDC dc) const {
    return hint_.has(window) ? TypingHint::colour(dc) : ControlView::colourOf(window, dc);
}

HBRUSH TextBoxView::colour(HDC dc) const {
    const bool open = box_.changeable();
    SetTextColor(dc, !box_.warning().empty() ? theme().warningColour()
                     : box_.usable()         ? GetSysColor(COLOR_WINDOWTEXT)
                                             : GetSysColor(COLOR_GRAYTEXT));
    SetBkColor(dc, GetSysColor(open ? COLOR_WINDOW : COLOR_3DFACE));
    return GetSysColorBrush(open ? COLOR_WINDOW : COLOR_3DFACE);
}

} // namespace tellurix::windows
