#include "module/logistics/reports/ProvisionSaving.h"

#include "module/logistics/row_saving.h"
#include "module/parts/ShownProgress.h"

#include <algorithm>

namespace tellurix::logistics {

using parts::KeyedRow;
using parts::KeyedRows;

namespace {

bool isEmpty(KeyedRow& row) {
    return row.text(reportField::announced).empty() && row.text(reportField::confirmed).empty() &&
           row.text(reportField::carrier).empty();
}

} // namespace

bool ProvisionSaving::settle() {
    while (true) {
        goneRows_ = table_.refresh(
            KeyedRows::read(*session_.connection, statements_.reports(), reportField::report).rows, merge_);
        if (merge_.settled()) return true;
        if (!merge_.ask()) return false;
    }
}

bool ProvisionSaving::write(ui::ProgressBar& bar) {
    table_.requireCarriers();
    if (!settle()) return false;
    for (KeyedRow* row : goneRows_)
        gone_.push_back(ProvisionTable::nameOf(*row));

    const int changed = table_.changed();
    parts::ShownProgress progress{services_.display, bar, static_cast<int>(table_.rows().size())};
    for (KeyedRow& row : table_.rows()) {
        progress.step();
        if (std::ranges::find(goneRows_, &row) != goneRows_.end()) continue;
        try {
            writeRow(row);
        } catch (const std::exception& error) {
            table_.redraw();
            stopSaving(services_, error, ProvisionTable::nameOf(row),
                       static_cast<std::size_t>(changed - table_.changed()),
                       static_cast<std::size_t>(changed));
        }
        row.settle();
    }
    table_.redraw();
    return true;
}

void ProvisionSaving::writeRow(KeyedRow& row) {
    const auto report = row.integer(reportField::report);
    if (isEmpty(row)) {
        // Also one of which the helper has said nothing but a remark: so the centre wants it.
        if (report != 0) session_.connection->execute(ProvisionStatements::deletion(report));
        row.refresh(reportField::report, base::Null{});
        return;
    }
    // What somebody else stored and nobody typed over need not be sent, where it cannot be.
    if (!row.touched() && !ProvisionTable::canCarry(row)) return;
    if (report == 0) {
        const auto made = session_.connection->open(statements_.creation(row.key()));
        row.refresh(reportField::report, made->integer(0));
    }
    const auto result = session_.connection->execute(ProvisionStatements::change(row, services_.clock.now()));
    // The batches of this screen have the server count nothing, for the rest of the session.
    if (result.rowsAffected < 1 && row.touched()) uncertain_.push_back(&row);
}

std::vector<std::string> ProvisionSaving::notTaken() {
    std::vector<std::string> names;
    if (uncertain_.empty()) return names;
    auto stored = KeyedRows::read(*session_.connection, statements_.reports(), reportField::report).rows;
    for (KeyedRow* row : uncertain_) {
        const auto found = std::ranges::find(stored, row->integer(reportField::report), &KeyedRow::key);
        if (found == stored.end() || !ProvisionTable::isStored(*row, *found))
            names.push_back(ProvisionTable::nameOf(*row));
    }
    return names;
}

} // namespace tellurix::logistics
