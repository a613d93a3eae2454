#pragma once

#include <string>

namespace tellurix::windows {

/// What holds for all windows of a display.
struct DisplayState {
    int busy = 0;                ///< how many operations show the hourglass
    std::string language = "DE"; ///< of the display's own texts: "DE" or "EN"
};

} // namespace tellurix::windows
