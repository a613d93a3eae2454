#include "module/logistics/plan/CalendarArea.h"

#include "module/base/Refused.h"
#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/whole_number.h"
#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"
#include "module/ui/input/control_keys.h"
#include "module/ui/input/number_box.h"

#include <cstdlib>

namespace tellurix::logistics {

using base::OwnText;
using ui::column;
using ui::field;

namespace {

constexpr const char* columnsOfWeeks = "F_VERTRAG_WVO_KAL";
constexpr const char* yearMask = "0000";
constexpr const char* weekMask = "#0";
constexpr const char* planMask = "#####0";
/// The generation plans with two decimals, and so can the user.
constexpr const char* typedPlan = "#####0.00";
constexpr const char* twoDecimals = "##,##0.00";
/// The number of the column with year and week in the list's query.
constexpr int byWeek = 2;

bool hasField(const base::Fields& row, std::string_view name) {
    for (std::size_t i = 0; i < row.fieldCount(); ++i)
        if (row.fieldName(i) == name) return true;
    return false;
}

} // namespace

CalendarArea::CalendarArea(ui::Form& form, host::HostServices& services,
                           const std::optional<DeliveryPeriod>& period, parts::UndoOffers& undo)
    : services_(services),
      period_(period),
      undo_(undo),
      frmKalenderwochen(form, "frmKalenderwochen"),
      DataGridKalendar(form, "DataGridKalendar", 16),
      lblMeldung(form, "lblMeldung"),
      frmKalendar(form, "frmKalendar", "Kalenderwoche"),
      lblKW_Year(form, "lblKW_Year", "Jahr"),
      txtJahr(form, "txtJahr", 6),
      lblKW(form, "lblKW", "KW"),
      txtWoche(form, "txtWoche", 6),
      lblPlanmenge(form, "lblPlanmenge", "Planmenge"),
      txtPlanmenge(form, "txtPlanmenge", 10),
      weekPlan_(form, services),
      btnNeu1(form, "btnNeu1", "Neu"),
      btnBearbeiten1(form, "btnBearbeiten1", "Bearbeiten"),
      btnSpeichern1(form, "btnSpeichern1", "Speichern"),
      btnAbbrechen1(form, "btnAbbrechen1", "Bearb.Abbr."),
      btnLoschen1(form, "btnLoschen1", "Löschen"),
      btnGenWeek(form, "btnGenWeek", "autom. Erstellen"),
      weeks_(DataGridKalendar, services.locale),
      plan_(txtPlanmenge, planMask, services.locale, typedPlan),
      row_(services, contract_.session),
      mode_({.create = &btnNeu1,
             .edit = &btnBearbeiten1,
             .save = &btnSpeichern1,
             .cancel = &btnAbbrechen1,
             .remove = &btnLoschen1},
            {.inView = {&DataGridKalendar, &weekPlan_.bars(), &btnGenWeek},
             .whileEdited = {&frmKalendar},
             .changes = &changes_,
             .rows = &DataGridKalendar},
            [this] { return weeks_.currentKey().has_value(); }) {
    connect();
    connectRow();
}

void CalendarArea::connectRow() {
    const auto digits = [this](ui::TextBox& box, const ui::Label& label, std::string& shown,
                               const char* field, const char* mask) {
        const auto text = [this, field, mask](base::Fields& week) {
            return base::numberText(week.field(field), mask, services_.locale);
        };
        row_.add(
            {.column = field,
             .name = [&label] { return ui::plainCaption(label.caption()); },
             .show =
                 [&box, &shown, text](base::Fields& week) {
                     shown = text(week);
                     box.show(shown);
                 },
             .mine = [this, &box, mask] { return base::reformatNumber(box.text(), mask, services_.locale); },
             .theirs = text,
             .in = {&box}});
    };
    digits(txtJahr, lblKW_Year, shownYear_, "JAHR", yearMask);
    digits(txtWoche, lblKW, shownWeek_, "WOCHE", weekMask);
    row_.number(plan_, "PLANMENGE");
}

void CalendarArea::connect() {
    ui::makeDigitBox(txtJahr);
    txtJahr.setMaxLength(4);
    ui::makeDigitBox(txtWoche);
    txtWoche.setMaxLength(2);
    txtJahr.onPick = [this] {
        if (const DeliveryPeriod* period = requiredPeriod()) pick(txtJahr, lblKW_Year, yearChoices(*period));
    };
    txtWoche.onPick = [this] {
        const DeliveryPeriod* period = requiredPeriod();
        if (period == nullptr) return;
        const auto year = base::wholeNumber<int>(txtJahr.text());
        pick(txtWoche, lblKW, weekChoices(*period, year.value_or(static_cast<int>(period->from.year()))));
    };
    txtJahr.onLeave = [this] { return leaveYear(); };
    txtWoche.onLeave = [this] { return leaveWeek(); };
    DataGridKalendar.onHeadingClick = [this](int heading) { sortBy(heading); };
    DataGridKalendar.onDoubleClick = [this] {
        if (btnBearbeiten1.usable()) startEdit();
    };
    DataGridKalendar.onCurrentChange = [this] {
        weekPlan_.mark(weeks_.currentKey());
        showCurrent();
    };
    weekPlan_.onSelect = [this](std::int64_t week) { goTo(week); };
    btnNeu1.onClick = [this] { startNew(); };
    btnBearbeiten1.onClick = [this] { startEdit(); };
    btnSpeichern1.onClick = [this] { save(); };
    btnAbbrechen1.onClick = [this] { cancel(); };
    btnLoschen1.onClick = [this] { removeWeek(); };
    btnGenWeek.onClick = [this] { generate(); };
    for (ui::TextBox* box : {&txtJahr, &txtWoche, &txtPlanmenge})
        changes_.watch(*box);
}

ui::Layout CalendarArea::layout() {
    return column({
        ui::sides(ui::section(frmKalenderwochen, {btnGenWeek},
                              {ui::Layout{DataGridKalendar}.growing(), lblMeldung}),
                  ui::groups({
                                 ui::frame(frmKalendar,
                                           {ui::fields(1, {field(lblKW_Year, txtJahr), field(lblKW, txtWoche),
                                                           field(lblPlanmenge, txtPlanmenge)})}),
                                 weekPlan_.chart(),
                                 weekPlan_.sums(),
                             })
                      .growing())
            .growing(),
        ui::bar({btnNeu1, btnBearbeiten1, ui::Layout{btnSpeichern1}.primary(), btnAbbrechen1, btnLoschen1}),
    });
}

std::vector<parts::KeyedGrid::Column> CalendarArea::columns(base::Fields* week) {
    std::vector<parts::KeyedGrid::Column> columns{
        {.caption = "Jahr/Woche", .width = 12, .field = "JAHRWOCHE"},
        {.caption = "Datum", .width = 24, .field = "DATUM"},
        {.caption = "Planmenge",
         .width = 14,
         .field = "PLANMENGE",
         .mask = twoDecimals,
         .rightAligned = true}};
    for (const auto& [name, caption] : {std::pair{"WHANG", "WH-Ang."}, std::pair{"WHBES", "WH-Bes."}}) {
        if (week != nullptr && hasField(*week, name))
            columns.push_back(
                {.caption = caption, .width = 14, .field = name, .mask = twoDecimals, .rightAligned = true});
    }
    return columns;
}

void CalendarArea::open(const LogisticsContract& contract) {
    contract_ = contract;
    statements_ = CalendarStatements{contract.id, contract.record};
    editedKey_ = 0;
    changes_.forget();
    mode_.reset();
    frmKalenderwochen.setCaption("Kalenderwochen");
    caption_.clear();
    lblMeldung.setCaption("");
    clearBoxes();
    weeks_.setColumns(columns(nullptr));
    DataGridKalendar.markOrder(0, ui::Grid::Order::ascending);
    weeks_.clear();
}

void CalendarArea::restoreColumns() {
    const int shown = sortColumn();
    services_.gridLayouts.restore(contract_.session, DataGridKalendar, columnsOfWeeks);
    if (sortColumn() != shown) reload(weeks_.currentKey());
}

void CalendarArea::saveColumns() {
    services_.gridLayouts.save(contract_.session, DataGridKalendar, columnsOfWeeks);
}

void CalendarArea::reload(std::optional<std::int64_t> key) {
    const ui::BusyPointer busy{services_.display};
    std::vector<parts::KeyedRow> rows =
        parts::KeyedRows::read(contract_.connection(), statements_.list(sortColumn()), "ID").rows;
    // The translated caption is there only after the form was opened.
    if (caption_.empty()) caption_ = frmKalenderwochen.caption();
    std::string caption = caption_;
    if (!rows.empty()) {
        base::Fields& first = rows.front();
        if (auto found = columns(&first); found.size() != weeks_.columns().size()) {
            weeks_.setColumns(std::move(found));
            DataGridKalendar.markOrder(0, ui::Grid::Order::ascending);
        }
        const std::string sum = base::numberText(first.field("PLANMENGEALL"), "0", services_.locale);
        if (!sum.empty()) caption += "   " + sum;
    }
    frmKalenderwochen.setCaption(std::move(caption));
    // A contract without weeks answers one row, which is none.
    std::erase_if(rows, [](const parts::KeyedRow& week) { return week.key() == 0; });
    DataGridKalendar.setEmptyText(words(
        OwnText::noWeeks, {ui::plainCaption(btnNeu1.caption()), ui::plainCaption(btnGenWeek.caption())}));
    weeks_.show(std::move(rows));
    if (key) weeks_.select(*key);
    weekPlan_.show(weeks_, contract_, statements_);
    showCurrent();
}

void CalendarArea::goTo(std::int64_t week) {
    const auto row = weeks_.find(week);
    if (!row) return;
    parts::SafeSetFocus(DataGridKalendar);
    ui::choose(DataGridKalendar, *row, DataGridKalendar.currentColumn());
}

void CalendarArea::sortBy(int heading) {
    const auto column = static_cast<std::size_t>(heading);
    const bool again = sortColumn() == numberOf(column);
    DataGridKalendar.markOrder(heading, again ? ui::Grid::Order::descending : ui::Grid::Order::ascending);
    reload(std::nullopt);
    // Somebody else may have deleted the weeks.
    mode_.refresh();
}

int CalendarArea::numberOf(std::size_t column) {
    // Dates are texts here and would sort by the day of the month; their weeks sort them by time.
    const std::string& shown = weeks_.columns().at(column).field;
    if (shown == "DATUM" || weeks_.empty()) return byWeek;
    return static_cast<int>(weeks_.rows().front().fieldIndex(shown)) + 1;
}

int CalendarArea::sortColumn() {
    const auto& columns = DataGridKalendar.columns();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].order == ui::Grid::Order::none) continue;
        return columns[i].order == ui::Grid::Order::descending ? -numberOf(i) : numberOf(i);
    }
    return byWeek;
}

