#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// The named models of surcharge and deduction lines, managed in a dialog.
class ModelsService final : public host::ModelService {
public:
    ModelsService(Dialogs& dialogs, Localizer& localizer) : dialogs_(dialogs), localizer_(localizer) {}

    void fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) override;
    /// @throws base::Refused when somebody else has deleted the model
    void copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
              host::CalculationForm& form) override;
    void manage(const host::TlxVar& session, const std::string& category, host::CalculationForm& form,
                ui::ComboBox& list) override;

private:
    Dialogs& dialogs_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
