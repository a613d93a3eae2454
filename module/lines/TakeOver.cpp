#include "module/lines/TakeOver.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"

namespace tellurix::lines {

using base::StatementText;
using base::Value;

namespace {

/// A field as a value of a statement: texts with doubled quotes, flags as 1 and 0.
void append(StatementText& statement, const Value& field) {
    if (const auto number = base::numberIn(field)) {
        statement.number(number->toString());
    } else if (const auto* flag = std::get_if<bool>(&field)) {
        statement.fixed(*flag ? "1" : "0");
    } else if (const auto* text = std::get_if<std::string>(&field)) {
        statement.quoted(*text);
    } else {
        statement.null();
    }
}

std::int64_t existingLines(base::Connection& connection, std::string_view query, std::int32_t contract) {
    StatementText text{query};
    return connection.open(text.number(contract).text())->integer(0);
}

/// What is read and written for one kind of lines.
struct Copy {
    std::string_view count;
    std::string_view select;
    std::string_view insert;
    std::vector<const char*> columns;
};

std::vector<std::string> insertsFor(const Copy& copy, base::Connection& connection, std::int32_t source,
                                    std::int32_t target) {
    std::int64_t place = existingLines(connection, copy.count, target);
    std::vector<std::string> inserts;
    StatementText query{copy.select};
    query.number(source).fixed(" ORDER BY ORDNUNG");
    for (auto line = connection.open(query.text()); !line->atEnd(); line->moveNext()) {
        StatementText insert{copy.insert};
        insert.number(target).fixed(",").number(++place);
        for (const char* column : copy.columns)
            append(insert.fixed(","), line->field(column));
        inserts.push_back(insert.fixed(")").text());
    }
    return inserts;
}

// clang-format off
const Copy copiedQuantities{
    "SELECT COUNT(ORDNUNG) FROM VERTRAG_MENGEN WHERE ID_VERTRAG = ",
    "SELECT BEZEICHNUNG,SELEKTION_VALUE,MENGE,ID_WARENEINHEIT FROM VERTRAG_MENGEN WHERE ID_VERTRAG = ",
    "INSERT INTO VERTRAG_MENGEN (ID_VERTRAG,ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,MENGE,ID_WARENEINHEIT) VALUES (",
    {"BEZEICHNUNG", "SELEKTION_VALUE", "MENGE", "ID_WARENEINHEIT"}};
const Copy copiedPrices{
    "SELECT COUNT(ORDNUNG) FROM VERTRAG_PREISE WHERE ID_VERTRAG = ",
    "SELECT BEZEICHNUNG,SELEKTION_VALUE,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2 FROM VERTRAG_PREISE WHERE ID_VERTRAG = ",
    "INSERT INTO VERTRAG_PREISE (ID_VERTRAG,ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2) VALUES (",
    {"BEZEICHNUNG", "SELEKTION_VALUE", "PREIS", "EURO", "ID_WARENEINHEIT", "PREIS_ABR2"}};
// clang-format on

} // namespace

TakeOver::TakeOver(base::Connection& connection, std::int32_t source, std::int32_t target)
    : connection_(connection),
      inserts_(insertsFor(copiedQuantities, connection, source, target)),
      quantities_(total()) {
    std::vector<std::string> prices = insertsFor(copiedPrices, connection, source, target);
    inserts_.insert(inserts_.end(), std::make_move_iterator(prices.begin()),
                    std::make_move_iterator(prices.end()));
}

void TakeOver::run(const std::function<void()>& progress) {
    for (; done_ < total(); ++done_, progress())
        connection_.execute(inserts_[static_cast<std::size_t>(done_)]);
}

} // namespace tellurix::lines
