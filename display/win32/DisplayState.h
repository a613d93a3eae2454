#pragma once

#include <string>

namespace tellurix::windows {

/// What holds for all windows of a display.
struct DisplayState {
    int busy = 0;                ///< how many operations show the hourglass
    std::string language = "de"; ///< of the display's own texts: "de" or "en"
};

} // namespace tellurix::windows
