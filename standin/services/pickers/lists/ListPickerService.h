#pragma once

#include "module/base/Clock.h"
#include "module/base/Locale.h"
#include "standin/services/Dialogs.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Shows the rows of a query or of a named list in a list that can be narrowed, or a calendar.
class ListPickerService final : public host::ListPicker {
public:
    ListPickerService(Dialogs& dialogs, const base::Clock& clock, Localizer& localizer,
                      const base::Locale& locale)
        : dialogs_(dialogs), clock_(clock), localizer_(localizer), locale_(locale) {}

    std::string choose(const host::TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current, const std::string& text) override;

private:
    std::string chooseEntry(const host::TlxVar& session, const std::string& query, const std::string& title,
                            const std::string& current);
    std::string chooseDay(const host::TlxVar& session, const std::string& title, const std::string& current);
    std::string headingOf(const host::TlxVar& session, const std::string& column) const;

    Dialogs& dialogs_;
    const base::Clock& clock_;
    Localizer& localizer_;
    base::Locale locale_;
};

} // namespace tellurix::standin
