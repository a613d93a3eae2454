#include "display/win32/native/pictures.h"

#include "display/win32/native/native.h"

#include <algorithm>
#include <map>
#include <span>
#include <vector>

namespace tellurix::windows {

namespace {

/// Points on a field of 160 by 160; a line ends where `ends` says.
struct Point {
    int x;
    int y;
    bool ends = false;
};

const std::map<std::string_view, std::vector<Point>>& drawings() {
    static const std::map<std::string_view, std::vector<Point>> all{
        {"delete", {{40, 40}, {120, 120, true}, {120, 40}, {40, 120, true}}},
        {"document",
         {{40, 15},
          {95, 15},
          {125, 50},
          {125, 145},
          {40, 145},
          {40, 15, true},
          {90, 15},
          {90, 55},
          {125, 55, true},
          {60, 85},
          {105, 85, true},
          {60, 110},
          {105, 110, true}}},
        {"table",
         {{20, 30},
          {140, 30},
          {140, 130},
          {20, 130},
          {20, 30, true},
          {20, 65},
          {140, 65, true},
          {20, 98},
          {140, 98, true},
          {60, 30},
          {60, 130, true}}},
        {"mail",
         {{20, 35}, {140, 35}, {140, 125}, {20, 125}, {20, 35, true}, {20, 40}, {80, 90}, {140, 40, true}}},
        {"add", {{80, 30}, {80, 130, true}, {30, 80}, {130, 80, true}}},
        {"error",
         {{80, 20},
          {145, 135},
          {15, 135},
          {80, 20, true},
          {80, 62},
          {80, 95, true},
          {80, 112},
          {80, 118, true}}},
        {"up", {{35, 100}, {80, 55}, {125, 100, true}}},
        {"down", {{35, 60}, {80, 105}, {125, 60, true}}},
    };
    return all;
}

/// Draws the lines of a picture on a ground of one colour.
void draw(HBITMAP bitmap, std::span<const Point> points, int size, COLORREF line, COLORREF ground) {
    HDC dc = CreateCompatibleDC(nullptr);
    {
        const Selected onto{dc, bitmap};
        const GdiObject<HBRUSH> brush{CreateSolidBrush(ground)};
        const RECT all{0, 0, size, size};
        FillRect(dc, &all, brush);
        const GdiObject<HPEN> pen{CreatePen(PS_SOLID, std::max(1, size * 15 / 160), line)};
        const Selected with{dc, HPEN{pen}};
        bool starts = true;
        for (const Point& point : points) {
            const int x = point.x * size / 160;
            const int y = point.y * size / 160;
            if (starts) {
                MoveToEx(dc, x, y, nullptr);
            } else {
                LineTo(dc, x, y);
            }
            starts = point.ends;
        }
    }
    DeleteDC(dc);
}

/// A bitmap with the colours of the screen.
HBITMAP makeBitmap(int size) {
    HDC screen = GetDC(nullptr);
    HBITMAP made = CreateCompatibleBitmap(screen, size, size);
    ReleaseDC(nullptr, screen);
    return made;
}

} // namespace

HICON makePicture(std::string_view name, int size, COLORREF colour) {
    const auto found = drawings().find(name);
    if (found == drawings().end()) return nullptr;
    // With a mask and not with transparent colours: Windows can grey only those out.
    const GdiObject<HBITMAP> colours{makeBitmap(size)};
    const GdiObject<HBITMAP> mask{CreateBitmap(size, size, 1, 1, nullptr)};
    draw(colours, found->second, size, colour, RGB(0, 0, 0));
    draw(mask, found->second, size, RGB(0, 0, 0), RGB(255, 255, 255));
    ICONINFO icon{TRUE, 0, 0, mask, colours};
    return CreateIconIndirect(&icon);
}

} // namespace tellurix::windows
