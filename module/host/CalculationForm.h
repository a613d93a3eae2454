#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tellurix::host {

/// The values of one surcharge or deduction line.
struct CalculationLine {
    static constexpr int noStatistic = -1;

    int statistic = noStatistic; ///< position in the list of statistics, from 0
    std::string designation = {};
    std::string value = {};      ///< as the user reads it: "-12,50"
    std::string references = {}; ///< numbers of the lines that it is computed on, from 1: "1,2"
    std::string subset = {};     ///< selection value, empty for all goods
    std::int32_t article = 0;    ///< `ART_ID`, 0 for none

    bool operator==(const CalculationLine&) const = default;
};

inline constexpr std::size_t calculationLineCount = 16;
using CalculationLines = std::array<CalculationLine, calculationLineCount>;

/// The lines that the user works on at the moment, for a service that reads or replaces them.
class CalculationForm {
public:
    virtual ~CalculationForm() = default;
    virtual CalculationLines lines() const = 0;
    virtual void setLines(const CalculationLines& lines) = 0;
};

} // namespace tellurix::host
