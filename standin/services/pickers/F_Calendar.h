#pragma once

#include "module/base/Locale.h"
#include "module/base/date_time.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"

#include <optional>
#include <string>

namespace tellurix::standin {

/// A month to choose a day from: weeks from Monday to Sunday, each with its ISO number in front.
///
/// The arrows go a day or a week, Page up and down a month, with Shift a year, Home and End to the
/// ends of the month; Enter or a double click chooses, "Heute" chooses the present day.
class F_Calendar final : public ui::Form {
public:
    /// @param start the day that it starts on
    F_Calendar(std::string title, base::Date start, base::Date today, const base::Locale& locale);

    /// The answer, nothing when the user cancelled.
    const std::optional<base::Date>& chosen() const { return chosen_; }

private:
    void connect(base::Date today);
    void handleKey(ui::KeyDown& key);
    void goToCell();
    void goTo(base::Date day);
    /// The same day of another month, or its last one where the month is shorter.
    void goToMonth(int monthsAway);
    void choose(base::Date day);
    void show();

    base::Date day_;
    base::Locale locale_;
    std::optional<base::Date> chosen_;

    ui::Label lblMonth{*this, "lblMonth"};
    ui::Grid grdDays{*this, "grdDays", 6};
    ui::Label lblDay{*this, "lblDay"};
    ui::Button btnPrevious{*this, "btnPrevious", "<"};
    ui::Button btnNext{*this, "btnNext", ">"};
    ui::Button btnToday{*this, "btnToday", "&Heute"};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
};

} // namespace tellurix::standin
