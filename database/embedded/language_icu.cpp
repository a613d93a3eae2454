#include "embedded/language.h"

#include "embedded/Fault.h"

#include <unicode/ucasemap.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>

namespace tellurix::embedded {

namespace {

constexpr const char* german = "de";

struct CloseCollator {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};
struct CloseCaseMap {
    void operator()(UCaseMap* map) const { ucasemap_close(map); }
};

using CaseMapping = std::int32_t (*)(const UCaseMap*, char*, std::int32_t, const char*, std::int32_t,
                                     UErrorCode*);

std::string mapCase(std::string_view text, CaseMapping mapping) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCaseMap, CloseCaseMap> map{ucasemap_open(german, 0, &status)};
    std::string mapped(text.size() * 3 + 1, '\0'); // no letter grows by more
    const std::int32_t size = mapping(map.get(), mapped.data(), static_cast<std::int32_t>(mapped.size()),
                                      text.data(), static_cast<std::int32_t>(text.size()), &status);
    if (U_FAILURE(status))
        throw Fault(common::DatabaseErrorCategory::conversion, "The case of a text cannot be changed");
    mapped.resize(static_cast<std::size_t>(size));
    return mapped;
}

} // namespace

struct SortOrder::Rules {
    std::unique_ptr<UCollator, CloseCollator> collator;
};

SortOrder::SortOrder() : rules_(std::make_unique<Rules>()) {
    UErrorCode status = U_ZERO_ERROR;
    rules_->collator.reset(ucol_open(german, &status));
    if (U_FAILURE(status))
        throw Fault(common::DatabaseErrorCategory::other,
                    std::string("The rules for comparing texts cannot be loaded: ") + u_errorName(status));
    ucol_setStrength(rules_->collator.get(), UCOL_SECONDARY);
}

SortOrder::~SortOrder() = default;

int SortOrder::compare(std::string_view left, std::string_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(rules_->collator.get(), left.data(), static_cast<std::int32_t>(left.size()),
                            right.data(), static_cast<std::int32_t>(right.size()), &status);
}

std::int32_t SortOrder::version() const {
    UVersionInfo bytes{};
    ucol_getVersion(rules_->collator.get(), bytes);
    std::uint32_t version = 0;
    for (const std::uint8_t byte : bytes)
        version = version << 8U | byte;
    return static_cast<std::int32_t>(version & 0x7FFFFFFFU);
}

char32_t foldLetter(char32_t character) {
    return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

std::string upperCase(std::string_view text) {
    return mapCase(text, ucasemap_utf8ToUpper);
}

std::string lowerCase(std::string_view text) {
    return mapCase(text, ucasemap_utf8ToLower);
}

} // namespace tellurix::embedded
