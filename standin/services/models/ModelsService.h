#pragma once

#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// The named models of surcharge and deduction lines, managed in a dialog.
class ModelsService final : public host::ModelService {
public:
    ModelsService(ui::Display& display, Localizer& localizer) : display_(display), localizer_(localizer) {}

    void fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) override;
    /// @throws base::Refused when somebody else has deleted the model
    void copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
              host::CalculationForm& form) override;
    void manage(const host::TlxVar& session, const std::string& category, host::CalculationForm& form,
                ui::ComboBox& list) override;

private:
    ui::Display& display_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
