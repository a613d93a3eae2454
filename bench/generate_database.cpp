// Makes a large database for measurements: the workbench's schema and reference rows, then contracts,
// lines and logs in any number. The same numbers always give the same rows, so that two measurements
// a year apart measure the same thing. Everything is made by the server's own set statements; not one
// row travels from here.

#include "bench/generate_logistics.h"
#include "database/embedded/Database.h"
#include "database/embedded/script.h"
#include "database_files.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <limits>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using tellurix::base::Connection;

constexpr std::string_view usage = R"(generate_database FILE --contracts N --lines N --logs N [--booked N]
    [--logistics N --helpers N --weeks N [--persons N] [--invoiced N] [--notes N]]

  FILE         the database file to make; it must not exist
  --contracts  contracts, of the types R, A1 … A8 in turn
  --lines      price lines and as many quantity lines of each contract
  --logs       delivered logs
  --booked     how many of the logs are booked, to the contracts in turn (all of them by default)
  --logistics  how many of the contracts are in the logistics coordination; all logs are booked to them then
  --helpers    forest helpers of each of them
  --weeks      calendar weeks of each, with a report of every helper
  --persons    forest helpers in all (as many as one contract has by default)
  --invoiced   rows of invoiced quantities
  --notes      takeover notes
)";

/// The time of generation is no part of the data.
class Standstill : public tellurix::base::Clock {
public:
    tellurix::base::DateTime now() const override { return {}; }
};

struct Sizes {
    std::string file;
    std::int64_t contracts = 0;
    std::int64_t lines = 0;
    std::int64_t logs = 0;
    std::int64_t booked = 0;
    tellurix::bench::LogisticsSizes logistics;
};

std::int64_t numberOf(std::string_view option, std::string_view text) {
    std::int64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    // The keys are integers of 32 bits.
    if (error != std::errc{} || stop != end || number < 0 ||
        number > std::numeric_limits<std::int32_t>::max()) {
        throw std::invalid_argument{std::string{option} + " needs a number from 0 to 2147483647, not '" +
                                    std::string{text} + "'"};
    }
    return number;
}

Sizes sizesFrom(std::span<const std::string> arguments) {
    Sizes sizes;
    std::optional<std::int64_t> contracts, lines, logs, booked, logistics, helpers, weeks, persons, invoiced,
        notes;
    const std::pair<std::string_view, std::optional<std::int64_t>*> options[] = {
        {"--contracts", &contracts}, {"--lines", &lines},     {"--logs", &logs},   {"--booked", &booked},
        {"--logistics", &logistics}, {"--helpers", &helpers}, {"--weeks", &weeks}, {"--persons", &persons},
        {"--invoiced", &invoiced},   {"--notes", &notes}};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!argument.starts_with("--")) {
            if (!sizes.file.empty()) throw std::invalid_argument{"more than one file: " + argument};
            sizes.file = argument;
            continue;
        }
        const auto* const option =
            std::ranges::find(options, argument, [](const auto& each) { return each.first; });
        if (option == std::end(options)) throw std::invalid_argument{"unknown option " + argument};
        if (i + 1 == arguments.size()) throw std::invalid_argument{argument + " needs a number"};
        *option->second = numberOf(argument, arguments[++i]);
    }
    if (sizes.file.empty()) throw std::invalid_argument{"no file given"};
    if (!contracts || !lines || !logs)
        throw std::invalid_argument{"--contracts, --lines and --logs are needed"};
    sizes.contracts = *contracts;
    sizes.lines = *lines;
    sizes.logs = *logs;
    sizes.booked = booked.value_or(*contracts > 0 ? *logs : 0);
    if (sizes.booked > sizes.logs) throw std::invalid_argument{"more logs booked than there are logs"};
    if (sizes.booked > 0 && sizes.contracts == 0)
        throw std::invalid_argument{"logs are booked to contracts, there is none"};
    sizes.logistics = {.contracts = logistics.value_or(0),
                       .helpers = helpers.value_or(0),
                       .persons = persons.value_or(helpers.value_or(0)),
                       .weeks = weeks.value_or(0),
                       .invoiced = invoiced.value_or(0),
                       .notes = notes.value_or(0)};
    if (sizes.logistics.contracts > sizes.contracts)
        throw std::invalid_argument{"more contracts in the logistics coordination than there are contracts"};
    if (sizes.logistics.contracts > 0 &&
        (sizes.logistics.helpers == 0 || sizes.logistics.persons < sizes.logistics.helpers))
        throw std::invalid_argument{"a contract needs helpers, and no more than there are persons"};
    return sizes;
}

/// A statement with its numbers put in: `%` stands for `number`. The statements have no other use for
/// the character; a remainder is written as X - X / n * n, which needs no operator of its own.
std::string filled(std::string_view statement, std::int64_t number) {
    std::string result;
    for (const char c : statement) {
        if (c == '%')
            result += std::to_string(number);
        else
            result += c;
    }
    return result;
}