void CalendarArea::clearBoxes() {
    for (ui::TextBox* box : {&txtJahr, &txtWoche, &txtPlanmenge})
        box->show("");
    row_.leave();
}

void CalendarArea::showCurrent() {
    if (!mode_.viewing()) return;
    if (weeks_.currentKey())
        row_.show(weeks_.row(DataGridKalendar.currentRow()));
    else
        clearBoxes();
}

void CalendarArea::startNew() {
    clearBoxes();
    plan_.show(base::Null{});
    edit(parts::EditMode::State::fresh, 0);
}

void CalendarArea::startEdit() {
    parts::KeyedRow& week = weeks_.row(DataGridKalendar.currentRow());
    row_.show(week);
    edit(parts::EditMode::State::edit, week.key());
}

void CalendarArea::edit(parts::EditMode::State state, std::int64_t key) {
    editedKey_ = key;
    shownYear_ = txtJahr.text();
    shownWeek_ = txtWoche.text();
    changes_.forget();
    lblMeldung.setCaption("");
    mode_.enter(state);
    parts::SafeSetFocus(txtJahr);
}

const DeliveryPeriod* CalendarArea::requiredPeriod() {
    if (period_) return &*period_;
    parts::ShowMessage(services_.display, "Es wurde im Vertragskopf kein Lieferzeitraum eingegeben.",
                       ui::box::exclamation);
    return nullptr;
}

