#include "standin/services/models/ModelStore.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

using base::StatementText;
using host::CalculationLine;

namespace {

constexpr std::string_view articleSuffix = "_A";

/// A line that was only gone through: nothing was entered but, at most, a value of zero.
bool isEmpty(const CalculationLine& line) {
    return line.statistic <= 0 && line.designation.empty() &&
           line.value.find_first_of("123456789") == std::string::npos;
}

} // namespace

ModelStore::ModelStore(base::Connection& connection, std::string category)
    : connection_(connection), category_(std::move(category)) {
    if (category_.ends_with(articleSuffix)) category_.resize(category_.size() - articleSuffix.size());
}

std::vector<ModelStore::Model> ModelStore::models() {
    StatementText query{"SELECT ID_MODEL,MODEL FROM WORKBENCH_MODEL WHERE CATEGORY = "};
    query.quoted(category_).fixed(" ORDER BY MODEL");
    std::vector<Model> models;
    for (auto row = connection_.open(query.text()); !row->atEnd(); row->moveNext())
        models.push_back({static_cast<std::int32_t>(row->integer("ID_MODEL")), row->text("MODEL")});
    return models;
}

std::optional<std::int32_t> ModelStore::find(const std::string& name) {
    StatementText query{"SELECT ID_MODEL FROM WORKBENCH_MODEL WHERE CATEGORY = "};
    query.quoted(category_).fixed(" AND MODEL = ").quoted(name);
    const auto row = connection_.open(query.text());
    if (row->atEnd()) return std::nullopt;
    return static_cast<std::int32_t>(row->integer("ID_MODEL"));
}

host::CalculationLines ModelStore::lines(std::int32_t model) {
    StatementText query{"SELECT * FROM WORKBENCH_MODEL_LINE WHERE ID_MODEL = "};
    host::CalculationLines lines;
    for (auto row = connection_.open(query.number(model).text()); !row->atEnd(); row->moveNext()) {
        const auto number = static_cast<std::size_t>(row->integer("LINE_NUM"));
        if (number >= lines.size()) continue;
        lines[number] = {.statistic =
                             static_cast<int>(row->integer("STATISTIK", CalculationLine::noStatistic)),
                         .designation = row->text("BEZEICH"),
                         .value = row->text("WERT_TEXT"),
                         .references = row->text("WERT_LINE"),
                         .subset = row->text("SUBSET_DEF"),
                         .article = static_cast<std::int32_t>(row->integer("ART_ID"))};
    }
    return lines;
}

std::int32_t ModelStore::save(const std::string& name, const host::CalculationLines& lines) {
    if (!find(name)) {
        StatementText insertion{"INSERT INTO WORKBENCH_MODEL (CATEGORY,MODEL) VALUES ("};
        connection_.execute(insertion.quoted(category_).fixed(",").quoted(name).fixed(")").text());
    }
    const std::int32_t model = find(name).value();
    removeLines(model);
    for (std::size_t number = 0; number < lines.size(); ++number)
        if (!isEmpty(lines[number])) insertLine(model, number, lines[number]);
    return model;
}

void ModelStore::insertLine(std::int32_t model, std::size_t number, const CalculationLine& line) {
    StatementText insertion{
        "INSERT INTO WORKBENCH_MODEL_LINE "
        "(ID_MODEL,LINE_NUM,STATISTIK,BEZEICH,WERT_TEXT,WERT_LINE,SUBSET_DEF,ART_ID) VALUES ("};
    insertion.number(model).fixed(",").number(number).fixed(",").number(line.statistic);
    for (const std::string* text : {&line.designation, &line.value, &line.references, &line.subset})
        insertion.fixed(",").quotedOrNull(*text);
    insertion.fixed(",");
    line.article > 0 ? insertion.number(line.article) : insertion.null();
    connection_.execute(insertion.fixed(")").text());
}

void ModelStore::rename(std::int32_t model, const std::string& name) {
    StatementText statement{"UPDATE WORKBENCH_MODEL SET MODEL = "};
    connection_.execute(statement.quoted(name).fixed(" WHERE ID_MODEL = ").number(model).text());
}

void ModelStore::remove(std::int32_t model) {
    removeLines(model);
    StatementText statement{"DELETE FROM WORKBENCH_MODEL WHERE ID_MODEL = "};
    connection_.execute(statement.number(model).text());
}

void ModelStore::removeLines(std::int32_t model) {
    StatementText statement{"DELETE FROM WORKBENCH_MODEL_LINE WHERE ID_MODEL = "};
    connection_.execute(statement.number(model).text());
}

} // namespace tellurix::standin