/// A table of the numbers 1 … `count`, doubled from one row.
void makeNumbers(Connection& connection, std::int64_t count) {
    connection.execute("CREATE TABLE BENCH_NUMBER (N int NOT NULL PRIMARY KEY)");
    connection.execute("INSERT INTO BENCH_NUMBER (N) VALUES (1)");
    for (std::int64_t have = 1; have < count; have *= 2) {
        const std::int64_t missing = std::min(have, count - have);
        connection.execute(filled("INSERT INTO BENCH_NUMBER (N) SELECT N + % FROM BENCH_NUMBER", have) +
                           filled(" WHERE N <= %", missing));
    }
}

void makeContracts(Connection& connection, std::int64_t contracts) {
    connection.execute(filled(
        R"(INSERT INTO VERTRAEGE (VERTRAG_NAME, VER_TYPE, ID_FAKTART, INVDATE, LIEFERVON, LIEFERBIS, KOPF1, KOPF2,
    NUMM1, RART_ID, BUCHNR_ID, EURO, ID_PERSONAL, ID_PERSONAL_LIEFERADRESSE, ID_MANDANTEN, ABGESCHLOSSEN)
SELECT C.CODE + '-' + RIGHT('000000' + CAST(C.N AS nvarchar(10)), 7), C.CODE, C.TYPE_PLACE + 1,
    DATEADD(day, C.DAY_PLACE, '20250101'), DATEADD(day, C.DAY_PLACE, '20250201'), DATEADD(day, C.DAY_PLACE, '20250731'),
    'Lieferung frei Werk, Los ' + CAST(C.N AS nvarchar(10)), 'Zahlung 30 Tage netto',
    C.DAY_PLACE * 0.25, C.N - C.N / 5 * 5 + 1, C.N - C.N / 4 * 4 + 1, 1,
    C.N - C.N / 6 * 6 + 10, C.N - C.N / 5 * 5 + 50, C.N - C.N / 2 * 2 + 1, CASE C.N - C.N / 10 * 10 WHEN 9 THEN 1 ELSE 0 END
FROM (SELECT B.N, B.TYPE_PLACE, B.DAY_PLACE,
        CASE B.TYPE_PLACE WHEN 0 THEN 'R' ELSE 'A' + CAST(B.TYPE_PLACE AS nvarchar(1)) END AS CODE
    FROM (SELECT N, N - 1 - (N - 1) / 9 * 9 AS TYPE_PLACE, N - N / 365 * 365 AS DAY_PLACE
        FROM BENCH_NUMBER WHERE N <= %) AS B) AS C
ORDER BY C.N)",
        contracts));
}

/// The selections of a contract's lines, in the form of the quick selection: four kinds in turn, each
/// from the fifth line on with a length, so that no two lines are the same. The first two overlap.
void makeLines(Connection& connection, std::int64_t lines) {
    constexpr std::string_view everyLine =
        R"(
FROM (SELECT N,
        CASE N - N / 4 * 4
            WHEN 1 THEN '83 IN (''FI'') ;'
            WHEN 2 THEN '83 IN (''FI'', ''KI'') ;87 IN (''B'', ''L'') ;'
            WHEN 3 THEN '83 IN (''TA'', ''LA'') ;90 IN (''B'', ''C'') ;'
            ELSE '87 IN (''S'', ''F'') ;93 IN (''1a'', ''1b'', ''2a'') ;'
        END + CASE WHEN N > 4 THEN '94 IN (' + CAST(N / 4 + 2 AS nvarchar(10)) + ') ;'
            WHEN N = 3 THEN '94 IN (4, 4.5, 5) ;' ELSE ''
        END AS SELEKTION
    FROM BENCH_NUMBER WHERE N <= %) AS L
    INNER JOIN VERTRAEGE ON 1=1
ORDER BY VERTRAEGE.ID_VERTRAG, L.N)";
    connection.execute(
        R"(INSERT INTO VERTRAG_PREISE (ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, PREIS, EURO, ID_WARENEINHEIT)
SELECT VERTRAEGE.ID_VERTRAG, L.N, 'Preis ' + CAST(L.N AS nvarchar(10)), L.SELEKTION, 60 + (L.N - L.N / 97 * 97) * 0.375, 1, L.N - L.N / 8 * 8 + 1)" +
        filled(everyLine, lines));
    connection.execute(
        R"(INSERT INTO VERTRAG_MENGEN (ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, MENGE, ID_WARENEINHEIT)
SELECT VERTRAEGE.ID_VERTRAG, L.N, 'Menge ' + CAST(L.N AS nvarchar(10)), L.SELEKTION, 100 + (L.N - L.N / 83 * 83) * 2.5, L.N - L.N / 8 * 8 + 1)" +
        filled(everyLine, lines));
}

