#pragma once

#include "module/base/Locale.h"
#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Lists the articles that a contract type is offered and the user may see.
class CatalogueSelectionService final : public host::CatalogueSelection {
public:
    CatalogueSelectionService(Dialogs& dialogs, Localizer& localizer, const base::Locale& locale)
        : dialogs_(dialogs), localizer_(localizer), locale_(locale) {}

    /// Starts on the current article.
    /// @throws std::invalid_argument for a mode that is none
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, const std::string& upperType,
                        std::int32_t current) override;

private:
    Dialogs& dialogs_;
    Localizer& localizer_;
    base::Locale locale_;
};

} // namespace tellurix::standin
