#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Shows the codes of a timber attribute that are not disabled, to mark several of them.
class LookupGridDialogService final : public host::LookupGridDialog {
public:
    LookupGridDialogService(Dialogs& dialogs, Localizer& localizer, const base::Locale& locale)
        : dialogs_(dialogs), localizer_(localizer), locale_(locale) {}

    /// @throws std::invalid_argument for a list that does not exist
    std::string choose(const host::TlxVar& session, const std::string& layout, const std::string& title,
                       const std::string& text, const std::string& mode, const std::string& current) override;

private:
    Dialogs& dialogs_;
    Localizer& localizer_;
    base::Locale locale_;
};

} // namespace tellurix::standin
