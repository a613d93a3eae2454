#include "display/win32/native/Theme.h"

#include "com/automation/wide.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>

namespace tellurix::windows {

namespace {

/// The screen's device context.
class ScreenContext {
public:
    ~ScreenContext() { ReleaseDC(nullptr, dc_); }
    operator HDC() const { return dc_; }

private:
    HDC dc_ = GetDC(nullptr);
};

HFONT messageFont(LONG weight) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    if (weight != 0) metrics.lfMessageFont.lfWeight = weight;
    return CreateFontIndirectW(&metrics.lfMessageFont);
}

HFONT signsOfSize(int height) {
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfCharSet = SYMBOL_CHARSET;
    wcscpy(font.lfFaceName, L"Marlett");
    return CreateFontIndirectW(&font);
}

bool isHighContrast() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, contrast.cbSize, &contrast, 0);
    return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

COLORREF colourOfPages() {
    COLORREF colour = GetSysColor(COLOR_3DFACE);
    if (!IsAppThemed() || isHighContrast()) return colour;
    if (const HTHEME theme = OpenThemeData(nullptr, L"TAB")) {
        if (FAILED(GetThemeColor(theme, TABP_BODY, 0, TMT_FILLCOLORHINT, &colour))) {
            colour = GetSysColor(COLOR_3DFACE);
        }
        CloseThemeData(theme);
    }
    return colour;
}

} // namespace

Theme::Theme()
    : dotsPerInch_(GetDeviceCaps(ScreenContext{}, LOGPIXELSX)),
      font_(messageFont(0)),
      boldFont_(messageFont(FW_BOLD)),
      signFont_(signsOfSize(scaled(16))),
      pageColour_(colourOfPages()),
      pageBrush_(CreateSolidBrush(pageColour_)) {
    const ScreenContext screen;
    const Selected selected{screen, font_};
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen, &metrics);
    SIZE digit{};
    GetTextExtentPoint32W(screen, L"0", 1, &digit);
    textHeight_ = metrics.tmHeight;
    characterWidth_ = static_cast<int>(std::max(metrics.tmAveCharWidth, digit.cx));
}

void Theme::readColours() {
    pageColour_ = colourOfPages();
    pageBrush_.replace(CreateSolidBrush(pageColour_));
}

COLORREF Theme::warningColour() const {
    return isHighContrast() ? GetSysColor(COLOR_HOTLIGHT) : RGB(163, 34, 27);
}

SIZE Theme::textSize(const std::string& text, bool withMark, int wrapAt, bool bold) const {
    const ScreenContext screen;
    const Selected selected{screen, bold ? boldFont() : font()};
    const std::wstring wide = widen(text);
    RECT room{0, 0, wrapAt, 0};
    const UINT how = DT_CALCRECT | (withMark ? 0U : DT_NOPREFIX) | (wrapAt > 0 ? DT_WORDBREAK : 0U);
    DrawTextW(screen, wide.c_str(), static_cast<int>(wide.size()), &room, how);
    return {room.right, std::max<LONG>(room.bottom, textHeight_)};
}

} // namespace tellurix::windows