/// The attributes of a log follow MIX, which shuffles the numbers by a prime: following the number
/// itself, every log of a contract would be of one species.
void makeLogs(Connection& connection, std::int64_t logs) {
    connection.execute(filled(
        R"(INSERT INTO LOGS (NUMMER, DATUM, HA, HS, GKL, STKL, LANGE, MENGE, DSART, KUBATUR, KUBRM, KUBATRO, STK,
    UFAKT_RM, UFAKT_ATO, UFAKT_STK, UFAKT_LUT)
SELECT M.N, DATEADD(day, M.N - M.N / 365 * 365, '20250101'), HOLZART.HA, HOLZSORTE.HS, GUETEKLASSE.GKL, STKL.STKL,
    3 + (M.MIX - M.MIX / 9 * 9) * 0.5, M.VOLUME, M.MEASURE, M.VOLUME,
    CASE M.MEASURE WHEN 2 THEN M.VOLUME * 1.4 ELSE NULL END, CASE M.MEASURE WHEN 4 THEN M.VOLUME * 0.45 ELSE NULL END,
    M.MIX - M.MIX / 50 * 50 + 1, CASE M.MIX - M.MIX / 11 * 11 WHEN 0 THEN NULL ELSE 0.7 END, 2.25, 0.25, 1.125
FROM (SELECT C.N, C.MIX, C.MIX - C.MIX / 4 * 4 + 1 AS MEASURE, 0.5 + (C.MIX - C.MIX / 97 * 97) * 0.031 AS VOLUME
    FROM (SELECT B.N, B.PLACE * 7919 - B.PLACE * 7919 / 9973 * 9973 AS MIX
        FROM (SELECT N, N - N / 9973 * 9973 AS PLACE FROM BENCH_NUMBER WHERE N <= %) AS B) AS C) AS M
    INNER JOIN HOLZART ON HOLZART.ID = M.MIX - M.MIX / 10 * 10 + 1
    INNER JOIN HOLZSORTE ON HOLZSORTE.ID = M.MIX - M.MIX / 7 * 7 + 1
    INNER JOIN GUETEKLASSE ON GUETEKLASSE.ID = M.MIX - M.MIX / 6 * 6 + 1
    INNER JOIN STKL ON STKL.ID = M.MIX - M.MIX / 8 * 8 + 1
ORDER BY M.N)",
        logs));
}

/// Books the first logs to the contracts in turn, each in the column of its contract's type.
void bookLogs(Connection& connection, std::int64_t booked, std::int64_t contracts) {
    std::string columns, names;
    for (const std::string code : {"R", "A1", "A2", "A3", "A4", "A5", "A6", "A7", "A8"}) {
        columns += ", " + code + "_VERTRAG";
        names += ", CASE VERTRAEGE.VER_TYPE WHEN '" + code + "' THEN VERTRAEGE.VERTRAG_NAME ELSE NULL END";
    }
    connection.execute("INSERT INTO LOGS_RECH (ID_LOG, A2_KUNDE" + columns +
                       ")\nSELECT B.N, B.N - B.N / 7 * 7 + 20" + names +
                       "\nFROM BENCH_NUMBER B INNER JOIN VERTRAEGE" +
                       filled(" ON VERTRAEGE.ID_VERTRAG = B.N - 1 - (B.N - 1) / % * % + 1", contracts) +
                       filled("\nWHERE B.N <= % ORDER BY B.N", booked));
}

bool makesIndexes(std::string_view batch) {
    return batch.find("CREATE TABLE") == std::string_view::npos &&
           batch.find("INDEX") != std::string_view::npos;
}

void generate(const Sizes& sizes) {
    namespace embedded = tellurix::embedded;
    namespace files = tellurix::standin::database_files;
    if (std::filesystem::exists(sizes.file)) throw std::invalid_argument{sizes.file + " exists already"};

    const Standstill clock;
    embedded::Database database{sizes.file, clock, {.create = true}};
    const auto connection = database.connect();

    // The indexes come last: sorting once is quicker than keeping them in order row by row.
    std::vector<std::string_view> indexes;
    for (const std::string_view batch : embedded::splitBatches(files::file("schema.sql"))) {
        if (makesIndexes(batch))
            indexes.push_back(batch);
        else
            connection->execute(batch);
    }
    embedded::runScript(*connection, files::file("sample_reference.sql"));

    const tellurix::bench::LogisticsSizes& logistics = sizes.logistics;
    makeNumbers(*connection,
                std::max({sizes.contracts, sizes.lines, sizes.logs, logistics.persons, logistics.weeks,
                          logistics.invoiced, logistics.notes, std::int64_t{1}}));
    if (sizes.contracts > 0) makeContracts(*connection, sizes.contracts);
    if (sizes.lines > 0) makeLines(*connection, sizes.lines);
    if (sizes.logs > 0) makeLogs(*connection, sizes.logs);
    if (sizes.booked > 0 && logistics.contracts == 0) bookLogs(*connection, sizes.booked, sizes.contracts);
    if (logistics.contracts > 0) tellurix::bench::makeLogistics(*connection, logistics);
    connection->execute("DROP TABLE BENCH_NUMBER");
    for (const std::string_view batch : indexes)
        connection->execute(batch);
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        generate(sizesFrom(arguments));
        return EXIT_SUCCESS;
    } catch (const std::invalid_argument& error) {
        std::cerr << "generate_database: " << error.what() << "\n\n" << usage;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "generate_database: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
