#include "display/win32/WindowContent.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

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

WindowContent::WindowContent(HWND window, DWORD style, const Theme& theme, int below,
                             std::unique_ptr<Part> content)
    : window_(window), style_(style), theme_(theme), below_(below), content_(std::move(content)) {}

RECT WindowContent::area() const {
    RECT client{};
    GetClientRect(window_, &client);
    client.bottom = std::max<LONG>(client.bottom - below_, 0);
    return client;
}

void WindowContent::update() {
    if (!roomChanged_) return;
    grow();
    arrange();
}

SIZE WindowContent::leastSize() const {
    const RECT work = workAreaFor(window_);
    const SIZE least = sizeAround(wanted(&Extent::minimum));
    return {std::min<LONG>(least.cx, widthOf(work)), std::min<LONG>(least.cy, heightOf(work))};
}

SIZE WindowContent::wanted(int Extent::*which) const {
    const Room room = content_->room();
    return {room.width.*which + 2 * theme_.margin(), room.height.*which + 2 * theme_.margin()};
}

SIZE WindowContent::sizeAround(SIZE content) const {
    RECT rect{0, 0, content.cx, content.cy + below_};
    // The scroll bars that it may have at the moment stand inside.
    AdjustWindowRectEx(&rect, style_, FALSE, 0);
    return {widthOf(rect), heightOf(rect)};
}

void WindowContent::fit(HWND over) {
    const RECT work = workAreaFor(over != nullptr ? over : window_);
    const SIZE size = sizeAround(wanted(&Extent::preferred));
    const LONG width = std::min<LONG>(std::max<LONG>(size.cx, theme_.scaled(240)), widthOf(work));
    const LONG height = std::min<LONG>(size.cy, heightOf(work));
    POINT corner{(work.left + work.right - width) / 2, (work.top + work.bottom - height) / 2};
    if (over != nullptr && IsWindowVisible(over) && !IsIconic(over)) {
        // The title of the one below stays in sight.
        RECT owner{};
        GetWindowRect(over, &owner);
        corner = {owner.left + theme_.scaled(24), owner.top + theme_.scaled(24)};
    }
    const LONG x = inside(corner.x, width, work.left, work.right);
    const LONG y = inside(corner.y, height, work.top, work.bottom);
    SetWindowPos(window_, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    arrange();
}

void WindowContent::grow() {
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

void WindowContent::arrange() {
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
    setBar(SB_VERT, least.cy, area().bottom, scrolled_.y);
    setBar(SB_HORZ, least.cx, area().right, scrolled_.x);
    const RECT client = area();
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

void WindowContent::scrollTo(int x, int y) {
    scrolled_ = {x, y};
    arrange();
}

void WindowContent::scroll(int bar, WORD request) {
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

void WindowContent::wheel(UINT message, WPARAM wParam) {
    const RECT client = area();
    const Wheel::Turn turn =
        wheel_.turned(message, wParam, {theme_.lineHeight(), static_cast<int>(client.bottom)},
                      {theme_.characterWidth(), static_cast<int>(client.right)});
    const int x = turn.across ? turn.units : 0;
    const int y = turn.across ? 0 : turn.units;
    scrollTo(static_cast<int>(scrolled_.x) + x, static_cast<int>(scrolled_.y) + y);
}

/// On a screen that is too small for the window, the control that has the focus is never out of sight.
void WindowContent::reveal(const RECT& rect) {
    const RECT client = area();
    const auto shift = [](LONG start, LONG end, LONG room) {
        return start < 0 ? start : end > room ? std::min(end - room, start) : 0;
    };
    const LONG x = shift(rect.left, rect.right, client.right);
    const LONG y = shift(rect.top, rect.bottom, client.bottom);
    if (x != 0 || y != 0) scrollTo(static_cast<int>(scrolled_.x + x), static_cast<int>(scrolled_.y + y));
}

} // namespace tellurix::windows
