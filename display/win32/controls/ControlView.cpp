#include "display/win32/controls/ControlView.h"

#include <algorithm>
#include <stdexcept>

namespace tellurix::windows {

ControlView::~ControlView() {
    destroy();
}

HBRUSH ControlView::background() const {
    return onPage_ ? theme().pageBrush() : GetSysColorBrush(COLOR_3DFACE);
}

HBRUSH ControlView::colour(HDC dc) const {
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    SetBkColor(dc, onPage_ ? theme().pageColour() : GetSysColor(COLOR_3DFACE));
    return background();
}

HBRUSH ControlView::colourOf(HWND window, HDC dc) const {
    if (!error_.has(window)) return colour(dc);
    const HBRUSH behind = ControlView::colour(dc);
    SetTextColor(dc, theme().warningColour());
    return behind;
}

HWND ControlView::createPart(const wchar_t* windowClass, DWORD style, DWORD extendedStyle,
                             const std::wstring& text) {
    HWND made = CreateWindowExW(extendedStyle, windowClass, text.c_str(), WS_CHILD | WS_CLIPSIBLINGS | style,
                                0, 0, 0, 0, host_.window(), nullptr, moduleInstance(), nullptr);
    if (made == nullptr) throw std::runtime_error{"Windows could not make the control " + control_.name()};
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(theme().font()), FALSE);
    return made;
}

void ControlView::create(const wchar_t* windowClass, DWORD style, DWORD extendedStyle) {
    handle_ = createPart(windowClass, style, extendedStyle, {});
    setName(handle_, control_.name());
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    nativeProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlView::procedure)));
}

void ControlView::destroy() {
    if (handle_ == nullptr) return;
    host_.setToolTip(handle_, {});
    DestroyWindow(handle_);
}

void ControlView::place(const RECT& rect) {
    table_.reset();
    RECT own = rect;
    const int beside = static_cast<int>(error_.size().cx);
    if (widthOf(rect) > beside + theme().lineHeight()) own.right -= beside;
    error_.place({own.right, rect.top, rect.right, rect.bottom});
    placeControl(own);
}

void ControlView::placeOver(const RECT& cell, const RECT& table) {
    table_ = table;
    placeControl(cell);
    placeErrorAtCell();
    showErrorSign();
}

void ControlView::placeErrorAtCell() {
    const SIZE size = error_.size();
    RECT sign{rect_.left, rect_.bottom, rect_.left + size.cx, rect_.bottom + size.cy};
    if (sign.bottom > table_->bottom) OffsetRect(&sign, 0, rect_.top - sign.bottom);
    if (sign.right > table_->right) OffsetRect(&sign, table_->right - sign.right, 0);
    error_.place(sign);
}

void ControlView::showErrorSign() {
    const bool scrolledAway = table_ && IsRectEmpty(&rect_) != FALSE;
    error_.setVisible(control_.showing() && !scrolledAway);
}

void ControlView::placeControl(const RECT& rect) {
    if (isAt(rect)) return;
    rect_ = rect;
    move(handle_, rect);
}

void ControlView::move(HWND window, const RECT& rect) {
    SetWindowPos(window, nullptr, rect.left, rect.top, widthOf(rect), heightOf(rect),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void ControlView::enable(HWND window, bool visible, bool enabled) {
    if ((IsWindowEnabled(window) != FALSE) != enabled) EnableWindow(window, enabled);
    const bool seen = (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
    if (seen != visible) ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
}

void ControlView::enable(bool visible, bool enabled) {
    enable(handle_, visible, enabled);
}

void ControlView::drawError() {
    const bool had = error_.shown();
    error_.show(control_.error(), handle_);
    if (table_) placeErrorAtCell();
    if (had != error_.shown()) RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void ControlView::setFlashing(bool flashing) {
    flashing_ = flashing;
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void ControlView::frameError() const {
    if (!error_.shown() && !flashing_) return;
    RECT frame{};
    GetWindowRect(handle_, &frame);
    OffsetRect(&frame, static_cast<int>(-frame.left), static_cast<int>(-frame.top));
    const GdiObject<HBRUSH> brush{CreateSolidBrush(theme().warningColour())};
    HDC dc = GetWindowDC(handle_);
    for (int line = 0; line < 2; ++line) {
        FrameRect(dc, &frame, brush);
        InflateRect(&frame, -1, -1);
    }
    ReleaseDC(handle_, dc);
}

Room ControlView::measureWithError() const {
    Room room = measure();
    const SIZE beside = error_.size();
    room.width = room.width + Extent::fixed(beside.cx);
    room.height.minimum = std::max<int>(room.height.minimum, beside.cy);
    room.height.preferred = std::max<int>(room.height.preferred, beside.cy);
    return room;
}

void ControlView::update() {
    if (control_.dirty() || stale_ || new_) {
        draw();
        drawError();
        host_.setToolTip(handle_, tip());
        control_.drawn();
        stale_ = new_ = false;
        const Room now = measureWithError();
        if (now != room_ || control_.visible() != shown_) host_.roomChanged();
        room_ = now;
        shown_ = control_.visible();
    }
    // What is around a control decides too, and that does not make it dirty.
    enable(control_.showing(), control_.usable());
    showErrorSign();
}

void ControlView::showText(const std::wstring& text) {
    if (windowText(handle_) != text) SetWindowTextW(handle_, text.c_str());
}

void ControlView::tell(ui::Event event) {
    told_ = true;
    host_.happened(std::move(event));
}

LRESULT ControlView::native(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(nativeProcedure_, handle_, message, wParam, lParam);
}

LRESULT ControlView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return native(message, wParam, lParam);
}

LRESULT CALLBACK ControlView::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& view = *reinterpret_cast<ControlView*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        return view.dispatch(message, wParam, lParam);
    } catch (...) {
        view.host_.failed(std::current_exception());
        return 0;
    }
}

LRESULT ControlView::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    if (host_.keyboard(*this, message, wParam, lParam)) return 0;
    switch (message) {
    case WM_NCDESTROY: {
        forgetName(handle_);
        const LRESULT result = native(message, wParam, lParam);
        handle_ = nullptr;
        return result;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        return pressed(message, wParam, lParam);
    case WM_CAPTURECHANGED:
        pressing_ = false;
        break;
    case WM_SETFOCUS: {
        const LRESULT result = onMessage(message, wParam, lParam);
        if (!pressing_ && !host_.isFocused(*this)) tell(ui::FocusEvent{&control_});
        return result;
    }
    case WM_PAINT:
    case WM_NCPAINT: {
        const LRESULT result = onMessage(message, wParam, lParam);
        frameError();
        return result;
    }
    default:
        break;
    }
    return onMessage(message, wParam, lParam);
}

LRESULT ControlView::pressed(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN) {
        pressing_ = true;
        told_ = false;
    }
    const LRESULT result = onMessage(message, wParam, lParam);
    if (message == WM_LBUTTONDOWN && GetCapture() == handle_) return result;
    pressing_ = false;
    if (GetFocus() == handle_ && !told_ && !host_.isFocused(*this)) tell(ui::FocusEvent{&control_});
    return result;
}

} // namespace tellurix::windows
