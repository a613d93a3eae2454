#pragma once

#include "module/base/database.h"
#include "module/base/date_time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tellurix::standin {

/// Which contracts the start page lists.
struct ContractFilter {
    enum class Closed { all, open, closed };

    /// Each of its words stands in the contract's name or in the customer's short name.
    std::string search;
    std::string type; ///< contract-type code, empty for all
    Closed closed = Closed::open;
    /// The delivery period reaches into these days. A contract without one is left out as soon as
    /// one of the days is given; one with only a beginning, or only an end, is open at the other side.
    std::optional<base::Date> from;
    std::optional<base::Date> to;
};

/// The query of the contracts by name: ID_VERTRAG, VERTRAG_NAME, VER_TYPE, KURZBEZEICHNUNG of the customer,
/// LIEFERVON, LIEFERBIS, ABGESCHLOSSEN, and the numbers of lines PREISE and MENGEN.
std::string contractsQuery(const ContractFilter& filter);

/// Whether the contract is still there; another session may have discarded it.
bool contractExists(base::Connection& connection, std::int32_t id);
/// Whether a contract has this name already, in any case of its letters.
bool contractExists(base::Connection& connection, const std::string& name);

/// Creates a contract's row with nothing but its name and type, as the host does.
/// @param type contract-type code, "R" or "A1" … "A8"
/// @return its key, `ID_VERTRAG`
std::int32_t createContract(base::Connection& connection, const std::string& name, const std::string& type);

} // namespace tellurix::standin
