#include "services/DateConverterService.h"

#include "common/date_format.h"

#include <stdexcept>

namespace tellurix::workbench {

std::string DateConverterService::toSql(const std::string& text, const host::TlxVar& /*session*/) {
    const auto date = common::parseDate(text);
    if (!date) throw std::invalid_argument("„" + text + "“ ist kein Datum.");
    return common::formatDate(*date, "yyyymmdd", common::Locale::german());
}

} // namespace tellurix::workbench
