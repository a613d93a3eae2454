#include "module/contract/header_captions.h"

#include "module/base/text.h"
#include "module/host/contract_type.h"

namespace tellurix::contract {

namespace {

std::array<int, 10> tenFrom(int base) {
    std::array<int, 10> numbers{};
    for (int i = 0; i < 10; ++i)
        numbers[static_cast<std::size_t>(i)] = base + i;
    return numbers;
}

/// A block of seventeen texts: ten free texts, one that no label uses, three dates, three lookups.
HeaderCaptions block(int base, int numberBase) {
    return {.kopf = tenFrom(base),
            .dates = {base + 11, base + 12, base + 13},
            .rechnungsart = base + 14,
            .buchungsart = base + 15,
            .wahrung = base + 16,
            .numbers = tenFrom(numberBase)};
}

} // namespace

HeaderCaptions headerCaptions(std::string_view typeCode) {
    const int type = host::contractTypeNumber(base::toUpper(typeCode));
    if (type < 0) return block(0, 0);
    if (type > 0) return block(3300 + 17 * (type - 1), 4122 + 10 * (type - 1));
    // Sales contracts are older than the blocks; their tenth text took a number left free.
    return {.kopf = {3062, 3064, 3065, 3066, 3067, 3068, 3069, 3070, 3071, 3063},
            .dates = {3024, 3025, 3026},
            .rechnungsart = 293,
            .buchungsart = 294,
            .wahrung = 748,
            .numbers = tenFrom(4110)};
}

} // namespace tellurix::contract
