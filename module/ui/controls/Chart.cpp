#include "module/ui/controls/Chart.h"

#include "module/base/own_text.h"
#include "module/ui/Form.h"

#include <algorithm>
#include <cmath>

namespace tellurix::ui {

namespace {

/// The smallest of 1, 2, 5, 10, 20, 50 … of which so many at most make up `whole`.
double roundStep(double whole, double most) {
    double step = 1;
    for (int i = 0; std::ceil(whole / step) > most; ++i)
        step *= i % 3 == 1 ? 2.5 : 2;
    return step;
}

} // namespace

bool Chart::Bar::empty() const {
    return std::ranges::none_of(values, [](double value) { return value > 0; });
}

void Chart::setBars(std::vector<Bar> bars) {
    change(bars_, std::move(bars));
    mark(none);
}

void Chart::mark(int bar) {
    change(marked_, bar >= 0 && bar < static_cast<int>(bars_.size()) ? bar : none);
}

std::string Chart::todayText() const {
    return base::ownText(base::OwnText::today, form().language());
}

int Chart::namedEvery() const {
    constexpr double mostNames = 12;
    return static_cast<int>(roundStep(static_cast<double>(bars_.size()), mostNames));
}

Chart::Scale Chart::scale() const {
    constexpr double mostSteps = 5;
    double largest = 1;
    for (const Bar& bar : bars_)
        for (const double value : bar.values)
            largest = std::max(largest, value);
    const double step = roundStep(largest, mostSteps);
    return {std::ceil(largest / step) * step, step};
}

} // namespace tellurix::ui
