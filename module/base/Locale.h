#pragma once

namespace tellurix::base {

/// How numbers and names of days and months are written for the user.
struct Locale {
    char decimal = ',';
    char grouping = '.';
    bool germanNames = true; ///< day and month names: German, else English

    static constexpr Locale german() { return {}; }
    static constexpr Locale english() { return {'.', ',', false}; }
};

} // namespace tellurix::base
