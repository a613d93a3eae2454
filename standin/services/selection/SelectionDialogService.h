#pragma once

#include "module/base/Locale.h"
#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

#include <optional>

namespace tellurix::standin {

/// Edits selection values in a dialog.
///
/// A present value that cannot be read is told to the user and stays as it is when he cancels; what
/// he takes over replaces it.
class SelectionDialogService final : public host::SelectionDialog {
public:
    SelectionDialogService(Dialogs& dialogs, Localizer& localizer, const base::Locale& locale)
        : dialogs_(dialogs), localizer_(localizer), locale_(locale) {}

    /// @throws std::invalid_argument for a key that names no line
    std::optional<std::string> select(const host::TlxVar& session, const std::string& key,
                                      const std::string& upperType, const std::string& out1,
                                      const std::string& out2) override;
    std::optional<std::string> edit(const host::TlxVar& session, const std::string& value,
                                    const std::string& upperType, const std::string& out1,
                                    const std::string& out2) override;

private:
    Dialogs& dialogs_;
    Localizer& localizer_;
    base::Locale locale_;
};

} // namespace tellurix::standin
