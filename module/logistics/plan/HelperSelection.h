#pragma once

#include "module/logistics/plan/Area.h"
#include "module/ui/controls/ProgressBar.h"

#include <cstdint>
#include <set>

namespace tellurix::logistics {

/// Who helps under a contract, chosen from all who can: many at once, added and removed.
class HelperSelection {
public:
    /// @param bar shows the progress while rows are written
    explicit HelperSelection(ui::ProgressBar& bar) : bar_(bar) {}

    /// Lets the user mark the helpers and writes what is different.
    /// @return false when the user cancelled
    /// @throws base::Refused after a failure, which has been reported: it tells how many were added and
    ///         removed before it
    bool run(const LogisticsContract& contract);

private:
    using Persons = std::set<std::int64_t>;

    static Persons read(const LogisticsContract& contract);
    void write(const LogisticsContract& contract, const Persons& added, const Persons& removed);

    ui::ProgressBar& bar_;
};

} // namespace tellurix::logistics
