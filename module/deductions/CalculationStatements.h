#pragma once

#include <cstddef>
#include <string>

namespace tellurix::deductions {

/// The statements on the lines of one calculation. Reading and deleting compare the name with one blank
/// before "=", updating with two.
///
/// The calculation's name, the model's and a designation go in as they stand; each function throws
/// base::StatementError where an apostrophe in one of them would end its place.
class CalculationStatements {
public:
    /// @param name of the calculation, which is the contract's
    /// @param upperType "V", "V1" … "V8"
    explicit CalculationStatements(std::string name = {}, std::string upperType = {})
        : name_(std::move(name)), type_(std::move(upperType)) {}

    std::string readLines() const;
    std::string readModelColumn(const std::string& column) const;
    std::string readSubset(std::size_t line) const;
    std::string deleteLines() const;
    /// Makes a line that has nothing but its key.
    std::string insertLine(std::size_t line) const;
    /// An empty value is written as NULL, here and in all lines.
    std::string updateLineColumn(const std::string& column, const std::string& value, std::size_t line) const;
    std::string updateModelColumn(const std::string& column, const std::string& value) const;
    /// The condition that names a line to the column-update service, without WHERE.
    std::string conditionOf(std::size_t line) const;

private:
    std::string name_;
    std::string type_;
};

} // namespace tellurix::deductions
