#pragma once

#include "module/base/Decimal.h"
#include "module/base/date_time.h"
#include "module/lines/DeliveredQuantity.h"
#include "standin/services/WorkbenchServices.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tellurix::standin {

/// A contract is due when it ends, or a date of it comes, in so many days at most.
inline constexpr int dueWithin = 30;

/// How many days a day is away; negative for one that is over.
int daysUntil(base::Date day, base::Date today);
/// Whether a contract's day still needs somebody: it comes within `dueWithin` days, or went by.
enum class Due { notYet, soon, over };
/// @param closed a contract that is closed needs nobody
Due dueOf(base::Date day, bool closed, base::Date today);

/// What is asked on the phone about a contract.
struct ContractGlance {
    /// A quantity line.
    struct Line {
        int place = 0; ///< among the lines of the contract
        std::string name;
        std::string unit;
        base::Decimal agreed;
        base::Decimal permitted;
        std::optional<base::Decimal> delivered; ///< nothing where the line's selection cannot be read
    };
    /// A date that comes, or the end of the delivery.
    struct Date {
        std::string caption;
        base::Date day;
    };

    std::string name;
    std::string type; ///< contract-type code
    bool closed = false;
    std::vector<std::pair<std::string, std::string>> head; ///< captions and values, what is empty left out
    std::vector<Line> lines;
    int furtherLines = 0;       ///< how many are not among them
    base::Decimal overDelivery; ///< per cent that may be delivered above a quantity
    std::vector<Date> dates;    ///< the next one first
};

/// Reads a contract at a glance in pieces, none of which takes longer than a few statements do: a key that
/// is pressed meanwhile need not wait for the rest.
class GlanceReading {
public:
    /// More lines than this are not read: what is delivered against each takes a statement over the logs.
    static constexpr std::size_t mostLines = 8;

    /// @param services, session outlive it
    /// @param contract `ID_VERTRAG`
    GlanceReading(WorkbenchServices& services, const host::TlxVar& session, std::int32_t contract);

    /// Reads a piece.
    /// @return whether there is more to read
    /// @throws base::DatabaseError
    bool next();
    /// What was read, once there is no more; nothing when the contract is gone.
    const std::optional<ContractGlance>& glance() const { return glance_; }

private:
    void readHead();
    void readLines();
    void readDelivered(ContractGlance::Line& line);
    std::string named(std::string_view key) const { return services_.localizer().named(key, session_); }
    std::string caption(int number) const;

    WorkbenchServices& services_;
    const host::TlxVar& session_;
    std::int32_t contract_;
    std::optional<ContractGlance> glance_;
    std::size_t pieces_ = 0; ///< that have been read
};

} // namespace tellurix::standin
