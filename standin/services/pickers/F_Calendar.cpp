#include "standin/services/pickers/F_Calendar.h"

#include "module/base/date_format.h"
#include "module/base/iso_week.h"

#include <algorithm>

namespace tellurix::standin {

using base::Date;
using std::chrono::days;
using std::chrono::local_days;
using std::chrono::months;

namespace {

constexpr int weeksShown = 6;
constexpr int daysOfWeek = 7;

/// What the database can hold.
constexpr Date firstDay{std::chrono::year{1753}, std::chrono::January, std::chrono::day{1}};
constexpr Date lastDay{std::chrono::year{9999}, std::chrono::December, std::chrono::day{31}};

/// The Monday of the first week that a month has days in.
local_days firstMonday(Date month) {
    return local_days{base::mondayOf(Date{month.year(), month.month(), std::chrono::day{1}})};
}

} // namespace

F_Calendar::F_Calendar(std::string title, Date start, Date today, const base::Locale& locale)
    : Form("F_Calendar", std::move(title)), day_(start), locale_(locale) {
    btnPrevious.setToolTip("Vorheriger Monat");
    btnNext.setToolTip("Nächster Monat");
    std::vector<ui::Grid::Column> columns;
    for (const char* caption : {"KW", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"})
        columns.push_back({.caption = caption, .width = 5, .rightAligned = true});
    grdDays.setColumns(std::move(columns));
    connect(today);
    // The grid stands first in the tab order, so that the keys work at once.
    setLayout(ui::column({lblMonth, ui::Layout{grdDays}.growing(), lblDay,
                          ui::row({btnPrevious, btnToday, btnNext}),
                          ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
    show();
}

void F_Calendar::connect(Date today) {
    grdDays.onKeyDown = [this](ui::KeyDown& key) { handleKey(key); };
    grdDays.setOwnKeys({base::OwnText::keyDays, base::OwnText::keyMonths, base::OwnText::keyEndsOfMonth,
                        base::OwnText::keyTake});
    grdDays.onKeyPress = [](char32_t& character) { character = 0; }; // no week begins with a letter
    grdDays.onCurrentChange = [this] { goToCell(); };
    grdDays.onDoubleClick = [this] {
        if (grdDays.currentRow() != ui::Grid::none) choose(day_);
    };
    btnPrevious.onClick = [this] { goToMonth(-1); };
    btnNext.onClick = [this] { goToMonth(+1); };
    btnToday.onClick = [this, today] { choose(today); };
    btnOk.onClick = [this] { choose(day_); };
    btnCancel.onClick = [this] { unload(); };
    setCard();
    setCancelButton(btnCancel);
}

void F_Calendar::handleKey(ui::KeyDown& key) {
    constexpr int monthsOfYear = 12;
    const local_days day{day_};
    switch (key.key) {
    case ui::Key::left:
        goTo(Date{day - days{1}});
        break;
    case ui::Key::right:
        goTo(Date{day + days{1}});
        break;
    case ui::Key::up:
        goTo(Date{day - days{daysOfWeek}});
        break;
    case ui::Key::down:
        goTo(Date{day + days{daysOfWeek}});
        break;
    case ui::Key::pageUp:
        goToMonth(key.shift ? -monthsOfYear : -1);
        break;
    case ui::Key::pageDown:
        goToMonth(key.shift ? +monthsOfYear : +1);
        break;
    case ui::Key::home:
        goTo(Date{day_.year(), day_.month(), std::chrono::day{1}});
        break;
    case ui::Key::end:
        goTo(Date{day_.year() / day_.month() / std::chrono::last});
        break;
    default:
        return;
    }
    key.key = ui::Key::none;
}

void F_Calendar::goToCell() {
    const int column = grdDays.currentColumn();
    const Date day{firstMonday(day_) + days{grdDays.currentRow() * daysOfWeek + column - 1}};
    if (column == 0 || day.month() != day_.month()) {
        // The number of a week, or a place beyond the month, is no day to choose by a double click.
        grdDays.setCurrent(ui::Grid::none);
    } else {
        goTo(day);
    }
}

void F_Calendar::goTo(Date day) {
    day_ = std::clamp(day, firstDay, lastDay);
    show();
}

void F_Calendar::goToMonth(int monthsAway) {
    const auto month = day_.year() / day_.month() + months{monthsAway};
    const Date last{month / std::chrono::last};
    goTo(std::min(Date{month / day_.day()}, last));
}

void F_Calendar::choose(Date day) {
    chosen_ = day;
    unload();
}

void F_Calendar::show() {
    const local_days first = firstMonday(day_);
    std::vector<ui::Grid::Row> weeks;
    for (int week = 0; week < weeksShown; ++week) {
        const local_days monday = first + days{week * daysOfWeek};
        ui::Grid::Row row{""};
        for (int weekday = 0; weekday < daysOfWeek; ++weekday) {
            const Date day{monday + days{weekday}};
            const bool inMonth = day.month() == day_.month();
            if (inMonth) row.front() = std::to_string(base::isoWeekOf(day).week);
            row.push_back(inMonth ? std::to_string(static_cast<unsigned>(day.day())) : "");
        }
        weeks.push_back(std::move(row));
    }
    grdDays.setRows(std::move(weeks));
    const int place = static_cast<int>((local_days{day_} - first).count());
    grdDays.setCurrent(place / daysOfWeek, place % daysOfWeek + 1);
    lblMonth.setCaption(base::formatDate(day_, "mmmm yyyy", locale_));
    lblDay.setCaption(base::formatDate(day_, "dddd", locale_) + ", " + base::dateText(day_));
}

} // namespace tellurix::standin
