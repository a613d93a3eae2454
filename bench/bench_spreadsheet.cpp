// How long a spreadsheet of many rows takes, from the table's text to the whole file.

#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "standin/services/spreadsheets/Workbook.h"

#include <exception>
#include <filesystem>
#include <iostream>

namespace {

using namespace tellurix;

constexpr int repetitions = 20;

/// The columns of the weekly reports, every row with other values.
std::string parameters(int rows) {
    std::string text =
        "FORMAT=0;;;0;;;;0;;0;\r\nROW=1\r\nTABLE=WH-Nr.\tWaldhelfer\tStraße\tPLZ\tOrt\tTelefon\tHandy\t"
        "Züge\tBemerkungWH\tZüge zugesagt\tBemerkung\tWH Änderung\tZent. Änderung\tMenge angem.\t"
        "Menge best.\tMenge geliefert";
    for (int i = 0; i < rows; ++i) {
        const std::string n = std::to_string(i);
        text += "\r\n" + n + "\tWaldhelfer " + n + "\tForststraße " + n + "\t8010\tGraz\t0316 " + n +
                "\t0664 " + n + "\t" + std::to_string(i % 10) + "\tab Waldstraße " + n + "\t" +
                std::to_string(i % 9) + "\tFrächter " + n + "\t09.03.2026 08:15\t10.03.2026 09:30\t1." +
                std::to_string(100 + i % 900) + ",50\t250\t" + n + ",125";
    }
    return text;
}

void measure(int rows, bench::Report& report) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "tellurix-bench.xlsx";
    const std::string text = parameters(rows);
    bench::Durations durations;
    for (int i = 0; i < repetitions; ++i) {
        durations.add(bench::timeOf([&] {
            standin::writeWorkbook(file, standin::TableText::read(text), "Vertrag", "anna",
                                   base::Locale::german());
        }));
    }
    report.add({std::to_string(rows), bench::fixed(durations.median() / 1000, 1),
                bench::fixed(durations.longest() / 1000, 1),
                std::to_string(std::filesystem::file_size(file) / 1024)});
    std::filesystem::remove(file);
}

} // namespace

int main() {
    try {
        bench::Report report{{"rows", "median ms", "longest ms", "KiB"}};
        for (const int rows : {60, 300, 5000})
            measure(rows, report);
        report.print(std::cout);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
