#include "module/logistics/GuardedQuantities.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/logistics/quantity_cell.h"
#include "module/logistics/row_saving.h"
#include "module/parts/M_Common.h"
#include "module/parts/ShownProgress.h"
#include "module/parts/meanwhile/RowMerge.h"
#include "module/ui/input/RefusedInput.h"

#include <algorithm>
#include <exception>

namespace tellurix::logistics {

using base::OwnText;
using base::StatementText;
using base::Value;

namespace {

/// With all decimals: what is shown in fewer may differ all the same.
std::string exactText(const Value& quantity) {
    return base::numberText(quantity, "##,##0.######", base::Locale::german());
}

void appendQuantity(StatementText& statement, const Value& quantity) {
    const auto number = base::numberIn(quantity);
    number ? statement.number(number->toString()) : statement.null();
}

void appendDiffers(StatementText& statement, std::string_view ifEmpty, std::string_view otherwise,
                   const Value& quantity) {
    const auto number = base::numberIn(quantity);
    number ? statement.fixed(otherwise).number(number->toString()) : statement.fixed(ifEmpty);
}

} // namespace

std::string GuardedQuantities::statement(std::string_view condition, std::int64_t key,
                                         const Value& announcedQuantity, const Value& confirmedQuantity,
                                         base::DateTime now) {
    StatementText update{"UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = "};
    appendQuantity(update, announcedQuantity);
    update.fixed(",MENGE_BES = ");
    appendQuantity(update, confirmedQuantity);
    update.fixed(", DATUM_CHANGE_ZENT = '").fixed(centreStamp(now)).fixed("' ").fixed(condition);
    // clang-format off
    appendDiffers(update, " MENGE_BES is not null ", " ISNULL(MENGE_BES,99999999) <> ", confirmedQuantity);
    update.fixed(" OR ");
    appendDiffers(update, " MENGE_ANG is not null ", " ISNULL(MENGE_ANG,99999999) <> ", announcedQuantity);
    update.fixed(" ) AND WVO_VERTRAG_WALDHELFER.ID = ").number(key);
    // clang-format on
    return update.text();
}

GuardedQuantities::GuardedQuantities(ui::Grid& grid, parts::KeyedGrid& rows, ui::TextBox& box,
                                     ui::ProgressBar& bar, Screen screen)
    : grid_(grid), rows_(rows), box_(box), bar_(bar), screen_(std::move(screen)), cell_(grid, box) {
    takeQuantities(box_);
    bar_.setVisible(false);
    cell_.write = [this](int row, int column, const std::string& text) { return write(row, column, text); };
}

parts::KeyedGrid::Column GuardedQuantities::markColumn() {
    return {.width = 3, .shown = [](parts::KeyedRow& row) { return row.touched() ? "*" : ""; }};
}

parts::KeyedGrid::Column GuardedQuantities::column(std::string caption, const char* field) {
    return {.caption = std::move(caption),
            .width = 14,
            .field = field,
            .mask = quantityMask,
            .rightAligned = true,
            .editable = true,
            .sorts = true};
}

void GuardedQuantities::show(std::vector<parts::KeyedRow> rows) {
    cell_.close();
    rows_.show(std::move(rows));
    takenOver_.clear();
    screen_.changed();
}

void GuardedQuantities::startEditing() {
    int column = grid_.currentColumn();
    if (!rows_.editable(column)) {
        const auto first = std::ranges::find(rows_.columns(), true, &parts::KeyedGrid::Column::editable);
        column = static_cast<int>(first - rows_.columns().begin());
    }
    grid_.setCurrent(grid_.currentRow(), column);
    parts::SafeSetFocus(grid_);
}

bool GuardedQuantities::changed() const {
    if (cell_.open() && box_.touched()) return true;
    return rows_.touchedRows() > 0;
}

std::string GuardedQuantities::write(int row, int column, const std::string& text) {
    auto quantity = quantityIn(text);
    if (!quantity) {
        const std::string& heading = grid_.columns().at(static_cast<std::size_t>(column)).caption;
        std::vector<base::Refused::Sentence> message = base::refusedValue(text, heading);
        message.push_back({OwnText::noQuantity});
        throw ui::RefusedInput{box_, std::move(message)};
    }
    rows_.setValue(row, rows_.columns().at(static_cast<std::size_t>(column)).field, std::move(*quantity));
    screen_.changed();
    return grid_.cell(row, column);
}

void GuardedQuantities::confirmAll() {
    rows_.copyField(announced, confirmed);
    screen_.changed();
}

GuardedQuantities::QuantitiesByKey GuardedQuantities::read(base::Connection& connection,
                                                           const std::string& query) {
    QuantitiesByKey quantities;
    for (auto row = connection.open(query); !row->atEnd(); row->moveNext())
        quantities[row->integer("ID")] = {row->field(announced), row->field(confirmed)};
    return quantities;
}

std::string GuardedQuantities::sum(std::string_view field) const {
    return base::formatNumber(rows_.sum(field), quantityMask, base::Locale::german());
}

bool GuardedQuantities::save(host::HostServices& services, const host::TlxVar& session,
                             const std::string& present) {
    const auto now = settle(services, session, present);
    if (!now) return false;
    writeRows(services, session, *now);
    tellGone(services, session, *now);
    return true;
}

std::optional<GuardedQuantities::QuantitiesByKey> GuardedQuantities::settle(host::HostServices& services,
                                                                            const host::TlxVar& session,
                                                                            const std::string& present) {
    const auto captionOf = [this](std::string_view field) {
        return std::ranges::find(rows_.columns(), field, &parts::KeyedGrid::Column::field)->caption;
    };
    QuantitiesByKey now;
    parts::RowMerge merge{services, session, rows_, takenOver_};
    const bool settled = merge.settle([&] {
        now = read(*session.connection, present);
        for (parts::KeyedRow& row : rows_.rows()) {
            const auto found = now.find(row.key());
            if (found == now.end()) continue;
            const std::string name = screen_.nameOf(row) + ", ";
            merge.field(row, announced, found->second.announced, name + captionOf(announced), exactText);
            merge.field(row, confirmed, found->second.confirmed, name + captionOf(confirmed), exactText);
        }
        rows_.redraw();
        screen_.changed();
    });
    return settled ? std::optional{std::move(now)} : std::nullopt;
}

void GuardedQuantities::writeRows(host::HostServices& services, const host::TlxVar& session,
                                  const QuantitiesByKey& present) {
    parts::ShownProgress progress{services.display, bar_, rows_.rowCount()};
    const base::DateTime moment = services.clock.now();
    const auto all = static_cast<std::size_t>(rows_.touchedRows());
    std::size_t written = 0;
    for (parts::KeyedRow& row : rows_.rows()) {
        if (present.contains(row.key())) {
            try {
                session.connection->execute(statement(screen_.condition, row.key(), row.field(announced),
                                                      row.field(confirmed), moment));
            } catch (const std::exception& error) {
                rows_.redraw();
                stopSaving(services, error, screen_.nameOf(row), written, all);
            }
            written += row.touched() ? 1U : 0U;
            row.settle();
        }
        progress.step();
    }
}

void GuardedQuantities::tellGone(host::HostServices& services, const host::TlxVar& session,
                                 const QuantitiesByKey& present) {
    std::vector<std::string> gone;
    for (parts::KeyedRow& row : rows_.rows()) {
        if (row.touched() && !present.contains(row.key())) gone.push_back(screen_.nameOf(row));
    }
    if (gone.empty()) return;
    parts::ShowMessage(services.display,
                       base::ownText(OwnText::rowsGone, session.language, {base::joined(gone, ", ")}),
                       ui::box::exclamation);
}

} // namespace tellurix::logistics
