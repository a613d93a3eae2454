#include "module/lines/LineList.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/base/text.h"

#include <algorithm>

namespace tellurix::lines {

using base::StatementText;

namespace {

bool hasPlace(parts::KeyedRow& line) {
    return !std::holds_alternative<base::Null>(line.field("ORDNUNG"));
}

void setPlace(base::UpdatableRecordset& line, std::int64_t place) {
    line.setField("Ordnung", place);
    line.update();
}

} // namespace

void LineList::open(const parts::OpenContract& contract) {
    contract_ = contract;
    statements_ = LineStatements{kind_.table, contract.id};
}

std::vector<parts::KeyedRow> LineList::read() const {
    StatementText query{kind_.lineColumns};
    query.fixed(" WHERE ").fixed(kind_.contractColumn).fixed(" = ").number(contract_.id);
    query.fixed(" ORDER BY ").fixed(kind_.placeColumn);
    auto lines = parts::KeyedRows::read(connection(), query.text(), "ID").rows;
    std::ranges::stable_partition(lines, hasPlace);
    return lines;
}

std::optional<parts::KeyedRow> LineList::read(std::int64_t id) const {
    StatementText query{kind_.lineColumns};
    query.fixed(" WHERE ").fixed(kind_.keyColumn).fixed(" = ").number(id);
    const auto line = connection().open(query.text());
    if (line->atEnd()) return std::nullopt;
    return parts::KeyedRow{*line, "ID"};
}

void LineList::repair(std::span<parts::KeyedRow> lines) const {
    std::int64_t place = 0;
    for (parts::KeyedRow& line : lines) {
        ++place;
        if (hasPlace(line) && line.integer("ORDNUNG") == place) continue;
        const auto record = connection().openUpdatable(statements_.lineOf(line.key()));
        // Deleted by somebody else a moment ago?
        if (!record->atEnd()) setPlace(*record, place);
    }
}

std::unique_ptr<base::Recordset> LineList::at(int place) const {
    return connection().open(statements_.lineAt(place));
}

std::unique_ptr<base::Recordset> LineList::keyAndSelectionAt(int place) const {
    return connection().open(statements_.keyAndSelectionAt(place));
}

std::unique_ptr<base::UpdatableRecordset> LineList::toEdit(const std::string& query) const {
    auto line = connection().openUpdatable(query);
    if (line->atEnd()) throw base::Refused{base::OwnText::lineIsGone};
    return line;
}

std::unique_ptr<base::UpdatableRecordset> LineList::toEditAt(int place) const {
    return toEdit(statements_.lineAt(place));
}

std::unique_ptr<base::UpdatableRecordset> LineList::toEdit(std::int64_t id) const {
    return toEdit(statements_.lineOf(id));
}

std::int64_t LineList::begin() const {
    connection().execute(statements_.insert());
    return connection().open(statements_.newestKey())->integer(0);
}

void LineList::discard(std::int64_t id) const {
    connection().execute(statements_.removeOf(id));
}

std::optional<parts::KeyedRow> LineList::remove(std::int64_t id, int place) const {
    // By its key: in the meantime another user may have moved another line to this place.
    auto line = connection().openUpdatable(statements_.lineOf(id));
    if (line->atEnd()) return std::nullopt;
    parts::KeyedRow removed{*line, "ID"};
    line->remove();
    line.reset();
    connection().execute(statements_.closeGapBehind(place));
    return removed;
}

std::int64_t LineList::restore(parts::KeyedRow& line, int place) const {
    contract_.requirePresent();
    const std::int64_t id = begin();
    bool opened = false;
    try {
        // The new line has no place yet, so no two ever have the same.
        connection().execute(statements_.openGapAt(place));
        opened = true;
        const auto made = toEdit(id);
        for (std::size_t i = 0; i < line.fieldCount(); ++i) {
            const std::string name = base::toUpper(line.fieldName(i));
            if (name != "ID" && name != "ID_VERTRAG") made->setField(name, line.field(i));
        }
        made->setField("ORDNUNG", std::int64_t{place});
        made->update();
    } catch (...) {
        takeBack(id, opened ? place : 0);
        throw;
    }
    return id;
}

void LineList::takeBack(std::int64_t id, int gap) const {
    try {
        discard(id);
        if (gap != 0) connection().execute(statements_.closeGapBehind(gap));
    } catch (const std::exception&) {
        // The failure that led here is the one to be told.
    }
}

void LineList::swap(std::int64_t id, int place, std::int64_t other, int otherPlace) const {
    setPlace(*toEdit(id), 0);
    setPlace(*toEdit(other), place);
    setPlace(*toEdit(id), otherPlace);
}

std::string LineList::selection(const std::string& query) const {
    const auto line = connection().open(query);
    if (line->atEnd()) throw base::Refused{base::OwnText::lineIsGone};
    return line->text("SELEKTION_VALUE");
}

std::string LineList::selectionAt(int place) const {
    return selection(statements_.selectionAt(place));
}

std::string LineList::selectionOf(std::int64_t id) const {
    return selection(statements_.selectionOf(id));
}

void LineList::setSelectionAt(const std::string& literal, int place) const {
    connection().execute(statements_.setSelectionAt(literal, place));
}

void LineList::setSelectionOf(const std::string& literal, std::int64_t id) const {
    connection().execute(statements_.setSelectionOf(literal, id));
}

void LineList::setDialogSelectionOf(const std::string& text, std::int64_t id) const {
    connection().execute(statements_.setDialogSelectionOf(text, id));
}

} // namespace tellurix::lines
