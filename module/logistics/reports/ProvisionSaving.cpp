#include "module/logistics/reports/ProvisionSaving.h"

#include "module/base/text.h"
#include "module/logistics/row_saving.h"
#include "module/parts/ShownProgress.h"

#include <algorithm>

namespace tellurix::logistics {

using base::OwnText;
using parts::KeyedRow;
using parts::KeyedRows;

namespace {

bool isEmpty(KeyedRow& row) {
    return row.text(reportField::announced).empty() && row.text(reportField::confirmed).empty() &&
           row.text(reportField::carrier).empty();
}

} // namespace

bool ProvisionSaving::settle() {
    return merge_.settle([this] {
        goneRows_ = table_.refresh(
            KeyedRows::read(*session_.connection, statements_.reports(), reportField::report).rows, merge_);
    });
}

bool ProvisionSaving::write(ui::ProgressBar& bar) {
    table_.requireCarriers();
    if (!settle()) return false;
    // A carrier that came from a colleague now cannot be written either.
    table_.requireCarriers();
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
                       static_cast<std::size_t>(changed), besidesFailure());
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

std::vector<base::Refused::Sentence> ProvisionSaving::besides() {
    std::vector<std::string> gone;
    for (KeyedRow* row : goneRows_)
        gone.push_back(ProvisionTable::nameOf(*row));
    const std::vector<std::string> refused = notTaken();
    std::vector<base::Refused::Sentence> sentences;
    if (!gone.empty()) sentences.push_back({OwnText::reportsGone, {base::joined(gone, ", ")}});
    if (!refused.empty()) sentences.push_back({OwnText::reportsNotTaken, {base::joined(refused, ", ")}});
    return sentences;
}

std::vector<base::Refused::Sentence> ProvisionSaving::besidesFailure() {
    try {
        return besides();
    } catch (const std::exception&) {
        // Nothing can be asked any more; what stopped the saving is told.
        return {};
    }
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
