#include "module/ui/DisplayErrors.h"

namespace tellurix::ui {

void DisplayErrors::report(const std::exception& error) {
    if (host_ != nullptr) {
        host_->report(error);
    } else {
        display_.messageBox(error.what(), box::ok | box::critical, "Tellurix");
    }
}

} // namespace tellurix::ui
