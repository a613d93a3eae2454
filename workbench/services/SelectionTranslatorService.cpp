#include "services/SelectionTranslatorService.h"

#include "services/SelectionExpression.h"

#include <stdexcept>

namespace tellurix::workbench {

std::string SelectionTranslatorService::translate(const host::TlxVar&, const std::string& kind,
                                                  const std::string& sameKind, const std::string& value,
                                                  const std::string&, const std::string&) {
    if (kind != "1LV" || sameKind != kind) {
        throw std::invalid_argument{"Für „" + (kind == "1LV" ? sameKind : kind) +
                                    "“ kann keine Selektion ausgewertet werden."};
    }
    return SelectionExpression::parse(value).toSql();
}

} // namespace tellurix::workbench
