#include "screens/WindowFrame.h"

#include "automation/wide.h"
#include "screens/GridView.h"
#include "screens/make_view.h"

#include <algorithm>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr DWORD frameStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

RECT workAreaFor(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

/// Moves a length of a window into the screen.
LONG inside(LONG start, LONG length, LONG from, LONG to) {
    return std::max(std::min(start, to - length), from);
}

} // namespace

WindowFrame::WindowFrame(ui::Form& form, HWND owner, const DisplayState& display)
    : form_(form),
      owner_(owner),
      display_(display),
      waiting_(owner),
      keyboard_([this](ControlView* view, ui::Event event) {
          if (view != nullptr) {
              if (auto selected = view->newSelection()) happened(std::move(*selected));
          }
          happened(std::move(event));
      }) {
    const VisualStyles styles;
    makeWindow();
    try {
        makeViews();
    } catch (...) {
        close();
        throw;
    }
}

WindowFrame::~WindowFrame() {
    close();
}

void WindowFrame::close() {
    // Windows activates another one when a window goes; the owner has to be able to be that.
    waiting_.release();
    if (owner_ != nullptr && GetActiveWindow() == window_) SetActiveWindow(owner_);
    views_.clear();
    toolTips_.reset();
    forgetName(window_);
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

void WindowFrame::makeWindow() {
    static const WindowClass made{L"TellurixWindow", &WindowFrame::procedure, CS_DBLCLKS, COLOR_3DFACE};
    const DWORD style = owner_ == nullptr ? frameStyle : frameStyle & ~static_cast<DWORD>(WS_MINIMIZEBOX);
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, made.name(), widen(form_.title()).c_str(), style,
                              CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, owner_, nullptr, moduleInstance(), nullptr);
    if (window_ == nullptr) throw std::runtime_error{"Windows could not open the window " + form_.name()};
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    setName(window_, form_.name());
    toolTips_ = std::make_unique<ToolTips>(window_);
}

void WindowFrame::makeViews() {
    views_.resize(form_.controls().size());
    // What stands nowhere in the layout floats over the rest, so it is made first.
    std::vector<ui::Control*> floating(form_.controls().begin(), form_.controls().end());
    const auto standing = [&](const auto& self, const ui::Layout& layout) -> void {
        std::erase(floating, layout.control);
        for (const ui::Layout& child : layout.children)
            self(self, child);
    };
    standing(standing, form_.layout());
    for (ui::Control* control : floating)
        views_[control->id()] = makeView(*this, *control);
    makeViews(form_.layout(), false);
}

void WindowFrame::show() {
    content_ = makePart(form_.layout(), *this);
    fitToContent();
    // Access keys and the focus are always shown: most work is done by keyboard.
    SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS), 0);
    ShowWindow(window_, SW_SHOW);
}

/// In the order of the layout, so that a label comes right before what it names; frames and tabs
/// after what stands on them, and so below it.
void WindowFrame::makeViews(const ui::Layout& layout, bool onPage) {
    const bool isContainer = layout.kind == ui::Layout::Kind::frame || layout.kind == ui::Layout::Kind::tabs;
    const auto make = [&] {
        if (layout.control == nullptr) return;
        auto view = makeView(*this, *layout.control);
        view->setOnPage(onPage);
        views_[layout.control->id()] = std::move(view);
    };
    if (!isContainer) make();
    for (const ui::Layout& child : layout.children)
        makeViews(child, onPage || layout.kind == ui::Layout::Kind::tabs);
    if (isContainer) make();
}

SIZE WindowFrame::wanted(int Extent::*which) const {
    const Room room = content_->room();
    return {room.width.*which + 2 * theme_.margin(), room.height.*which + 2 * theme_.margin()};
}

SIZE WindowFrame::sizeAround(SIZE content) const {
    RECT rect{0, 0, content.cx, content.cy};
    // The scroll bars that it may have at the moment stand inside.
    AdjustWindowRectEx(&rect, frameStyle, FALSE, 0);
    return {widthOf(rect), heightOf(rect)};
}

