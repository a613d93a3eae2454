#include "display/win32/native/shown_text.h"

#include "com/automation/wide.h"
#include "module/base/text.h"

namespace tellurix::windows {

namespace {

int unitsOf(char32_t character, bool severalLines) {
    if (character == U'\r') return 0; // counts with its "\n"
    if (character == U'\n') return severalLines ? 2 : 0;
    return character > 0xFFFF ? 2 : 1;
}

} // namespace

std::wstring shownText(std::string_view text, bool severalLines) {
    std::wstring shown;
    for (const wchar_t unit : widen(text)) {
        if (unit == L'\r') continue;
        if (unit != L'\n') {
            shown += unit;
        } else if (severalLines) {
            shown += L"\r\n";
        }
    }
    return shown;
}

int shownUnits(std::string_view text, int characters, bool severalLines) {
    int units = 0;
    for (const char32_t character : base::decodeUtf8(text)) {
        if (characters-- <= 0) break;
        units += unitsOf(character, severalLines);
    }
    return units;
}

int charactersBefore(std::string_view text, int units, bool severalLines) {
    int characters = 0;
    for (const char32_t character : base::decodeUtf8(text)) {
        if (units <= 0) break;
        units -= unitsOf(character, severalLines);
        ++characters;
    }
    return characters;
}

std::string editedText(std::wstring_view shown, bool severalLines) {
    std::wstring text;
    for (const wchar_t unit : shown) {
        if (unit == L'\r' || (unit == L'\n' && !severalLines)) continue;
        text += unit == L'\n' || (unit >= 32 && unit != 127) ? unit : L' ';
    }
    return narrow(text);
}

} // namespace tellurix::windows
