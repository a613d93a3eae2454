#include "standin/services/values/DateConverterService.h"

#include "module/base/date_format.h"

#include <stdexcept>

namespace tellurix::standin {

std::string DateConverterService::toSql(const std::string& text, const host::TlxVar& /*session*/) {
    const auto date = base::parseDate(text);
    if (!date) throw std::invalid_argument("„" + text + "“ ist kein Datum.");
    return base::formatDate(*date, "yyyymmdd", base::Locale::german());
}

} // namespace tellurix::standin
