#pragma once

#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Shows the rows of a query to mark several of them.
class MultiSelectionService final : public host::MultiSelectionList {
public:
    MultiSelectionService(ui::Display& display, Localizer& localizer)
        : display_(display), localizer_(localizer) {}

    std::optional<std::vector<std::int64_t>> choose(const host::TlxVar& session, const std::string& list,
                                                    const std::string& query,
                                                    const std::vector<std::int64_t>& marked) override;

private:
    ui::Display& display_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
