#pragma once

#include "database/embedded/syntax/ast.h"

#include <vector>

namespace tellurix::embedded {

/// A grouped derived table of which the query that it stands in needs the groups of one key alone:
///
///     … LEFT JOIN (SELECT A.K, SUM(A.N) AS N FROM A GROUP BY A.K) D ON D.K = T.K WHERE T.K = 17
///
/// No group but that of 17 can meet a row of the answer, so that the others need not be summed up. What
/// is fixed this way is a column that WHERE, or an inner join, sets equal to a whole number or a variable.
struct CarriedKey {
    const Expression* fixed; ///< the column outside, `T.K`; none where the derived table's own is fixed
    Expression* value;       ///< what it is equal to
    Expression* group;       ///< the column inside, `A.K`, as GROUP BY names it
};

/// The keys that can be carried into one derived table of a FROM clause. Whether their types let that be is
/// for the caller to look at.
std::vector<CarriedKey> carriedKeys(const List<FromItem>& from, const Expression* where,
                                    const FromItem& derived);

} // namespace tellurix::embedded
