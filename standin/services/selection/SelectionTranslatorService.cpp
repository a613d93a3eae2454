#include "standin/services/selection/SelectionTranslatorService.h"

#include "standin/services/selection/SelectionExpression.h"

#include <stdexcept>

namespace tellurix::standin {

std::string SelectionTranslatorService::translate(const host::TlxVar&, const std::string& kind,
                                                  const std::string& sameKind, const std::string& value,
                                                  const std::string&, const std::string&) {
    if (kind != "1LV" || sameKind != kind) {
        throw std::invalid_argument{"Für „" + (kind == "1LV" ? sameKind : kind) +
                                    "“ kann keine Selektion ausgewertet werden."};
    }
    return SelectionExpression::parse(value).toSql();
}

} // namespace tellurix::standin
