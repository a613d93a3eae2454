#pragma once

#include "common/Decimal.h"
#include "common/Locale.h"
#include "common/database.h"
#include "ui/TextBox.h"

#include <optional>
#include <string>

namespace tellurix::common {

/// A number box over a column. The box shows fewer decimals than the column holds, so a number that the
/// user did not touch is written back as it was read, not as it is shown; one that the user typed is
/// written as typed, even where it looks the same.
class NumberField {
public:
    /// @param mask what can be typed, and how a number is shown on leaving
    NumberField(ui::TextBox& box, std::string mask, const Locale& locale);

    void show(Value value);
    /// What to write: NULL for an empty box, a typed number with a decimal point.
    /// @throws ui::RefusedInput when the box holds no number
    Value value() const;
    /// The number to write, with a decimal point; nothing for an empty box and for a text that is none.
    std::optional<std::string> number() const;

private:
    ui::TextBox& box_;
    std::string mask_;
    Locale locale_;
    Value shown_;
};

} // namespace tellurix::common
