#include "lines/DeliveredQuantity.h"

#include "common/StatementText.h"
#include "common/field_text.h"
#include "common/text.h"
#include "host/module_state.h"

namespace tellurix::lines {

using common::Decimal;
using common::StatementText;

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
std::string expressionOf(common::Recordset& unit) {
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

Decimal decimalIn(const common::Value& field) {
    return common::numberIn(field).value_or(Decimal{});
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

DeliveredQuantity::DeliveredQuantity(host::SelectionTranslator& translator, const host::TlxVar& session,
                                     std::string reference, std::int32_t contract)
    : translator_(translator), session_(session), reference_(std::move(reference)), contract_(contract) {}

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
        .number(contract_)
        .fixed(" ")
        .fixed(" ORDER BY VERTRAG_MENGEN.ORDNUNG");
    const std::string type = common::toUpper(host::moduleState().context.StrVer_Type);
    std::vector<Line> lines;
    for (auto line = session_.connection->open(query.text()); !line->atEnd(); line->moveNext()) {
        const std::string selection = line->text("SELEKTION_VALUE");
        lines.push_back({.place = static_cast<int>(line->integer("ORDNUNG")),
                         .condition = selection.empty()
                                          ? std::string{}
                                          : translator_.translate(session_, logsOfContract, logsOfContract,
                                                                  selection, type, reference_),
                         .expression = expressionOf(*line)});
    }
    return lines;
}

std::string DeliveredQuantity::logsOf(const std::vector<Line>& lines, std::size_t index) const {
    StatementText logs{" LOGS.ID_LOG IN (SELECT ID_LOG FROM LOGS_RECH WHERE "};
    logs.identifier(common::toUpper(host::moduleState().context.StrVer_Type) + "_VERTRAG")
        .fixed(" = ")
        .quoted(reference_)
        .fixed(")");
    for (std::size_t i = 0; i < index; ++i) {
        if (lines[i].condition.empty()) return {};
        logs.fixed(" AND LOGS.ID_LOG NOT IN (SELECT LOGS.ID_LOG ").fixed(lines[i].condition).fixed(")");
    }
    if (const std::string& own = lines[index].condition; !own.empty())
        logs.fixed(" AND LOGS.ID_LOG IN (SELECT LOGS.ID_LOG ").fixed(own).fixed(")");
    return logs.text();
}

Decimal DeliveredQuantity::of(int place) const {
    const std::vector<Line> lines = linesUpTo(place);
    if (lines.empty() || lines.back().place != place || lines.back().expression.empty()) return {};
    const std::string logs = logsOf(lines, lines.size() - 1);
    if (logs.empty()) return {};
    const auto sum = session_.connection->open("SELECT ISNULL(SUM(" + lines.back().expression +
                                               "),0) FROM LOGS WHERE " + logs);
    return decimalIn(sum->field(std::size_t{0}));
}

DeliveredQuantity::Explanation DeliveredQuantity::explain(int place) const {
    const std::vector<Line> lines = linesUpTo(place);
    Explanation explanation;
    if (lines.empty() || lines.back().place != place) return explanation;
    common::Connection& connection = *session_.connection;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const std::string logs = logsOf(lines, i);
        const std::int64_t count =
            logs.empty()
                ? 0
                : connection.open("SELECT COUNT(*) AS ANZAHL FROM LOGS WHERE " + logs)->integer("ANZAHL");
        explanation.earlier.push_back({lines[i].place, count});
    }
    explanation.unitHasMeasure = !lines.back().expression.empty();
    const std::string logs = logsOf(lines, lines.size() - 1);
    if (!explanation.unitHasMeasure || logs.empty()) return explanation;
    for (auto log = connection.open("SELECT LOGS.NUMMER,LOGS.DATUM,LOGS.HA,LOGS.HS,LOGS.DSART,LOGS.KUBATUR,"
                                    "LOGS.KUBRM,LOGS.KUBATRO,LOGS.STK," +
                                    lines.back().expression + " AS MENGE_EINHEIT FROM LOGS WHERE " + logs +
                                    " ORDER BY LOGS.DATUM,LOGS.NUMMER");
         !log->atEnd(); log->moveNext()) {
        const common::Value date = log->field("DATUM");
        const OwnMeasure measure = ownMeasure(log->integer("DSART"));
        explanation.logs.push_back({.number = log->text("NUMMER"),
                                    .date = std::holds_alternative<common::DateTime>(date)
                                                ? std::optional{std::get<common::DateTime>(date)}
                                                : std::nullopt,
                                    .species = log->text("HA"),
                                    .sort = log->text("HS"),
                                    .measured = decimalIn(log->field(measure.column)),
                                    .measuredIn = measure.unit,
                                    .quantity = decimalIn(log->field("MENGE_EINHEIT"))});
    }
    return explanation;
}

} // namespace tellurix::lines
