#include "module/host/variant.h"

#include "module/base/Decimal.h"
#include "module/base/text.h"

#include <stdexcept>

namespace tellurix::host {

bool toBoolean(const Variant& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer != 0;
    if (const auto* number = std::get_if<double>(&value)) return *number != 0;
    if (const auto* text = std::get_if<std::string>(&value)) {
        const std::string upper = base::toUpper(*text);
        if (upper == "TRUE") return true;
        if (upper == "FALSE") return false;
        const auto number = base::Decimal::parse(*text);
        if (!number) throw std::invalid_argument{"\"" + *text + "\" is neither true nor false"};
        return number->units() != 0;
    }
    return false;
}

} // namespace tellurix::host
