// What a recordset of 1,000 rows costs through ADO's late-bound objects, beside the embedded adapter
// that they stand on: every field of every row is read.
#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "com/automation/wide.h"
#include "database/ado/AdoConnection.h"
#include "database/embedded/Database.h"
#include "standin/ado_objects/embedded_connection.h"
#include "standin/services/values/SystemClock.h"

#include <filesystem>
#include <iostream>

namespace tellurix::bench {
namespace {

constexpr int rowCount = 1000;
constexpr int repetitions = 50;

void fill(base::Connection& connection) {
    connection.execute(
        "CREATE TABLE T (ID int IDENTITY PRIMARY KEY, NAME nvarchar(50), HOLZART nvarchar(10), "
        "PREIS decimal(12,4), MENGE decimal(12,3), DATUM datetime, EURO bit, NUMMER smallint, "
        "LAENGE float, BEMERKUNG nvarchar(200))");
    for (int row = 0; row < rowCount; ++row)
        connection.execute(
            "INSERT INTO T (NAME,HOLZART,PREIS,MENGE,DATUM,EURO,NUMMER,LAENGE) VALUES ('Fichte, Größe " +
            std::to_string(row) + "','FI',98.7654,12.5,'05.06.2025',1,7,4.1)");
}

std::size_t readAll(base::Connection& connection, std::string_view query) {
    std::size_t values = 0;
    const auto rows = connection.open(query);
    for (; !rows->atEnd(); rows->moveNext())
        for (std::size_t index = 0; index < rows->fieldCount(); ++index) {
            keep(rows->field(index));
            ++values;
        }
    return values;
}

double milliseconds(base::Connection& connection, std::string_view query) {
    Durations durations;
    for (int repetition = 0; repetition < repetitions; ++repetition)
        durations.add(timeOf([&] { readAll(connection, query); }));
    return durations.median() / 1000;
}

void measure(const std::filesystem::path& file) {
    const standin::SystemClock clock;
    const embedded::Database database(file, clock, {.create = true});
    const auto direct = database.connect();
    fill(*direct);
    windows::Dispatch object(windows::ado::createEmbeddedConnection(clock));
    object.call(L"Open", {windows::narrow(file.wstring())});
    windows::ado::AdoConnection ado(object);

    Report report({"1,000 rows", "values", "embedded, ms", "ADO, ms", "more a value, µs"});
    for (const auto& [name, query] :
         {std::pair{"10 columns", "SELECT * FROM T"}, std::pair{"ID and NAME", "SELECT ID, NAME FROM T"},
          std::pair{"only the first row", "SELECT TOP 1 * FROM T"}}) {
        const std::size_t values = readAll(*direct, query);
        const double embedded = milliseconds(*direct, query);
        const double late = milliseconds(ado, query);
        report.add({name, std::to_string(values), fixed(embedded, 3), fixed(late, 3),
                    fixed((late - embedded) * 1000 / static_cast<double>(values), 2)});
    }
    report.print(std::cout);
}

} // namespace
} // namespace tellurix::bench

int main() {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "bench_recordset";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    tellurix::bench::measure(folder / "bench.db");
    std::filesystem::remove_all(folder);
}
