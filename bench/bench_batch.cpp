// What a batch costs that computes before it asks: the list of a logistics contract's weeks, which fills a
// table variable with 13,149 days in a loop and looks its weeks up there. For a new connection, and sent
// again by the same one.

#include "bench/support/SampleFile.h"
#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

namespace {

using namespace tellurix;
using bench::Durations;

constexpr int connections = 20;
constexpr int sentAgain = 20;

const std::string weekList =
    "SET NOCOUNT ON \r\nSET DATEFIRST 1\r\nDeclare @StartDate datetime = '01.01.2015'\r\n"
    "Declare @EndDate datetime = '31.12.2050'\r\ndeclare @temp Table\r\n"
    "( DayDate datetime, ISO_KW  int, YEAR_KW  int )\r\nWHILE @StartDate <= @EndDate\r\nbegin\r\n"
    " INSERT INTO @temp (DayDate, ISO_KW, YEAR_KW) VALUES (@StartDate, datepart(ISOWK, @StartDate),  "
    "YEAR(DATEADD(day, 26 - DATEPART(ISOWK, @StartDate), @StartDate)))\r\n"
    " SET @StartDate = Dateadd(Day,1, @StartDate)\r\n end\r\n"
    "SELECT WVO_VERTAG_KALENDER.ID,(select convert(nvarchar(10),min(dtTable.DayDate),104) from @temp dtTable "
    "where dtTable.ISO_KW = WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR) + '-' + "
    "(select convert(nvarchar(10),max(dtTable.DayDate),104) from @temp dtTable where dtTable.ISO_KW = "
    "WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR)  AS DATUM FROM WVO_VERTAG_KALENDER "
    "ORDER BY 1";

void readAll(base::Connection& connection) {
    const auto rows = connection.open(weekList);
    for (; !rows->atEnd(); rows->moveNext())
        bench::keep(rows->field(1));
}

} // namespace

int main() {
    try {
        const bench::SampleFile file;
        const embedded::Database database{file.path(), bench::standingClock};
        Durations first;
        Durations again;
        for (int each = 0; each < connections; ++each) {
            const auto connection = database.connect();
            first.add(bench::timeOf([&] { readAll(*connection); }));
            for (int time = 0; time < sentAgain; ++time)
                again.add(bench::timeOf([&] { readAll(*connection); }));
        }
        constexpr double perMillisecond = 1000;
        bench::Report report({"the week list", "quickest ms", "median ms"});
        const auto add = [&](const std::string& name, const Durations& times) {
            report.add({name, bench::fixed(times.percentile(0) / perMillisecond, 2),
                        bench::fixed(times.median() / perMillisecond, 2)});
        };
        add("for a new connection", first);
        add("sent again", again);
        report.print(std::cout);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "bench_batch: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
