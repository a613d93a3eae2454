#include "database/embedded/syntax/chained.h"

namespace tellurix::embedded {

std::string chained(std::span<const std::string> links, std::string_view sign) {
    constexpr std::size_t longestFlat = 64;
    if (links.size() == 1) return links.front();
    std::string sql = "(";
    if (links.size() > longestFlat) {
        const std::size_t half = links.size() / 2;
        sql += chained(links.first(half), sign);
        sql += sign;
        sql += chained(links.subspan(half), sign);
    } else {
        for (const std::string& link : links) {
            if (sql.size() > 1) sql += sign;
            sql += link;
        }
    }
    return sql + ")";
}

} // namespace tellurix::embedded
