#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Shows the rows of a query to mark several of them.
class MultiSelectionService final : public host::MultiSelectionList {
public:
    MultiSelectionService(Dialogs& dialogs, Localizer& localizer)
        : dialogs_(dialogs), localizer_(localizer) {}

    std::optional<std::vector<std::int64_t>> choose(const host::TlxVar& session, const std::string& list,
                                                    const std::string& query,
                                                    const std::vector<std::int64_t>& marked) override;

private:
    Dialogs& dialogs_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
