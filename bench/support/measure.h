#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace tellurix::bench {

using Clock = std::chrono::steady_clock;

/// How long one thing took each time it was done. Other programs on the machine only ever make a
/// measurement longer, so figures are medians and percentiles, never means.
class Durations {
public:
    void add(Clock::duration duration) {
        microseconds_.push_back(std::chrono::duration<double, std::micro>(duration).count());
        sorted_ = false;
    }

    std::size_t count() const { return microseconds_.size(); }
    /// The time in microseconds that `percent` of all did not exceed.
    double percentile(double percent) const {
        if (microseconds_.empty()) throw std::logic_error{"nothing was measured"};
        sort();
        const double last = static_cast<double>(microseconds_.size() - 1);
        return microseconds_[static_cast<std::size_t>(std::lround(last * percent / 100))];
    }
    double median() const { return percentile(50); }
    double longest() const { return percentile(100); }

private:
    void sort() const {
        if (!sorted_) std::ranges::sort(microseconds_);
        sorted_ = true;
    }

    mutable std::vector<double> microseconds_;
    mutable bool sorted_ = false;
};

template <typename Action>
Clock::duration timeOf(Action&& action) {
    const Clock::time_point start = Clock::now();
    action();
    return Clock::now() - start;
}

/// Has the optimiser believe that the value is used, so that making it is not left out.
template <typename T>
void keep(const T& value) {
    asm volatile("" : : "g"(&value) : "memory"); // NOLINT(hicpp-no-assembler)
}

} // namespace tellurix::bench
