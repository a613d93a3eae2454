#include "module/deductions/StoredCalculation.h"

namespace tellurix::deductions {

namespace {

constexpr const char* linesTable = "ABSCHLAG";

} // namespace

StoredLines StoredCalculation::read() const {
    StoredLines stored;
    auto row = session_.connection->open(statements_.readLines());
    if (!row->atEnd()) stored.model = row->text("ABS_MODEL");
    for (; !row->atEnd(); row->moveNext()) {
        const std::int64_t number = row->integer("LINE_NUM", -1);
        // What no line of the screen can show is not touched before the lines are saved.
        if (number < 0 || number >= static_cast<std::int64_t>(stored.lines.size())) continue;
        stored.lines[static_cast<std::size_t>(number)] = {
            .statistic = static_cast<int>(row->integer("STATISTIK", host::CalculationLine::noStatistic)),
            .designation = row->text("BEZEICH"),
            .value = row->text("WERT_TEXT"),
            .references = row->text("WERT_LINE"),
            .subset = row->text("SUBSET_DEF"),
            .article = static_cast<std::int32_t>(row->integer("ART_ID"))};
    }
    return stored;
}

std::string StoredCalculation::ReadModelColumn(const std::string& column) const {
    const auto model = session_.connection->open(statements_.readModelColumn(column));
    return model->atEnd() ? std::string{} : model->text(column);
}

std::string StoredCalculation::FindSubset(std::size_t line) const {
    const auto row = session_.connection->open(statements_.readSubset(line));
    return row->atEnd() ? std::string{} : row->text("SUBSET_DEF");
}

void StoredCalculation::DeleteLines() const {
    session_.connection->execute(statements_.deleteLines());
}

void StoredCalculation::SaveLine(std::size_t line, const host::CalculationLine& values) const {
    session_.connection->execute(statements_.insertLine(line));
    const auto set = [&](const char* column, const std::string& value) {
        services_.columnUpdate.set(session_, linesTable, column, value, statements_.conditionOf(line));
    };
    set("STATISTIK", std::to_string(values.statistic));
    UpdateLineColumn("BEZEICH", values.designation, line);
    set("WERT_TEXT", values.value);
    set("WERT_LINE", values.references);
    set("ART_ID", values.article < 1 ? "" : std::to_string(values.article));
    set("SUBSET_DEF", values.subset);
}

void StoredCalculation::UpdateLineColumn(const std::string& column, const std::string& value,
                                         std::size_t line) const {
    session_.connection->execute(statements_.updateLineColumn(column, value, line));
}

void StoredCalculation::UpdateModelColumn(const std::string& column, const std::string& value) const {
    session_.connection->execute(statements_.updateModelColumn(column, value));
}

void StoredCalculation::requireModel(const std::string& model) const {
    static_cast<void>(statements_.updateModelColumn("ABS_MODEL", model));
}

} // namespace tellurix::deductions
