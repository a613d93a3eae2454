#pragma once

#include "module/base/Refused.h"

#include <utility>
#include <vector>

namespace tellurix::ui {

class Control;

/// What stands in a control cannot be taken as it is. The message names the control by its label; the
/// user is told, and then finds the focus there.
class RefusedInput : public base::Refused {
public:
    RefusedInput(Control& control, std::vector<Sentence> message)
        : base::Refused(std::move(message)), control_(&control) {}

    Control& control() const { return *control_; }

private:
    Control* control_;
};

} // namespace tellurix::ui
