#include "display/win32/WindowFrame.h"

#include "com/automation/wide.h"
#include "display/win32/controls/ButtonView.h"
#include "display/win32/controls/make_view.h"
#include "display/win32/grid/GridView.h"

#include <algorithm>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr DWORD frameStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

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
    if (window_ == nullptr) return;
    if (owner_ != nullptr && GetActiveWindow() == window_) SetActiveWindow(owner_);
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
    status_.emplace(window_, theme_);
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
    content_ = std::make_unique<WindowContent>(window_, frameStyle, theme_, status_->height(),
                                               makePart(form_.layout(), *this));
    content_->fit(owner_);
    // Access keys and the focus are always shown: most work is done by keyboard.
    SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS), 0);
    ShowWindow(window_, SW_SHOW);
}

/// In the order of the layout, so that a label comes right before what it names; frames and tabs
/// after what stands on them, and so below it.
void WindowFrame::makeViews(const ui::Layout& layout, bool onPage) {
    const bool isContainer = layout.encloses();
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

void WindowFrame::draw() {
    if (lost()) return;
    const SystemLook look;
    if (form_.titleDirty()) {
        SetWindowTextW(window_, widen(form_.title()).c_str());
        form_.titleDrawn();
    }
    if (form_.status().dirty()) {
        status_->draw(form_.status());
        form_.status().drawn();
    }
    for (const auto& view : views_)
        view->update();
    drawPrimary();
    if (content_ == nullptr) {
        show();
    } else {
        content_->update();
    }
}

/// The way on is the window's default button.
void WindowFrame::drawPrimary() {
    const ui::Button* now = form_.primaryButton();
    if (now == primary_) return;
    const auto mark = [this](const ui::Button* button, bool primary) {
        if (button != nullptr) static_cast<ButtonView&>(*views_[button->id()]).setPrimary(primary);
    };
    mark(primary_, false);
    mark(now, true);
    primary_ = now;
}

void WindowFrame::placeFocus() {
    if (ending_ || GetActiveWindow() != window_) return;
    const ui::Control* focused = form_.focused();
    if (focused == nullptr || !focused->usable()) {
        if (GetFocus() != window_) SetFocus(window_);
        return;
    }
    ControlView& view = *views_[focused->id()];
    if (GetFocus() == view.handle()) return;
    SetFocus(view.handle());
    const SystemLook look;
    content_->reveal(view.rect());
}

void WindowFrame::happened(ui::Event event) {
    if (!ending_) events_.put(std::move(event));
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
        frame->events_.failed(std::current_exception());
        return 0;
    }
}

/// Only windows without a parent are told by the system. Sizes stay those of the moment it was opened.
void WindowFrame::lookChanged(UINT message, WPARAM wParam, LPARAM lParam) {
    theme_.readColours();
    for (const auto& view : views_)
        if (view != nullptr) SendMessageW(view->handle(), message, wParam, lParam);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

ControlView* WindowFrame::viewWith(HWND window) const {
    for (const auto& view : views_)
        if (view != nullptr && window != nullptr && view->has(window)) return view.get();
    return nullptr;
}

LRESULT WindowFrame::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (keyboard_.handle(nullptr, message, wParam, lParam)) return 0;
    switch (message) {
    case WM_CLOSE:
        happened(ui::CloseEvent{});
        return 0;
    case WM_DESTROY:
        ending_ = true;
        if (status_) status_->forget();
        break;
    case WM_NCDESTROY:
        // Its controls and tool tips have gone before it.
        forgetName(window_);
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        if (events_.listening()) EventQueue::wake();
        return DefWindowProcW(std::exchange(window_, nullptr), message, wParam, lParam);
    case WM_ACTIVATE:
        keyboard_.forgetCtrl();
        if (LOWORD(wParam) != WA_INACTIVE) placeFocus();
        return 0;
    case WM_SETFOCUS:
        placeFocus();
        return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
        lookChanged(message, wParam, lParam);
        break;
    case WM_SETCURSOR:
        if (display_.busy == 0) break;
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return TRUE;
    default:
        break;
    }
    if (const auto answer = handleForControl(message, wParam, lParam)) return *answer;
    if (const auto answer = handleForContent(message, wParam, lParam)) return *answer;
    return DefWindowProcW(window_, message, wParam, lParam);
}

std::optional<LRESULT> WindowFrame::handleForControl(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND: {
        HWND sender = reinterpret_cast<HWND>(lParam);
        if (ControlView* view = viewWith(sender)) {
            if (sender == view->handle()) {
                view->notified(HIWORD(wParam), nullptr);
            } else {
                view->partNotified(HIWORD(wParam));
            }
        } else if (status_ && status_->isAction(sender)) {
            happened(ui::StatusActionEvent{});
        }
        return 0;
    }
    case WM_NOTIFY: {
        auto* details = reinterpret_cast<NMHDR*>(lParam);
        if (ControlView* view = viewWith(details->hwndFrom)) view->notified(details->code, details);
        return 0;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
        if (const ControlView* view = viewWith(reinterpret_cast<HWND>(lParam))) {
            return reinterpret_cast<LRESULT>(
                view->colourOf(reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam)));
        }
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> WindowFrame::handleForContent(UINT message, WPARAM wParam, LPARAM lParam) {
    if (content_ == nullptr) return std::nullopt;
    switch (message) {
    case WM_SIZE:
        content_->arrange();
        status_->place();
        return 0;
    case WM_SIZING:
        content_->sizedByUser();
        return std::nullopt;
    case WM_GETMINMAXINFO: {
        const SIZE least = content_->leastSize();
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
        return 0;
    }
    case WM_VSCROLL:
    case WM_HSCROLL:
        if (lParam == 0) content_->scroll(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        content_->wheel(message, wParam);
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace tellurix::windows