void CalendarArea::pick(ui::TextBox& box, const ui::Label& label, const std::string& choices) {
    // A period that ends before it begins has nothing to choose from.
    if (choices.empty()) {
        refuseWeek(box);
        return;
    }
    box.setText(services_.listPicker.choose(contract_.session, choices, ui::plainCaption(label.caption()),
                                            box.text()));
}

bool CalendarArea::sameWeek() const {
    return txtJahr.text() == shownYear_ && txtWoche.text() == shownWeek_;
}

bool CalendarArea::leaveYear() {
    txtJahr.setText(base::reformatNumber(txtJahr.text(), yearMask, services_.locale));
    const auto year = base::wholeNumber<int>(txtJahr.text());
    if (!year || !period_ || sameWeek()) return true;
    return yearLiesIn(*period_, *year) || refuseWeek(txtJahr);
}

bool CalendarArea::leaveWeek() {
    const auto year = base::wholeNumber<int>(txtJahr.text());
    const auto week = base::wholeNumber<int>(txtWoche.text());
    if (!year || !week || !period_ || sameWeek()) return true;
    return weekLiesIn(*period_, {*year, *week}) || refuseWeek(txtWoche);
}

bool CalendarArea::refuseWeek(ui::TextBox& box) {
    const std::string why = words(OwnText::weekOutsidePeriod, {weeksText(*period_)});
    box.setError(why);
    parts::ShowMessage(services_.display, why, ui::box::exclamation);
    return false;
}