void WindowFrame::fitToContent() {
    const RECT work = workAreaFor(owner_ != nullptr ? owner_ : window_);
    const SIZE size = sizeAround(wanted(&Extent::preferred));
    const LONG width = std::min<LONG>(std::max<LONG>(size.cx, theme_.scaled(240)), widthOf(work));
    const LONG height = std::min<LONG>(size.cy, heightOf(work));
    RECT middle = work;
    if (owner_ != nullptr && IsWindowVisible(owner_) && !IsIconic(owner_)) GetWindowRect(owner_, &middle);
    const LONG x = inside((middle.left + middle.right - width) / 2, width, work.left, work.right);
    const LONG y = inside((middle.top + middle.bottom - height) / 2, height, work.top, work.bottom);
    SetWindowPos(window_, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    arrange();
}

void WindowFrame::growToContent() {
    if (IsZoomed(window_)) return;
    const RECT work = workAreaFor(window_);
    const SIZE size = sizeAround(wanted(sizedByUser_ ? &Extent::minimum : &Extent::preferred));
    RECT now{};
    GetWindowRect(window_, &now);
    const LONG width = std::max<LONG>(widthOf(now), std::min<LONG>(size.cx, widthOf(work)));
    const LONG height = std::max<LONG>(heightOf(now), std::min<LONG>(size.cy, heightOf(work)));
    if (width == widthOf(now) && height == heightOf(now)) return;
    SetWindowPos(window_, nullptr, inside(now.left, width, work.left, work.right),
                 inside(now.top, height, work.top, work.bottom), width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowFrame::arrange() {
    if (content_ == nullptr) return;
    const SIZE least = wanted(&Extent::minimum);
    const auto setBar = [this](int bar, LONG length, LONG page, LONG& position) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = static_cast<int>(length - 1);
        info.nPage = static_cast<UINT>(page);
        position = std::clamp<LONG>(position, 0, std::max<LONG>(length - page, 0));
        info.nPos = static_cast<int>(position);
        SetScrollInfo(window_, bar, &info, TRUE);
    };
    RECT client{};
    GetClientRect(window_, &client);
    setBar(SB_VERT, least.cy, client.bottom, scrolled_.y);
    GetClientRect(window_, &client);
    setBar(SB_HORZ, least.cx, client.right, scrolled_.x);
    GetClientRect(window_, &client);
    RECT place{0, 0, std::max(client.right, least.cx), std::max(client.bottom, least.cy)};
    InflateRect(&place, -theme_.margin(), -theme_.margin());
    OffsetRect(&place, static_cast<int>(-scrolled_.x), static_cast<int>(-scrolled_.y));
    if (!roomChanged_ && EqualRect(&place, &arranged_)) return;
    roomChanged_ = false;
    arranged_ = place;
    content_->place(place);
    // Moved controls leave their pictures behind where several lie above each other.
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void WindowFrame::scrollTo(int x, int y) {
    scrolled_ = {x, y};
    arrange();
}

void WindowFrame::scroll(int bar, WORD request) {
    SCROLLINFO now{};
    now.cbSize = sizeof now;
    now.fMask = SIF_ALL;
    GetScrollInfo(window_, bar, &now);
    int to = now.nPos;
    if (request == SB_LINEUP) to -= theme_.lineHeight();
    if (request == SB_LINEDOWN) to += theme_.lineHeight();
    if (request == SB_PAGEUP) to -= static_cast<int>(now.nPage);
    if (request == SB_PAGEDOWN) to += static_cast<int>(now.nPage);
    if (request == SB_THUMBTRACK || request == SB_THUMBPOSITION) to = now.nTrackPos;
    if (to == now.nPos) return;
    if (bar == SB_VERT) {
        scrollTo(scrolled_.x, to);
    } else {
        scrollTo(to, scrolled_.y);
    }
}

/// On a screen that is too small for the window, the control that has the focus is never out of sight.
void WindowFrame::reveal(const ControlView& view) {
    RECT client{};
    GetClientRect(window_, &client);
    const RECT& rect = view.rect();
    const auto shift = [](LONG start, LONG end, LONG room) {
        return start < 0 ? start : end > room ? std::min(end - room, start) : 0;
    };
    const LONG x = shift(rect.left, rect.right, client.right);
    const LONG y = shift(rect.top, rect.bottom, client.bottom);
    if (x != 0 || y != 0) scrollTo(static_cast<int>(scrolled_.x + x), static_cast<int>(scrolled_.y + y));
}

void WindowFrame::draw() {
    if (form_.titleDirty()) {
        SetWindowTextW(window_, widen(form_.title()).c_str());
        form_.titleDrawn();
    }
    for (const auto& view : views_)
        view->update();
    if (content_ == nullptr) {
        show();
    } else if (roomChanged_) {
        growToContent();
        arrange();
    }
}

void WindowFrame::placeFocus() {
    if (GetActiveWindow() != window_) return;
    const ui::Control* focused = form_.focused();
    if (focused == nullptr || !focused->usable()) {
        if (GetFocus() != window_) SetFocus(window_);
        return;
    }
    ControlView& view = *views_[focused->id()];
    if (GetFocus() == view.handle()) return;
    SetFocus(view.handle());
    reveal(view);
}

void WindowFrame::happened(ui::Event event) {
    if (!listening_) return;
    events_.push_back(std::move(event));
    wake();
}

void WindowFrame::failed(std::exception_ptr error) {
    failure_ = error;
    wake();
}

/// A message that another thread sent is dealt with inside the waiting for the next posted one.
void WindowFrame::wake() {
    PostMessageW(window_, WM_NULL, 0, 0);
}

ui::Event WindowFrame::takeEvent() {
    ui::Event event = std::move(events_.front());
    events_.pop_front();
    return event;
}

void WindowFrame::throwFailure() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

bool WindowFrame::isFocused(const ControlView& view) const {
    return form_.focused() == &view.control();
}

bool WindowFrame::keyboard(ControlView& view, UINT message, WPARAM wParam, LPARAM lParam) {
    return keyboard_.handle(&view, message, wParam, lParam);
}

LRESULT CALLBACK WindowFrame::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* frame = reinterpret_cast<WindowFrame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (frame == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    try {
        return frame->handle(message, wParam, lParam);
    } catch (...) {
        frame->failed(std::current_exception());
        return 0;
    }
}

ControlView* WindowFrame::viewWith(HWND window) const {
    for (const auto& view : views_)
        if (view != nullptr && view->has(window)) return view.get();
    return nullptr;
}

LRESULT WindowFrame::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE:
        happened(ui::CloseEvent{});
        return 0;
    case WM_ACTIVATE:
        keyboard_.forgetCtrl();
        if (LOWORD(wParam) != WA_INACTIVE) placeFocus();
        return 0;
    case WM_SETFOCUS:
        placeFocus();
        return 0;
    case WM_SIZE:
        arrange();
        return 0;
    case WM_SIZING:
        sizedByUser_ = true;
        break;
    case WM_GETMINMAXINFO:
        if (content_ != nullptr) {
            const RECT work = workAreaFor(window_);
            const SIZE least = sizeAround(wanted(&Extent::minimum));
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {
                std::min<LONG>(least.cx, widthOf(work)), std::min<LONG>(least.cy, heightOf(work))};
        }
        return 0;
    case WM_COMMAND: {
        HWND sender = reinterpret_cast<HWND>(lParam);
        if (ControlView* view = viewWith(sender)) {
            if (sender == view->handle()) {
                view->notified(HIWORD(wParam), nullptr);
            } else {
                view->partNotified(HIWORD(wParam));
            }
        }
        return 0;
    }
    case WM_NOTIFY: {
        auto* details = reinterpret_cast<NMHDR*>(lParam);
        if (ControlView* view = viewWith(details->hwndFrom)) view->notified(details->code, details);
        return 0;
    }
    case WM_PARENTNOTIFY:
        keyboard_.forgetCtrl();
        break;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
        if (const ControlView* view = viewWith(reinterpret_cast<HWND>(lParam))) {
            return reinterpret_cast<LRESULT>(view->colour(reinterpret_cast<HDC>(wParam)));
        }
        break;
    case WM_SETCURSOR:
        if (display_.busy == 0) break;
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return TRUE;
    case WM_VSCROLL:
    case WM_HSCROLL:
        if (lParam == 0) scroll(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        scroll(SB_VERT, static_cast<short>(HIWORD(wParam)) > 0 ? SB_LINEUP : SB_LINEDOWN);
        return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
    case WM_CHAR:
    case WM_SYSCHAR:
        if (keyboard_.handle(nullptr, message, wParam, lParam)) return 0;
        break;
    default:
        break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

} // namespace tellurix::windows
