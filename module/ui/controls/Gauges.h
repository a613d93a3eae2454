#pragma once

#include "module/ui/controls/Control.h"

#include <vector>

namespace tellurix::ui {

/// How much of each of several things has been reached: a table to be read, and below each of its lines a
/// bar that shows the same. A bar reaches to 125 % and has ticks at 100 % and at the permitted limit.
class Gauges final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::gauges;
    /// What a whole bar stands for.
    static constexpr double scale = 1.25;

    struct Gauge {
        std::vector<std::string> cells; ///< one for each heading; the first names the line
        double reached = 0;             ///< 1 is all of it; what is beyond stands out
        double permitted = 1;           ///< more than this is too much
        bool warns = false;             ///< the last cell says something that is too much

        bool operator==(const Gauge&) const = default;
    };

    Gauges(Form& form, std::string name) : Control(form, std::move(name)) {}

    ControlKind kind() const override { return ownKind; }
    bool takesFocus() const override { return false; }

    /// The headings: that of the names, and of what is aligned to the right.
    const std::vector<std::string>& headings() const { return headings_; }
    void setHeadings(std::vector<std::string> headings) { change(headings_, std::move(headings)); }
    const std::vector<Gauge>& gauges() const { return gauges_; }
    void setGauges(std::vector<Gauge> gauges) { change(gauges_, std::move(gauges)); }

private:
    std::vector<std::string> headings_;
    std::vector<Gauge> gauges_;
};

} // namespace tellurix::ui
