#include "module/lines/over_delivery.h"

#include "module/base/StatementText.h"
#include "module/lines/DeliveredQuantity.h"

namespace tellurix::lines {

using base::Decimal;

Decimal overDeliveryOf(base::Connection& connection, std::int32_t contract) {
    base::StatementText query{"SELECT UBERLIEFERUNG FROM WVO_VERTRAG WHERE ID_VERTRAEGE = "};
    const auto logistics = connection.open(query.number(contract).text());
    return logistics->atEnd() ? Decimal{} : quantityIn(logistics->field("UBERLIEFERUNG"));
}

Decimal permittedQuantity(const Decimal& agreed, const Decimal& overDelivery) {
    return (agreed + (agreed * overDelivery).dividedByTenTo(2)).rounded(quantityDecimals);
}

} // namespace tellurix::lines
