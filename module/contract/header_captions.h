#pragma once

#include <array>
#include <string_view>

namespace tellurix::contract {

/// The numbers of the caption texts of a contract's head data, which mean something else for each
/// contract type: the first free text of a sales contract is not that of a purchase contract.
struct HeaderCaptions {
    std::array<int, 10> kopf{}; ///< the ten free texts
    std::array<int, 3> dates{}; ///< the second to fourth date
    int rechnungsart = 0;
    int buchungsart = 0;
    int wahrung = 0;
    std::array<int, 10> numbers{}; ///< the ten free numbers
};

/// @param typeCode the host's contract-type code, in any case of the letters. An unknown code gets
///        the texts from number 0 on.
HeaderCaptions headerCaptions(std::string_view typeCode);

} // namespace tellurix::contract
