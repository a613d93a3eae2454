#pragma once

#include "module/logistics/plan/Area.h"
#include "module/ui/controls/ProgressBar.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>

namespace tellurix::logistics {

/// Who helps under a contract, chosen from all who can: many at once, added and removed.
class HelperSelection {
public:
    /// @param bar shows the progress while rows are written
    explicit HelperSelection(ui::ProgressBar& bar) : bar_(bar) {}

    /// What a choice has come to.
    struct Change {
        std::size_t added = 0;
        std::size_t removed = 0;
    };

    /// Lets the user mark the helpers and writes what is different.
    /// @return nothing when the user cancelled
    /// @throws base::Refused after a failure, which has been reported: it tells how many were added and
    ///         removed before it
    std::optional<Change> run(const LogisticsContract& contract);

private:
    using Persons = std::set<std::int64_t>;

    static Persons read(const LogisticsContract& contract);
    void write(const LogisticsContract& contract, const Persons& added, const Persons& removed);

    ui::ProgressBar& bar_;
};

} // namespace tellurix::logistics
