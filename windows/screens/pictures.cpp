#include "screens/pictures.h"

#include "screens/native.h"

#include <algorithm>
#include <cstdint>
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
        {"up", {{35, 100}, {80, 55}, {125, 100, true}}},
        {"down", {{35, 60}, {80, 105}, {125, 60, true}}},
    };
    return all;
}

constexpr int fineness = 4; ///< each pixel is made of so many lines of so many dots

/// A bitmap of 32 bits a pixel, from the top, and its pixels.
class PixelBitmap {
public:
    explicit PixelBitmap(int size) : size_(static_cast<std::size_t>(size)), bitmap_(make(size, pixels_)) {}
    HBITMAP handle() const { return bitmap_; }
    std::uint32_t& at(std::size_t x, std::size_t y) { return pixels_[y * size_ + x]; }

private:
    static HBITMAP make(int size, std::uint32_t*& pixels) {
        BITMAPINFO wanted{};
        wanted.bmiHeader.biSize = sizeof wanted.bmiHeader;
        wanted.bmiHeader.biWidth = size;
        wanted.bmiHeader.biHeight = -size;
        wanted.bmiHeader.biPlanes = 1;
        wanted.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        HBITMAP made = CreateDIBSection(nullptr, &wanted, DIB_RGB_COLORS, &bits, nullptr, 0);
        pixels = static_cast<std::uint32_t*>(bits);
        return made;
    }

    std::size_t size_;
    std::uint32_t* pixels_ = nullptr;
    GdiObject<HBITMAP> bitmap_;
};

/// Draws lines in white on black.
void draw(HBITMAP bitmap, std::span<const Point> points, int size) {
    HDC dc = CreateCompatibleDC(nullptr);
    {
        const Selected onto{dc, bitmap};
        const GdiObject<HPEN> pen{CreatePen(PS_SOLID, std::max(1, size * 14 / 160), RGB(255, 255, 255))};
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
        GdiFlush();
    }
    DeleteDC(dc);
}

} // namespace

HICON makePicture(std::string_view name, int size, COLORREF colour) {
    const auto found = drawings().find(name);
    if (found == drawings().end()) return nullptr;
    PixelBitmap fine{size * fineness};
    draw(fine.handle(), found->second, size * fineness);

    // How many of its dots are drawn is how much of a pixel is seen: smooth lines at any size.
    PixelBitmap smooth{size};
    const auto edge = static_cast<std::size_t>(size);
    for (std::size_t y = 0; y < edge; ++y) {
        for (std::size_t x = 0; x < edge; ++x) {
            std::uint32_t dots = 0;
            for (std::size_t dot = 0; dot < fineness * fineness; ++dot) {
                dots += (fine.at(x * fineness + dot % fineness, y * fineness + dot / fineness) & 0xFF) != 0;
            }
            const std::uint32_t opaque = dots * 255 / (fineness * fineness);
            smooth.at(x, y) = opaque << 24 | static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
                              static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
        }
    }
    const std::vector<unsigned char> noMask(static_cast<std::size_t>((size + 15) / 16 * 2 * size), 0);
    const GdiObject<HBITMAP> mask{CreateBitmap(size, size, 1, 1, noMask.data())};
    ICONINFO icon{TRUE, 0, 0, mask, smooth.handle()};
    return CreateIconIndirect(&icon);
}

} // namespace tellurix::windows
