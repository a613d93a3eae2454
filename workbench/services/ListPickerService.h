#pragma once

#include "common/Clock.h"
#include "common/Locale.h"
#include "services/Localizer.h"

namespace tellurix::workbench {

/// Shows the rows of a query in a list that can be narrowed, or a calendar.
class ListPickerService final : public host::ListPicker {
public:
    ListPickerService(ui::Display& display, const common::Clock& clock, Localizer& localizer,
                      const common::Locale& locale)
        : display_(display), clock_(clock), localizer_(localizer), locale_(locale) {}

    std::string choose(const host::TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current, const std::string& text) override;

private:
    std::string chooseEntry(const host::TlxVar& session, const std::string& query, const std::string& title,
                            const std::string& current);
    std::string chooseDay(const host::TlxVar& session, const std::string& title, const std::string& current);
    std::string headingOf(const host::TlxVar& session, const std::string& column) const;

    ui::Display& display_;
    const common::Clock& clock_;
    Localizer& localizer_;
    common::Locale locale_;
};

} // namespace tellurix::workbench
