#pragma once

#include "module/base/Decimal.h"
#include "module/base/Locale.h"
#include "module/base/database.h"
#include "module/ui/controls/TextBox.h"

#include <optional>
#include <string>

namespace tellurix::parts {

/// A number box over a column. The box shows fewer decimals than the column holds, so a number that the
/// user did not touch is written back as it was read, not as it is shown; one that the user typed is
/// written as typed, even where it looks the same.
class NumberField {
public:
    /// @param mask how a number is shown
    /// @param typed what can be typed, and stays as typed on leaving; empty for the same mask
    NumberField(ui::TextBox& box, std::string mask, const base::Locale& locale,
                const std::string& typed = {});

    void show(base::Value value);
    /// What to write: NULL for an empty box, a typed number with a decimal point.
    /// @throws ui::RefusedInput when the box holds no number
    base::Value value() const;
    /// The number to write, with a decimal point; nothing for an empty box and for a text that is none.
    std::optional<std::string> number() const;
    ui::TextBox& box() const { return box_; }

private:
    ui::TextBox& box_;
    std::string mask_;
    base::Locale locale_;
    base::Value shown_;
};

} // namespace tellurix::parts
