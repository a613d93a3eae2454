#include "module/lines/DeliveredQuantity.h"

#include "module/base/Refused.h"
#include "module/base/field_text.h"
#include "module/base/text.h"

namespace tellurix::lines {

using base::Decimal;
using base::StatementText;

namespace {

constexpr const char* logsOfContract = "1LV";

// clang-format off
constexpr const char* stackedMetres =
    "(CASE WHEN LOGS.DSART = 2 THEN ISNULL(LOGS.KUBRM,0) ELSE LOGS.KUBATUR/(CASE ISNULL(LOGS.UFAKT_RM ,0) WHEN 0 THEN 1 ELSE LOGS.UFAKT_RM END) END)";
constexpr const char* dryTonnes =
    "(CASE WHEN LOGS.DSART = 4 THEN ISNULL(LOGS.KUBATRO,0) ELSE LOGS.KUBATUR/(CASE ISNULL(LOGS.UFAKT_ATO,0) WHEN 0 THEN 1 ELSE LOGS.UFAKT_ATO END) END)";
constexpr const char* pieces =
    "(CASE WHEN LOGS.DSART = 3 THEN ISNULL(LOGS.STK,0) ELSE LOGS.KUBATUR/(CASE ISNULL(LOGS.UFAKT_STK,0) WHEN 0 THEN 1 ELSE LOGS.UFAKT_STK END) END)";
constexpr const char* hundredsOfPieces =
    "(CASE WHEN LOGS.DSART = 3 THEN ISNULL(LOGS.STK,0)/100 ELSE LOGS.KUBATUR/(CASE ISNULL(LOGS.UFAKT_STK,0) WHEN 0 THEN 1 ELSE LOGS.UFAKT_STK END) END)";
constexpr const char* airDryTonnes =
    "LOGS.KUBATUR/(CASE ISNULL(LOGS.UFAKT_LUT,0) WHEN 0 THEN 1 ELSE LOGS.UFAKT_LUT END)";
// clang-format on

/// How a log is counted in a unit: the first flag that is set decides.
std::string expressionOf(base::Recordset& unit) {
    struct Measure {
        const char* flag;
        const char* expression;
    };
    constexpr Measure measures[] = {
        {"FM", "LOGS.KUBATUR"},         {"RM", stackedMetres}, {"SRM", stackedMetres},
        {"GEWICHT_ATRO", dryTonnes},    {"STUCK", pieces},     {"HSTUCK", hundredsOfPieces},
        {"GEWICHT_LUTRO", airDryTonnes}};
    for (const Measure& measure : measures) {
        if (unit.integer(measure.flag) != 0) return measure.expression;
    }
    return {};
}

/// Where a log's own measure is, by the way it was measured (`DSART`).
struct OwnMeasure {
    const char* column;
    const char* unit;
};
OwnMeasure ownMeasure(std::int64_t wayOfMeasuring) {
    switch (wayOfMeasuring) {
    case 2:
        return {"KUBRM", "Rm"};
    case 3:
        return {"STK", "Stk"};
    case 4:
        return {"KUBATRO", "t atro"};
    default:
        return {"KUBATUR", "Fm"};
    }
}

} // namespace

Decimal quantityIn(const base::Value& field) {
    const Decimal exact = base::numberIn(field).value_or(Decimal{});
    return exact.scale() > quantityDecimals ? exact.rounded(quantityDecimals) : exact;
}

DeliveredQuantity::DeliveredQuantity(parts::OpenContract contract, std::string_view type)
    : contract_(std::move(contract)), type_(base::toUpper(type)) {}

std::vector<DeliveredQuantity::Line> DeliveredQuantity::linesUpTo(int place) const {
    // clang-format off
    StatementText query{"SELECT VERTRAG_MENGEN.SELEKTION_VALUE,VERTRAG_MENGEN.ORDNUNG,"
        "ISNULL(WARENEINHEIT.FM,0) AS FM,"
        "ISNULL(WARENEINHEIT.RM,0) AS RM,"
        "ISNULL(WARENEINHEIT.GEWICHT_ATRO,0) AS GEWICHT_ATRO,"
        "ISNULL(WARENEINHEIT.STUCK,0) AS STUCK,"
        "ISNULL(WARENEINHEIT.HSTUCK,0) AS HSTUCK,"
        "ISNULL(WARENEINHEIT.GEWICHT_LUTRO,0) AS GEWICHT_LUTRO,"
        "ISNULL(WARENEINHEIT.SRM,0) AS SRM"
        " FROM VERTRAG_MENGEN "
        " LEFT JOIN WARENEINHEIT ON WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT"
        " WHERE VERTRAG_MENGEN.ORDNUNG <= "};
    // clang-format on
    query.number(place)
        .fixed(" AND VERTRAG_MENGEN.ID_VERTRAG = ")
        .number(contract_.id)
        .fixed(" ")
        .fixed(" ORDER BY VERTRAG_MENGEN.ORDNUNG");
    struct Read {
        int place;
        std::string selection;
        std::string expression;
    };
    std::vector<Read> read;
    for (auto line = contract_.connection().open(query.text()); !line->atEnd(); line->moveNext()) {
        read.push_back(
            {static_cast<int>(line->integer("ORDNUNG")), line->text("SELEKTION_VALUE"), expressionOf(*line)});
    }
    std::vector<Line> lines;
    for (Read& line : read)
        lines.push_back({line.place, conditionOf(line.place, line.selection), std::move(line.expression)});
    return lines;
}

std::string DeliveredQuantity::conditionOf(int place, const std::string& selection) const {
    if (selection.empty()) return {};
    try {
        return contract_.services->selectionTranslator.translate(
            contract_.session, logsOfContract, logsOfContract, selection, type_, contract_.name);
    } catch (const base::DatabaseError&) {
        throw;
    } catch (const std::exception& error) {
        // It may be another line than the one that the user looks at.
        StatementText query{"SELECT BEZEICHNUNG FROM VERTRAG_MENGEN WHERE ORDNUNG = "};
        const auto line = contract_.connection().open(
            query.number(place).fixed(" AND ID_VERTRAG = ").number(contract_.id).text());
        const std::string description = line->atEnd() ? std::string{} : line->text("BEZEICHNUNG");
        std::vector<base::Refused::Sentence> message{
            {base::OwnText::inLine, {std::to_string(place), description}}};
        const auto* refused = dynamic_cast<const base::Refused*>(&error);
        if (refused != nullptr && !refused->sentences().empty()) {
            message.insert(message.end(), refused->sentences().begin(), refused->sentences().end());
        } else {
            message.push_back({base::OwnText::ofTheHost, {error.what()}});
        }
        throw base::Refused{std::move(message)};
    }
}

StatementText DeliveredQuantity::bookedLogs() const {
    StatementText logs{" LOGS.ID_LOG IN (SELECT ID_LOG FROM LOGS_RECH WHERE "};
    logs.identifier(type_ + "_VERTRAG").fixed(" = ").quoted(contract_.name).fixed(")");
    return logs;
}

std::string DeliveredQuantity::logsOf(const std::vector<Line>& lines, std::size_t index) const {
    StatementText logs = bookedLogs();
    for (std::size_t i = 0; i < index; ++i) {
        if (lines[i].condition.empty()) return {};
        logs.fixed(" AND LOGS.ID_LOG NOT IN (SELECT LOGS.ID_LOG ").fixed(lines[i].condition).fixed(")");
    }
    if (const std::string& own = lines[index].condition; !own.empty())
        logs.fixed(" AND LOGS.ID_LOG IN (SELECT LOGS.ID_LOG ").fixed(own).fixed(")");
    return logs.text();
}

std::vector<std::int64_t> DeliveredQuantity::claims(const std::vector<Line>& lines) const {
    std::vector<std::int64_t> taken(lines.size());
    if (lines.empty()) return taken;
    // Each log asks the lines in their order which is the first to take it.
    StatementText query{"SELECT STAMM.ZEILE,COUNT(*) AS ANZAHL FROM (SELECT (CASE"};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& condition = lines[i].condition;
        query.fixed(" WHEN LOGS.ID_LOG IN (SELECT LOGS.ID_LOG ")
            .fixed(condition.empty() ? " FROM LOGS" : condition)
            .fixed(") THEN ")
            .number(i);
        if (condition.empty()) break; // none is left for those behind it
    }
    query.fixed(" ELSE ")
        .number(lines.size())
        .fixed(" END) AS ZEILE FROM LOGS WHERE ")
        .fixed(bookedLogs().text())
        .fixed(") STAMM GROUP BY STAMM.ZEILE");
    for (auto claim = contract_.connection().open(query.text()); !claim->atEnd(); claim->moveNext()) {
        const auto index = static_cast<std::size_t>(claim->integer("ZEILE"));
        if (index < taken.size()) taken[index] = claim->integer("ANZAHL");
    }
    return taken;
}

