#pragma once

#include "module/base/database.h"

#include <cstdint>

namespace tellurix::bench {

/// How much logistics a generated database has.
struct LogisticsSizes {
    std::int64_t contracts = 0; ///< the first of all contracts; each has logistics settings
    std::int64_t helpers = 0;   ///< forest helpers of each of them
    std::int64_t persons = 0;   ///< forest helpers in all, who take part in turn; not fewer than `helpers`
    std::int64_t weeks = 0;     ///< calendar weeks of each, with a report of every helper
    std::int64_t invoiced = 0;  ///< rows of invoiced quantities, on the contracts and their helpers in turn
    std::int64_t notes = 0;     ///< takeover notes, the same way
};

/// Fills the tables of the logistics coordination from BENCH_NUMBER, a table of the numbers 1 … N, by the
/// server's own set statements. The logs that are there are booked to the helpers, too.
void makeLogistics(base::Connection& connection, const LogisticsSizes& sizes);

} // namespace tellurix::bench
