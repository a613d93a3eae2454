#pragma once

#include "common/Locale.h"
#include "common/database.h"
#include "ui/TextBox.h"

#include <string>

namespace tellurix::lines {

/// A number box over a column of a line. The box shows fewer decimals than the column holds, so a
/// number that the user did not touch is written back as it was read, not as it is shown.
class NumberField {
public:
    /// @param mask what can be typed, and how a number is shown on leaving
    NumberField(ui::TextBox& box, std::string mask, const common::Locale& locale);

    void show(common::Value value);
    /// What to write: NULL for an empty box, a typed number with a decimal point.
    /// @throws common::StatementError when the box holds no number
    common::Value value() const;

private:
    ui::TextBox& box_;
    std::string mask_;
    common::Locale locale_;
    common::Value shown_;
    std::string shownText_;
};

} // namespace tellurix::lines
