#pragma once

#include "module/base/Decimal.h"
#include "module/base/StatementText.h"
#include "module/base/date_time.h"
#include "module/parts/OpenContract.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::lines {

/// To how many decimals quantities are exact. Measures are also kept as floating-point numbers and with
/// more decimals than can be added up exactly; what is beyond these is noise of their calculation.
inline constexpr int quantityDecimals = 6;

/// A field as a quantity; 0 for NULL.
/// @throws std::out_of_range when it has more than 12 digits before the point
base::Decimal quantityIn(const base::Value& field);

/// The quantity delivered against a quantity line: the sum, in the line's unit, over the logs that
/// are booked against the contract and that the line's selection takes.
///
/// A log counts for the first line, in their order, whose selection takes it. A line without a
/// selection takes every log that is left, so that nothing is delivered against the lines behind it.
class DeliveredQuantity {
public:
    /// @param contract `LOGS_RECH` knows it by its name
    /// @param type contract-type code, in any case of the letters
    DeliveredQuantity(parts::OpenContract contract, std::string_view type);

    /// The delivered quantity of the line at a place; 0 for a unit in which logs have no measure.
    /// @throws base::Refused naming the line whose selection cannot be translated
    base::Decimal of(int place) const;

    /// One log that counts for a line.
    struct CountedLog {
        std::string number;
        std::optional<base::DateTime> date;
        std::string species;
        std::string sort;
        base::Decimal measured;      ///< as it was measured in the forest or at the mill
        const char* measuredIn = ""; ///< "Fm", "Rm", "Stk", "t atro"
        base::Decimal quantity;      ///< in the line's unit
    };
    /// How many logs of the contract another line has taken first.
    struct Claim {
        int place = 0;
        std::int64_t logs = 0;
    };
    /// How the number of a line comes about.
    struct Explanation {
        std::vector<CountedLog> logs;
        std::vector<Claim> earlier;
        bool unitHasMeasure = true;
    };
    Explanation explain(int place) const;

private:
    /// A line as its part in the statement needs it.
    struct Line {
        int place = 0;
        std::string condition;  ///< " FROM LOGS … WHERE …", empty without a selection
        std::string expression; ///< the quantity of one log in the line's unit, empty for none
    };

    std::vector<Line> linesUpTo(int place) const;
    /// @throws base::Refused naming the line
    std::string conditionOf(int place, const std::string& selection) const;
    /// The condition on the logs of the contract.
    base::StatementText bookedLogs() const;
    /// How many logs each of the lines takes, by its index.
    std::vector<std::int64_t> claims(const std::vector<Line>& lines) const;
    /// The condition on the logs that count for line `index`; empty when an earlier one takes all.
    std::string logsOf(const std::vector<Line>& lines, std::size_t index) const;

    parts::OpenContract contract_;
    std::string type_; ///< in capital letters
};

} // namespace tellurix::lines
