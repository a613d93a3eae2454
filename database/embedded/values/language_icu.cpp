#include "database/embedded/values/language.h"

#include "database/embedded/values/Fault.h"
#include "database/embedded/values/utf8.h"

#include <unicode/uchar.h>
#include <unicode/ucol.h>

namespace tellurix::embedded {

namespace {

/// Letter by letter, as the server does it: ß has no upper case.
std::string mapCase(std::string_view text, UChar32 (*mapping)(UChar32)) {
    std::string mapped;
    mapped.reserve(text.size());
    for (std::size_t index = 0; index < text.size();)
        appendCharacter(mapped,
                        static_cast<char32_t>(mapping(static_cast<UChar32>(nextCharacter(text, index)))));
    return mapped;
}

} // namespace

struct SortOrder::Rules {
    struct Close {
        void operator()(UCollator* collator) const { ucol_close(collator); }
    };
    std::unique_ptr<UCollator, Close> collator;
};

SortOrder::SortOrder() : rules_(std::make_unique<Rules>()) {
    UErrorCode status = U_ZERO_ERROR;
    rules_->collator.reset(ucol_open("de", &status));
    if (U_FAILURE(status))
        throw Fault(base::DatabaseErrorCategory::other,
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
    return mapCase(text, u_toupper);
}

std::string lowerCase(std::string_view text) {
    return mapCase(text, u_tolower);
}

} // namespace tellurix::embedded