Decimal DeliveredQuantity::of(int place) const {
    const std::vector<Line> lines = linesUpTo(place);
    if (lines.empty() || lines.back().place != place || lines.back().expression.empty()) return {};
    const std::string logs = logsOf(lines, lines.size() - 1);
    if (logs.empty()) return {};
    const auto sum = contract_.connection().open("SELECT ISNULL(SUM(" + lines.back().expression +
                                                 "),0) FROM LOGS WHERE " + logs);
    return quantityIn(sum->field(std::size_t{0}));
}

DeliveredQuantity::Explanation DeliveredQuantity::explain(int place) const {
    const std::vector<Line> lines = linesUpTo(place);
    Explanation explanation;
    if (lines.empty() || lines.back().place != place) return explanation;
    base::Connection& connection = contract_.connection();
    const std::vector<Line> earlier{lines.begin(), lines.end() - 1};
    const std::vector<std::int64_t> taken = claims(earlier);
    for (std::size_t i = 0; i < earlier.size(); ++i)
        explanation.earlier.push_back({earlier[i].place, taken[i]});
    explanation.unitHasMeasure = !lines.back().expression.empty();
    const std::string logs = logsOf(lines, lines.size() - 1);
    if (!explanation.unitHasMeasure || logs.empty()) return explanation;
    for (auto log = connection.open("SELECT LOGS.NUMMER,LOGS.DATUM,LOGS.HA,LOGS.HS,LOGS.DSART,LOGS.KUBATUR,"
                                    "LOGS.KUBRM,LOGS.KUBATRO,LOGS.STK," +
                                    lines.back().expression + " AS MENGE_EINHEIT FROM LOGS WHERE " + logs +
                                    " ORDER BY LOGS.DATUM,LOGS.NUMMER");
         !log->atEnd(); log->moveNext()) {
        const base::Value date = log->field("DATUM");
        const OwnMeasure measure = ownMeasure(log->integer("DSART"));
        explanation.logs.push_back({.number = log->text("NUMMER"),
                                    .date = std::holds_alternative<base::DateTime>(date)
                                                ? std::optional{std::get<base::DateTime>(date)}
                                                : std::nullopt,
                                    .species = log->text("HA"),
                                    .sort = log->text("HS"),
                                    .measured = quantityIn(log->field(measure.column)),
                                    .measuredIn = measure.unit,
                                    .quantity = quantityIn(log->field("MENGE_EINHEIT"))});
    }
    return explanation;
}

} // namespace tellurix::lines
