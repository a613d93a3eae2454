#include "database/embedded/values/language.h"

#include "database/embedded/values/Fault.h"
#include "database/embedded/values/utf8.h"

#include <windows.h>

#include <array>

namespace tellurix::embedded {

namespace {

constexpr const wchar_t* german = L"de-DE";
/// Hyphens and apostrophes sort where they stand instead of being looked over.
constexpr DWORD sorting = NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH | SORT_STRINGSORT;

std::wstring wide(std::string_view text) {
    const auto size = static_cast<int>(text.size());
    std::wstring units(text.size(), L'\0');
    units.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), size, units.data(), static_cast<int>(units.size()))));
    return units;
}

std::string narrow(std::wstring_view units) {
    const auto size = static_cast<int>(units.size());
    std::string text(units.size() * 3, '\0');
    text.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, units.data(), size, text.data(), static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

/// Every letter keeps its number of units under these mappings.
std::string mapCase(std::string_view text, DWORD mapping) {
    const std::wstring units = wide(text);
    if (units.empty()) return {};
    std::wstring mapped(units.size(), L'\0');
    const int size = LCMapStringEx(german, mapping, units.data(), static_cast<int>(units.size()),
                                   mapped.data(), static_cast<int>(mapped.size()), nullptr, nullptr, 0);
    if (size == 0)
        throw Fault(base::DatabaseErrorCategory::conversion, "The case of a text cannot be changed");
    return narrow(mapped);
}

} // namespace

struct SortOrder::Rules {
    std::int32_t version = 0;
};

SortOrder::SortOrder() : rules_(std::make_unique<Rules>()) {
    NLSVERSIONINFOEX information{};
    information.dwNLSVersionInfoSize = sizeof information;
    if (GetNLSVersionEx(COMPARE_STRING, german, &information) == 0)
        throw Fault(base::DatabaseErrorCategory::other,
                    "The rules for comparing texts cannot be loaded: error " +
                        std::to_string(GetLastError()));
    rules_->version = static_cast<std::int32_t>(information.dwNLSVersion & 0x7FFFFFFFU);
}

SortOrder::~SortOrder() = default;

int SortOrder::compare(std::string_view left, std::string_view right) const {
    const std::wstring first = wide(left);
    const std::wstring second = wide(right);
    return CompareStringEx(german, sorting, first.data(), static_cast<int>(first.size()), second.data(),
                           static_cast<int>(second.size()), nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

std::int32_t SortOrder::version() const {
    return rules_->version;
}

char32_t foldLetter(char32_t character) {
    std::string text;
    appendCharacter(text, character);
    const std::string lower = mapCase(text, LCMAP_LOWERCASE);
    std::size_t index = 0;
    return lower.empty() ? character : nextCharacter(lower, index);
}

std::string upperCase(std::string_view text) {
    return mapCase(text, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING);
}

std::string lowerCase(std::string_view text) {
    return mapCase(text, LCMAP_LOWERCASE | LCMAP_LINGUISTIC_CASING);
}

} // namespace tellurix::embedded
