#pragma once

#include "module/ui/controls/Control.h"

#include <optional>
#include <vector>

namespace tellurix::ui {

/// Bars side by side, for the eye alone: a list or table of the same form has the same numbers, and is what
/// the keyboard and screen readers use. A click on a bar goes where that bar stands in it.
class Chart final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::chart;
    static constexpr int none = -1;

    struct Bar {
        std::string name;           ///< stands below it, as far as there is room for all of them
        std::vector<double> values; ///< one for each series
        std::string text;           ///< its values in words, which stand over the marked one

        /// Nothing above 0: it is marked at the base line.
        bool empty() const;
        bool operator==(const Bar&) const = default;
    };
    /// What the axis says: 0, `step`, 2 × `step` … `top`.
    struct Scale {
        double top = 1;
        double step = 1;
    };

    Chart(Form& form, std::string name) : Control(form, std::move(name)) {}

    ControlKind kind() const override { return ownKind; }
    bool takesFocus() const override { return false; }

    /// What the values of a bar are, in their order; a chart with one value a bar needs no names.
    const std::vector<std::string>& series() const { return series_; }
    void setSeries(std::vector<std::string> names) { change(series_, std::move(names)); }
    const std::vector<Bar>& bars() const { return bars_; }
    /// Replaces all bars; none is marked then.
    void setBars(std::vector<Bar> bars);
    /// The bar that stands out, or none.
    int marked() const { return marked_; }
    void mark(int bar);
    /// Where the line of the present day stands, in bars from the left edge: 2.5 is the middle of the third.
    std::optional<double> today() const { return today_; }
    void setToday(std::optional<double> place) { change(today_, place); }
    /// What stands beside that line.
    std::string todayText() const;

    /// Round numbers that hold all bars, whole ones and five at most.
    Scale scale() const;

    /// The name of every so many bars is shown, so that they do not run into each other.
    int namedEvery() const;

    /// The user clicked on a bar, or above or below it.
    Handlers<void(int bar)> onSelect;

private:
    std::vector<std::string> series_;
    std::vector<Bar> bars_;
    int marked_ = none;
    std::optional<double> today_;
};

} // namespace tellurix::ui
