#include "common/field_text.h"

#include "common/date_format.h"
#include "common/number_format.h"

namespace tellurix::common {

std::string dateText(const Value& field) {
    const auto* moment = std::get_if<DateTime>(&field);
    return moment == nullptr ? std::string{} : formatDate(*moment, "dd.mm.yyyy", Locale::german());
}

std::string numberText(const Value& field, std::string_view mask, const Locale& locale) {
    if (const auto* exact = std::get_if<Decimal>(&field)) return formatNumber(*exact, mask, locale);
    if (const auto* integer = std::get_if<std::int64_t>(&field))
        return formatNumber(Decimal{*integer}, mask, locale);
    if (const auto* floating = std::get_if<double>(&field)) {
        return formatNumber(Decimal::fromDouble(*floating), mask, locale);
    }
    return {};
}

} // namespace tellurix::common
