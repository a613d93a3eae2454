#pragma once

#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Resolves typed texts with the query that the screen gives, or in the named list. A text that is not found
/// is told with text 223 and the name of the box; the key and a second box are emptied then, the text stays.
class LookupValidationService final : public host::LookupValidation {
public:
    LookupValidationService(ui::Display& display, Localizer& localizer)
        : display_(display), localizer_(localizer) {}

    bool resolve(const host::TlxVar& session, std::int32_t option, const std::string& query, ui::TextBox& box,
                 ui::TextBox* shown, const std::string& displayColumn, ui::TextBox* third,
                 const std::string& text) override;

private:
    ui::Display& display_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
