#pragma once

#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::bench {

/// A number with so many decimals.
std::string fixed(double number, int decimals);

/// A table for the terminal, the first column to the left and the others to the right.
class Report {
public:
    explicit Report(std::vector<std::string> headings) : rows_{std::move(headings)} {}

    void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
    void print(std::ostream& out) const;

private:
    std::vector<std::vector<std::string>> rows_;
};

/// Prints what the following table is about.
inline void heading(std::ostream& out, std::string_view text) {
    out << '\n' << text << "\n\n";
}

} // namespace tellurix::bench
