#include "module/deductions/line_check.h"

#include "module/base/number_format.h"

namespace tellurix::deductions {

std::optional<base::Decimal> amountIn(std::string_view text, const base::Locale& locale) {
    if (const auto amount = base::parseNumber(text, locale)) return amount;
    base::Locale other = locale;
    std::swap(other.decimal, other.grouping);
    return base::parseNumber(text, other);
}

bool isEmptyLine(const CheckedLine& line, const base::Locale& locale) {
    const auto amount = amountIn(line.value, locale);
    return (!amount || *amount == base::Decimal{}) && line.position <= 0 && line.designation.empty();
}

std::optional<LineFault> firstFault(const std::array<CheckedLine, 16>& lines, const base::Locale& locale) {
    std::optional<std::size_t> first;
    bool completeBelow = false;
    for (std::size_t i = lines.size(); i-- > 0;) {
        const bool complete = lines[i].complete();
        if (!complete && (completeBelow || !isEmptyLine(lines[i], locale))) first = i;
        completeBelow = completeBelow || complete;
    }
    if (!first) return std::nullopt;
    const bool noStatistic = lines[*first].statistic.empty();
    return LineFault{*first, noStatistic ? LineFault::Lack::statistic : LineFault::Lack::value};
}

} // namespace tellurix::deductions