bool CalendarArea::complete() {
    const auto missing = [this](const ui::Label& label, ui::TextBox& box) {
        return parts::missing(services_, contract_.session, label, box);
    };
    if (txtJahr.text().empty()) return missing(lblKW_Year, txtJahr);
    if (txtWoche.text().empty()) return missing(lblKW, txtWoche);
    if (!plan_.number()) return missing(lblPlanmenge, txtPlanmenge);
    const auto other =
        contract_.connection().open(statements_.findOther(txtJahr.text(), txtWoche.text(), editedKey_));
    return other->atEnd() || missing(lblKW, txtWoche);
}

void CalendarArea::save() {
    if (!complete()) return;
    base::Connection& connection = contract_.connection();
    std::string taken;
    if (mode_.state() == parts::EditMode::State::edit) {
        const std::string checked = txtJahr.text() + "/" + txtWoche.text();
        if (!row_.settle([&] { return connection.open(statements_.week(editedKey_)); })) return;
        taken = row_.takenOver();
        // With a colleague's year or week it can be another week than the one that was checked.
        if (txtJahr.text() + "/" + txtWoche.text() != checked && !complete()) return;
    }
    if (editedKey_ == 0) {
        connection.execute(statements_.insert());
        // Kept for the next attempt, if this one fails before the row has its values.
        editedKey_ = connection.open(statements_.newest())->integer(std::size_t{0});
    }
    connection.execute(statements_.update(txtJahr.text(), txtWoche.text(), *plan_.number(), editedKey_));
    reload(editedKey_);
    if (!weeks_.find(editedKey_)) {
        // What was typed can still be saved, as a new week.
        editedKey_ = 0;
        mode_.enter(parts::EditMode::State::fresh);
        throw base::Refused{OwnText::weekIsGone};
    }
    mode_.enter(parts::EditMode::State::view);
    parts::SafeSetFocus(DataGridKalendar);
    undo_.say(parts::savedText(OwnText::saved, taken, contract_.session.language));
}

bool CalendarArea::removeUnfinished() {
    if (mode_.state() != parts::EditMode::State::fresh || editedKey_ == 0) return false;
    contract_.connection().execute(statements_.remove(editedKey_));
    editedKey_ = 0;
    return true;
}

void CalendarArea::discard() {
    removeUnfinished();
}

void CalendarArea::cancel() {
    const bool discards = changed();
    if (removeUnfinished()) reload(std::nullopt);
    mode_.enter(parts::EditMode::State::view);
    showCurrent();
    parts::SafeSetFocus(DataGridKalendar);
    if (discards) undo_.say(words(OwnText::changesDiscarded));
}

void CalendarArea::removeWeek() {
    if (!parts::confirmed(services_.display,
                          services_.localizer.text(host::textNumber::deleteRecord, contract_.session),
                          ui::box::exclamation))
        return;
    contract_.connection().execute(statements_.remove(weeks_.currentKey().value()));
    lblMeldung.setCaption("");
    reload(std::nullopt);
    mode_.refresh();
    undo_.say(words(OwnText::weekDeleted));
}

void CalendarArea::generate() {
    const DeliveryPeriod* period = requiredPeriod();
    if (period == nullptr) return;
    const ui::BusyPointer busy{services_.display};
    lblMeldung.setCaption("");
    WeekGeneration generation{statements_};
    const std::vector<base::IsoWeek> weeks = generatedWeeks(*period);
    std::string made;
    try {
        generation.run(contract_.connection(), weeks);
        made = words(OwnText::weeksGenerated,
                     {std::to_string(generation.made()), std::to_string(weeks.size() - generation.made()),
                      std::to_string(generation.replaced())});
    } catch (const std::exception& error) {
        // The weeks that were made are shown; the next generation makes the others.
        services_.errors.report(error);
    }
    reload(std::nullopt);
    mode_.refresh();
    lblMeldung.setCaption(std::move(made));
    generation.finish(weeks_.rows());
    if (generation.wrote())
        undo_.offer(words(OwnText::weeksMade), [this, generation] { return undoGeneration(generation); });
}

std::string CalendarArea::undoGeneration(const WeekGeneration& generation) {
    if (!mode_.viewing()) throw base::Refused{OwnText::endEditingFirst};
    const ui::BusyPointer busy{services_.display};
    const std::size_t kept = generation.undo(contract_.connection());
    lblMeldung.setCaption("");
    reload(std::nullopt);
    mode_.refresh();
    return kept == 0 ? words(OwnText::weeksUndone)
                     : words(OwnText::weeksPartlyUndone, {std::to_string(kept)});
}

std::string CalendarArea::words(OwnText text, const std::vector<std::string>& values) const {
    return base::ownText(text, contract_.session.language, values);
}

} // namespace tellurix::logistics
