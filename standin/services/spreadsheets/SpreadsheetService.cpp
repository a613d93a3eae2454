#include "standin/services/spreadsheets/SpreadsheetService.h"

#include <stdexcept>

namespace tellurix::standin {

void SpreadsheetService::exportTable(const host::TlxVar&, const std::string&, const std::string& title) {
    throw std::runtime_error{"Spreadsheets are not available yet: " + title};
}

} // namespace tellurix::standin
