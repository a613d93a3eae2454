// Every type of column that the tables of the trade have, at its edges: written in place and by a statement,
// read back, and compared between the embedded database and a server.

#include "module/base/text.h"
#include "tests/database/embedded/EmbeddedTest.h"

#include <vector>

namespace tellurix::odbc {
namespace {

using base::Decimal;
using base::FieldType;
using base::Value;

struct Case {
    const char* type;      ///< as T-SQL calls it
    const char* elsewhere; ///< as a server of another dialect does
    FieldType field;
    int width;
    std::vector<Value> values;
    /// What is read of each where the column makes something else of it.
    std::vector<std::string> read;
};

base::DateTime moment(int year, unsigned month, unsigned day, std::chrono::milliseconds time = {}) {
    return base::startOf(std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)) + time;
}

std::vector<Case> cases() {
    using namespace std::chrono_literals;
    using std::string;
    constexpr std::int64_t most32 = 2'147'483'647;
    constexpr std::int64_t most18 = 999'999'999'999'999'999;
    string longText;
    while (longText.size() < 100'000)
        longText += "Fichte ä€😀 ";
    longText += ".";
    const string hundred(100, 'x');
    return {
        {"bit", "boolean", FieldType::flag, 0, {true, false}, {}},
        {"tinyint", "smallint", FieldType::tinyInteger, 0, {std::int64_t{0}, std::int64_t{255}}, {}},
        {"smallint", "smallint", FieldType::smallInteger, 0, {std::int64_t{-32768}, std::int64_t{32767}}, {}},
        {"int",
         "int",
         FieldType::integer,
         0,
         {-most32 - 1, most32, string{" 17 "}},
         {"-2147483648", "2147483647", "17"}},
        {"bigint", "bigint", FieldType::bigInteger, 0, {-most18, most18}, {}},
        {"decimal(5,0)",
         "decimal(5,0)",
         FieldType::decimal,
         0,
         {Decimal(99999), Decimal(25, 1), Decimal(-25, 1)},
         {"99999", "3", "-3"}},
        {"decimal(8,2)",
         "decimal(8,2)",
         FieldType::decimal,
         0,
         {Decimal(1005, 3), Decimal(-1005, 3), string{"2.675"}, std::int64_t{7}},
         {"1.01", "-1.01", "2.68", "7.00"}},
        {"numeric(9,3)",
         "numeric(9,3)",
         FieldType::decimal,
         0,
         {Decimal(5, 4), Decimal(-5, 4), Decimal(0, 0)},
         {"0.001", "-0.001", "0.000"}},
        {"decimal(12,4)",
         "decimal(12,4)",
         FieldType::decimal,
         0,
         {Decimal(5, 5), Decimal(999'999'999'999, 4)},
         {"0.0001", "99999999.9999"}},
        {"decimal(14,3)", "decimal(14,3)", FieldType::decimal, 0, {Decimal(-99'999'999'999'999, 3)}, {}},
        {"decimal(14,4)", "decimal(14,4)", FieldType::decimal, 0, {Decimal(99'999'999'999'999, 4)}, {}},
        {"decimal(18,0)", "decimal(18,0)", FieldType::decimal, 0, {Decimal(most18), Decimal(-most18)}, {}},
        {"decimal(18,18)",
         "decimal(18,18)",
         FieldType::decimal,
         0,
         {Decimal(1, 18), Decimal(-most18, 18)},
         {}},
        {"money",
         "decimal(18,4)",
         FieldType::decimal,
         0,
         {Decimal(100005, 5), Decimal(-12, 1)},
         {"1.0001", "-1.2000"}},
        {"float", "double precision", FieldType::floating, 0, {0.1, -1e300, 5e-300, 1234567.875}, {}},
        {"datetime",
         "timestamp(3)",
         FieldType::dateTime,
         0,
         {moment(1753, 1, 1), moment(9999, 12, 31, 23h + 59min + 59s), moment(2024, 2, 29, 120ms),
          string{"31.12.2024 07:08:09"}},
         {"1753-01-01", "9999-12-31 23:59:59", "2024-02-29 00:00:00.120", "2024-12-31 07:08:09"}},
        {"date",
         "date",
         FieldType::dateTime,
         0,
         {moment(1999, 12, 31), string{"05.06.2025"}},
         {"1999-12-31", "2025-06-05"}},
        {"nchar(3)", "char(3)", FieldType::text, 3, {string{"ä€x"}}, {}},
        {"varchar(5)", "varchar(5)", FieldType::text, 5, {string{""}, string{"  x  "}, string{"O'H\"["}}, {}},
        {"nvarchar(60)",
         "varchar(60)",
         FieldType::text,
         60,
         {string{"Sägewerk Öd & Söhne €"}, string{"😀😀"}, string{"a\r\nb\tc"}},
         {}},
        {"nvarchar(255)",
         "varchar(255)",
         FieldType::text,
         255,
         {hundred + hundred, string{"1.50"}, string{"01.02.2025"}},
         {}},
        {"nvarchar(2000)",
         "varchar(2000)",
         FieldType::text,
         2000,
         {string{"83 IN ('FI', 'KI') ;90 IN ('CX') ;"}, string(2000, 'y')},
         {}},
        {"nvarchar(max)", "text", FieldType::text, 0, {longText, string(4001, 'z'), string{}}, {}},
    };
}

/// As a statement has it, for the types that differ in their literals from nobody.
std::string literal(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        return "'" + base::replaceAll(*text, "'", "''") + "'";
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "'1'" : "'0'";
    if (std::holds_alternative<base::DateTime>(value)) {
        std::string text = embedded::written(value);
        std::erase(text, '-');
        return "'" + text + "'";
    }
    return embedded::written(value);
}

class ColumnTypes : public embedded::EmbeddedTest {
protected:
    /// Everything that the columns told and held, a line each.
    static std::vector<std::string> found(base::Connection& connection, const std::string& prefix,
                                          bool inOtherDialect) {
        std::vector<std::string> lines;
        int number = 0;
        for (const Case& one : cases()) {
            const std::string table = prefix + std::to_string(++number);
            connection.execute("CREATE TABLE " + table + " (ID int PRIMARY KEY, V " +
                               (inOtherDialect ? one.elsewhere : one.type) + " NULL)");
            connection.execute("INSERT INTO " + table + " VALUES (0,NULL)");
            for (std::size_t index = 0; index < one.values.size(); ++index) {
                const std::string in = std::to_string(2 * index + 1);
                connection.execute("INSERT INTO " + table + " VALUES (" + in + ",NULL)");
                const auto row = connection.openUpdatable("SELECT V FROM " + table + " WHERE ID = " + in);
                row->setField("V", one.values[index]);
                row->update();
                const std::string expected =
                    index < one.read.size() ? one.read[index] : embedded::written(one.values[index]);
                const std::string where = std::string{one.type} + " " + expected.substr(0, 40);
                EXPECT_EQ(embedded::written(row->field(0)), expected) << where;
                connection.execute("INSERT INTO " + table + " VALUES (" + std::to_string(2 * index + 2) +
                                   "," + literal(one.values[index]) + ")");
            }
            const auto rows = connection.execute("SELECT V FROM " + table + " ORDER BY ID").rows;
            // The other one has no type as small as that.
            const bool isOther = inOtherDialect && one.field == FieldType::tinyInteger;
            EXPECT_EQ(rows->fieldType(0), isOther ? FieldType::smallInteger : one.field) << one.type;
            EXPECT_EQ(rows->textWidth(0), one.width) << one.type;
            for (; !rows->atEnd(); rows->moveNext())
                lines.push_back(std::string{one.type} + ": " + embedded::written(rows->field(0)));
        }
        return lines;
    }
};

TEST_F(ColumnTypes, AreReadAndWrittenAlikeByBothAdapters) {
    ASSERT_EQ(cases().size(), 23U);
    const auto embeddedOne = database().connect();
    const auto server = connect();
    const bool speaksTsql = std::string_view{adapter.database} != "postgresql";
    EXPECT_EQ(found(*server, "S", !speaksTsql), found(*embeddedOne, "E", false));
}

} // namespace
} // namespace tellurix::odbc
