#include "module/base/field_text.h"

#include "module/base/date_format.h"
#include "module/base/number_format.h"

namespace tellurix::base {

std::optional<Date> dayIn(const Value& field) {
    const auto* moment = std::get_if<DateTime>(&field);
    return moment == nullptr ? std::nullopt : std::optional{dayOf(*moment)};
}

std::string dateText(const Value& field) {
    const auto day = dayIn(field);
    return day ? dateText(*day) : std::string{};
}

std::string periodText(const Value& from, const Value& to) {
    const std::string first = dateText(from);
    const std::string last = dateText(to);
    return first.empty() && last.empty() ? std::string{} : first + " – " + last;
}

std::optional<Decimal> numberIn(const Value& field) {
    if (const auto* exact = std::get_if<Decimal>(&field)) return *exact;
    if (const auto* integer = std::get_if<std::int64_t>(&field)) return Decimal{*integer};
    if (const auto* floating = std::get_if<double>(&field)) return Decimal::fromDouble(*floating);
    return std::nullopt;
}

bool sameValue(const Value& left, const Value& right) {
    const auto empty = [](const Value& value) {
        const auto* text = std::get_if<std::string>(&value);
        return std::holds_alternative<Null>(value) || (text != nullptr && text->empty());
    };
    if (left == right || (empty(left) && empty(right))) return true;
    const auto number = numberIn(left);
    return number && number == numberIn(right);
}

std::string numberText(const Value& field, std::string_view mask, const Locale& locale) {
    const auto number = numberIn(field);
    return number ? formatNumber(*number, mask, locale) : std::string{};
}

} // namespace tellurix::base
