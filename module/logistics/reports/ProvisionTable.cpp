#include "module/logistics/reports/ProvisionTable.h"

#include "module/base/field_text.h"
#include "module/base/own_text.h"
#include "module/base/whole_number.h"
#include "module/logistics/quantity_cell.h"
#include "module/logistics/row_saving.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/number_box.h"

#include <algorithm>
#include <array>

namespace tellurix::logistics {

using base::OwnText;
using parts::KeyedRow;

namespace {

/// Loads are whole numbers from 0 to 9999.
constexpr const char* loadMask = "###0";
constexpr std::int64_t mostLoads = 9999;
/// The column of the names, which has no field name of its own.
constexpr const char* nameColumn = "NAME";
constexpr std::array<const char*, 3> typedFields{reportField::announced, reportField::confirmed,
                                                 reportField::carrier};

/// What stands in it now stays, if it was typed; the report is none any more.
void forgetReport(KeyedRow& row) {
    for (const char* field : typedFields)
        row.touched(field) ? row.rebase(field, base::Null{}) : row.refresh(field, base::Null{});
    row.refresh(reportField::report, base::Null{});
}

std::string reportText(const base::Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    if (text != nullptr) return *text;
    return base::numberText(value, "0", base::Locale::german());
}

/// Whether a text can stand between the quotes of a statement as it is, and be stored as it is: of two quotes
/// in a row one would be stored.
bool canBeQuoted(const std::string& text) {
    return text.find('\'') == std::string::npos;
}

bool hasReport(KeyedRow& row) {
    return row.integer(reportField::report) != 0;
}

} // namespace

ProvisionTable::ProvisionTable(ui::Grid& grid, ui::TextBox& box, ui::CheckBox& onlyMissing,
                               const base::Locale& locale)
    : shown_(grid),
      box_(box),
      onlyMissing_(onlyMissing),
      locale_(locale),
      grid_(grid, locale),
      editor_(grid, box) {
    onlyMissing_.onClick = [this] { hideReported(); };
    editor_.canEdit = [this](int row, int /*column*/) {
        // A helper who is no person any more can have no report.
        return grid_.keyOf(row) != 0;
    };
    editor_.prepare = [this](ui::TextBox& cell, int column) {
        const parts::KeyedGrid::Column& edited = grid_.columns()[static_cast<std::size_t>(column)];
        const bool carrier = edited.field == reportField::carrier;
        cell.setRightAligned(!carrier);
        cell.setToolTip(edited.toolTip);
        if (!carrier) return ui::takeNumbers(cell, loadMask, locale_);
        cell.onKeyPress = std::function<void(char32_t&)>{};
        cell.onPaste = nullptr;
        cell.setMaxLength(carrierWidth_);
    };
    editor_.write = [this](int row, int column, const std::string& typed) {
        return writeCell(row, column, typed);
    };
}

void ProvisionTable::open(const std::string& language, int carrierWidth) {
    language_ = language;
    carrierWidth_ = carrierWidth;
    const auto name = [](KeyedRow& row) { return nameOf(row); };
    const auto loads = [](const char* caption, const char* field) {
        return parts::KeyedGrid::Column{.caption = caption,
                                        .width = 13,
                                        .field = field,
                                        .mask = "0",
                                        .rightAligned = true,
                                        .editable = true,
                                        .sorts = true};
    };
    const auto quantity = [](const char* caption, const char* field) {
        return parts::KeyedGrid::Column{.caption = caption,
                                        .width = 14,
                                        .field = field,
                                        .mask = quantityMask,
                                        .rightAligned = true,
                                        .sorts = true};
    };
    const auto stamp = [](const char* field) {
        return parts::KeyedGrid::Column{.field = field, .mask = stampMask, .hidden = true};
    };
    grid_.setColumns({
        {.caption = "WH-Nr.", .width = 8, .field = "NUMMER", .sorts = true},
        {.caption = "Waldhelfer", .width = 24, .field = nameColumn, .sorts = true, .shown = name},
        {.caption = "Meldung",
         .width = 9,
         .sorts = true,
         .shown = [this](KeyedRow& row) { return mark(row); },
         .remark = true,
         .warns = [this](KeyedRow& row) { return lacksReport(row); }},
        loads("Züge", reportField::announced),
        {.caption = "Bemerkung WH", .width = 28, .field = "BEMERKUNG", .sorts = true},
        loads("Züge zugesagt", reportField::confirmed),
        // Whoever carries the timber; only the tool tip says so.
        {.caption = "Bemerkung",
         .width = 24,
         .field = reportField::carrier,
         .editable = true,
         .sorts = true,
         .toolTip = base::ownText(OwnText::carrier, language_)},
        quantity("Menge angem.", "MENGE_ANG"),
        quantity("Menge best.", "MENGE_BES"),
        quantity("Menge geliefert", "Geliefert"),
        stamp("DATUM_CHANGE"),
        stamp("DATUM_CHANGE_ZENT"),
    });
}

void ProvisionTable::setEditing(bool editing) {
    grid_.openCells(editing);
    if (editor_.open()) editor_.close();
}

void ProvisionTable::show(std::vector<KeyedRow> rows, bool ofWeek) {
    if (editor_.open()) editor_.close();
    ofWeek_ = ofWeek;
    grid_.show(std::move(rows));
}

void ProvisionTable::hideReported() {
    if (!onlyMissing_.checked()) return grid_.showOnly({});
    grid_.showOnly([](KeyedRow& row) { return !hasReport(row); });
}

std::vector<std::string> ProvisionTable::missing() {
    std::vector<std::string> names;
    for (KeyedRow& row : rows())
        if (!hasReport(row)) names.push_back(nameOf(row));
    return names;
}

bool ProvisionTable::hasTyped() {
    return grid_.touchedRows() > 0 || (editor_.open() && box_.touched());
}

bool ProvisionTable::lacksReport(KeyedRow& row) const {
    return ofWeek_ && !row.touched() && !hasReport(row);
}

std::string ProvisionTable::mark(KeyedRow& row) const {
    if (row.touched()) return "*";
    return lacksReport(row) ? base::ownText(OwnText::reportMissing, language_) : std::string{};
}

int ProvisionTable::columnOf(std::string_view field) const {
    return static_cast<int>(std::ranges::find(grid_.columns(), field, &parts::KeyedGrid::Column::field) -
                            grid_.columns().begin());
}

void ProvisionTable::goToFirstCell() {
    shown_.setCurrent(std::max(shown_.currentRow(), 0), columnOf(reportField::announced));
}

void ProvisionTable::confirmAll() {
    grid_.copyField(reportField::announced, reportField::confirmed);
    onChange();
}

void ProvisionTable::refuse(ui::Control& control, int column, const std::string& value,
                            base::Refused::Sentence reason) const {
    auto message = base::refusedValue(value, shown_.columns()[static_cast<std::size_t>(column)].caption);
    message.push_back(std::move(reason));
    throw ui::RefusedInput{control, std::move(message)};
}

base::Value ProvisionTable::valueOf(int column, const std::string& typed) const {
    if (column == columnOf(reportField::carrier)) {
        if (!canBeQuoted(typed)) refuse(box_, column, typed, {OwnText::textWithApostrophe});
        return typed;
    }
    if (typed.empty()) return base::Null{};
    const auto loads = base::wholeNumber<std::int64_t>(typed);
    if (!loads || *loads < 0 || *loads > mostLoads)
        refuse(box_, column, typed, {OwnText::loadsWanted, {std::to_string(mostLoads)}});
    return *loads;
}

std::string ProvisionTable::writeCell(int row, int column, const std::string& typed) {
    grid_.setValue(row, grid_.columns()[static_cast<std::size_t>(column)].field, valueOf(column, typed));
    onChange();
    return shown_.cell(row, column);
}

bool ProvisionTable::canCarry(KeyedRow& row) {
    return canBeQuoted(row.text(reportField::carrier));
}

bool ProvisionTable::isStored(KeyedRow& row, KeyedRow& report) {
    return std::ranges::all_of(typedFields,
                               [&](const char* field) { return row.text(field) == report.text(field); });
}

void ProvisionTable::requireCarriers() {
    for (KeyedRow& row : rows()) {
        if (!row.touched() || canCarry(row)) continue;
        const int column = columnOf(reportField::carrier);
        const std::int64_t helper = row.key();
        const std::string carrier = row.text(reportField::carrier);
        onlyMissing_.setChecked(false);
        hideReported();
        shown_.setCurrent(grid_.find(helper).value_or(ui::Grid::none), column);
        refuse(shown_, column, carrier, {OwnText::textWithApostrophe});
    }
}

std::vector<KeyedRow*> ProvisionTable::refresh(std::vector<KeyedRow> now, parts::RowMerge& merge) {
    // A helper may have several reports: each belongs to one row.
    const auto taken = [this](const KeyedRow& report) {
        return std::ranges::any_of(
            rows(), [&](KeyedRow& row) { return row.integer(reportField::report) == report.key(); });
    };
    std::vector<KeyedRow*> gone;
    for (KeyedRow& row : rows()) {
        const bool reportedBefore = hasReport(row);
        const std::int64_t report = row.integer(reportField::report);
        auto found = std::ranges::find(now, report, &KeyedRow::key);
        if (found == now.end())
            found = std::ranges::find_if(now, [&](KeyedRow& other) {
                return other.integer(reportField::helper) == row.key() && !taken(other);
            });
        if (reportedBefore && found == now.end() && row.touched()) {
            gone.push_back(&row);
            continue;
        }
        for (const char* field : typedFields) {
            const std::string& caption = shown_.columns()[static_cast<std::size_t>(columnOf(field))].caption;
            merge.field(row, field, found == now.end() ? base::Value{} : found->field(field),
                        nameOf(row) + ", " + caption, reportText);
        }
        row.refresh(reportField::report, found == now.end() ? base::Value{} : base::Value{found->key()});
    }
    // Before the user has answered, nobody has been told of them.
    if (merge.settled())
        for (KeyedRow* row : gone)
            forgetReport(*row);
    redraw();
    return gone;
}

std::string ProvisionTable::text(bool internal) {
    std::vector<parts::KeyedGrid::TextColumn> columns{{"WH-Nr.", "NUMMER"},
                                                      {"Waldhelfer", nameColumn},
                                                      {"Straße", "STRASSE"},
                                                      {"PLZ", "PLZ"},
                                                      {"Ort", "ORT"},
                                                      {"Telefon", "TELEFON"},
                                                      {"Handy", "HANDY"},
                                                      {"Züge", reportField::announced},
                                                      {"BemerkungWH", "BEMERKUNG"},
                                                      {"Züge zugesagt", reportField::confirmed},
                                                      {"Bemerkung", reportField::carrier}};
    if (internal)
        columns.insert(columns.end(), {{"WH Änderung", "DATUM_CHANGE"},
                                       {"Zent. Änderung", "DATUM_CHANGE_ZENT"},
                                       {"Menge angem.", "MENGE_ANG"},
                                       {"Menge best.", "MENGE_BES"},
                                       {"Menge geliefert", "Geliefert"}});
    return grid_.text(columns);
}

} // namespace tellurix::logistics
