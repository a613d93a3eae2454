#include "bench/generate_logistics.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::bench {

namespace {

/// Statements with their sizes put in: {contracts} and the others stand for numbers.
class Statements {
public:
    Statements(base::Connection& connection, std::vector<std::pair<std::string, std::int64_t>> numbers)
        : connection_(connection), numbers_(std::move(numbers)) {}

    void name(const std::string& number, std::int64_t value) { numbers_.emplace_back(number, value); }
    void run(std::string statement) {
        for (const auto& [number, value] : numbers_) {
            const std::string place = "{" + number + "}";
            for (auto at = statement.find(place); at != std::string::npos; at = statement.find(place, at))
                statement.replace(at, place.size(), std::to_string(value));
        }
        connection_.execute(statement);
    }

private:
    base::Connection& connection_;
    std::vector<std::pair<std::string, std::int64_t>> numbers_;
};

void makePersons(Statements& statements) {
    statements.run(
        "INSERT INTO PERSONAL (NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, ABRECH2)"
        " SELECT 10000 + N, 'Helfer ' + CAST(N AS nvarchar(10)), 'Herr', 'Waldmann ' + CAST(N AS nvarchar(10)),"
        " 'Franz', 'Forstweg ' + CAST(N AS nvarchar(10)), '8700', 'Leoben',"
        " CASE N % 9 WHEN 4 THEN NULL ELSE 'helfer' + CAST(N AS nvarchar(10)) + '@helfer.example' END, 1"
        " FROM BENCH_NUMBER WHERE N <= {persons} ORDER BY N");
}

void makeContracts(Statements& statements) {
    statements.run(
        "INSERT INTO WVO_VERTRAG (ID_VERTRAEGE, ANGEMELDETEMENGE, BEREITSELLUNGS, BEREITSELLUNGSTIME)"
        " SELECT ID_VERTRAG, 1, 5, '12:00' FROM VERTRAEGE WHERE ID_VERTRAG <= {contracts}"
        " ORDER BY ID_VERTRAG");
    statements.run("INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG, JAHR, WOCHE, PLANMENGE)"
                   " SELECT W.ID, 2025, B.N, 80 + B.N % 4 * 12.5 FROM WVO_VERTRAG W"
                   " INNER JOIN BENCH_NUMBER B ON B.N <= {weeks} ORDER BY W.ID, B.N");
    statements.run(
        "INSERT INTO WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG, ID_PERSONAL, MENGE_ANG, MENGE_BES, DATUM_CHANGE)"
        " SELECT W.ID, {first} + ((W.ID - 1) * {helpers} + B.N - 1) % {persons}, 40 + B.N % 90,"
        " CASE B.N % 5 WHEN 4 THEN NULL ELSE 35 + B.N % 70 END, '20241220 07:00:00' FROM WVO_VERTRAG W"
        " INNER JOIN BENCH_NUMBER B ON B.N <= {helpers} ORDER BY W.ID, B.N");
}

/// A settings row has its contract's key: they are made in the order of the contracts.
void makeReports(Statements& statements) {
    statements.run(
        "INSERT INTO WVO_BEREITMELDUNG_KW (ID_PERSONAL_WH, ID_VERTRAEGE, JAHR, WOCHE, DATUM_GENERATE,"
        " ZUEGE, ZUEG_ZUGESAGT, FRAECHTER_TEXT, DATUM_CHANGE)"
        " SELECT H.ID_PERSONAL, W.ID_VERTRAEGE, 2025, B.N, '20250102 06:00:00', B.N % 9 + 1,"
        " CASE H.ID % 3 WHEN 0 THEN NULL ELSE B.N % 7 + 1 END,"
        " CASE H.ID % 4 WHEN 1 THEN NULL ELSE 'Fuhrwerk Reisinger' END, '20250103 07:30:00'"
        " FROM WVO_VERTRAG_WALDHELFER H INNER JOIN WVO_VERTRAG W ON W.ID = H.ID_WVO_VERTRAG"
        " INNER JOIN BENCH_NUMBER B ON B.N <= {weeks} ORDER BY B.N, H.ID");
}

/// One note of each helper's owners, and in it one assortment for each of his contracts.
void makeNotes(Statements& statements) {
    statements.run(
        "INSERT INTO WVO2_AUFTRAG_NOTIZ (ID_PERSONAL_WH, ID_PERSONAL_WB, DATUM)"
        " SELECT {first} + N - 1, 30 + N % 4, '20241201' FROM BENCH_NUMBER WHERE N <= {persons} ORDER BY N");
    statements.run(
        "INSERT INTO WVO2_SORTIMENTDATEN (ID_WVO2_AUFTRAG_NOTIZ, ID_WVO_VERTRAG, BEZEICHNUNG, PLANMENGE)"
        " SELECT H.ID_PERSONAL - {first} + 1, H.ID_WVO_VERTRAG, 'Faserholz', 12.5 + H.ID % 30"
        " FROM WVO_VERTRAG_WALDHELFER H ORDER BY H.ID");
}

/// The contract of the Nth row, and which of its helpers: they come in turn.
constexpr std::string_view contractOfRow = "(B.N - 1) % {contracts} + 1";
constexpr std::string_view helperOfRow =
    "{first} + ((B.N - 1) % {contracts} * {helpers} + (B.N - 1) / {contracts} % {helpers}) % {persons}";

void makeDeliveries(Statements& statements) {
    const std::string contract{contractOfRow};
    const std::string helper{helperOfRow};
    statements.run(
        "INSERT INTO WVO_STAT_LOGS_RECH (R_VERTRAG, A2_KUNDE, A1_MENGE) SELECT V.VERTRAG_NAME, " + helper +
        ", 2.125 + B.N % 40 * 0.5 FROM BENCH_NUMBER B INNER JOIN VERTRAEGE V ON V.ID_VERTRAG = " + contract +
        " WHERE B.N <= {invoiced} ORDER BY B.N");
    statements.run(
        "INSERT INTO RELTABLE (BEZEICHNUNG, GRUPPE, [DISABLE]) VALUES ('Scheine', 0, 0), ('Storno', 0, 1)");
    statements.run(
        "INSERT INTO WVO_UBERNAHMESCHEIN (ID_VERTRAEGE, ID_PERSONAL_WH, ID_RELTABLE, NUMMER, DATUM)"
        " SELECT " +
        contract + ", " + helper +
        ", CASE B.N % 50 WHEN 7 THEN 2 ELSE 1 END, B.N, '20250301'"
        " FROM BENCH_NUMBER B WHERE B.N <= {notes} ORDER BY B.N");
    statements.run("INSERT INTO WVO_UBERNAHMESCH_WB_MENGE (ID_WVO_UBERNAHMESCHEIN, ID_PERSONAL_WB, MENGE)"
                   " SELECT ID, 30, 1.5 + ID % 20 * 0.25 FROM WVO_UBERNAHMESCHEIN ORDER BY ID");
    // The quantity reports sum up the logs under the name of a contract of any type.
    statements.run("INSERT INTO LOGS_RECH (ID_LOG, A2_KUNDE, R_VERTRAG) SELECT B.N, " + helper +
                   ", V.VERTRAG_NAME FROM BENCH_NUMBER B INNER JOIN VERTRAEGE V ON V.ID_VERTRAG = " +
                   contract + " INNER JOIN LOGS ON LOGS.ID_LOG = B.N ORDER BY B.N");
}

} // namespace

void makeLogistics(base::Connection& connection, const LogisticsSizes& sizes) {
    Statements statements{connection,
                          {{"contracts", sizes.contracts},
                           {"helpers", sizes.helpers},
                           {"persons", sizes.persons},
                           {"weeks", sizes.weeks},
                           {"invoiced", sizes.invoiced},
                           {"notes", sizes.notes}}};
    makePersons(statements);
    statements.name(
        "first", connection.open("SELECT ID_PERSONAL AS N FROM PERSONAL WHERE NUMMER = 10001")->integer("N"));
    makeContracts(statements);
    makeReports(statements);
    makeNotes(statements);
    makeDeliveries(statements);
}

} // namespace tellurix::bench
