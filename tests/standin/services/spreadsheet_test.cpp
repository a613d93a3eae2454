#include "standin/services/spreadsheets/Workbook.h"
#include "standin/services/spreadsheets/cell_values.h"
#include "tests/standin/services/ServicesTest.h"
#include "tests/support/TestFolder.h"

#include <array>
#include <cstdio>
#include <filesystem>

namespace tellurix::tests {
namespace {

const std::string workbookTitle =
    "Vertrag: R-2025/001 [A&B]                Kalender: KW202510 (03.03.2025 - 09.03.2025)";

class Spreadsheets : public ServicesTest {
protected:
    /// What another program reads in the file that the user gets.
    std::string read(const std::string& parameters, const std::string& title = workbookTitle) {
        host.spreadsheets.exportTable(session, parameters, title);
        folder.write("exported.xlsx", display.files().back().content);
        return outputOf("/usr/bin/python3 " TELLURIX_TEST_FOLDER "/read_workbook.py " +
                        (folder / "exported.xlsx"));
    }
    static std::string outputOf(const std::string& command) {
        FILE* output = popen((command + " 2>&1").c_str(), "r");
        std::string text;
        std::array<char, 4096> buffer{};
        while (const std::size_t length = std::fread(buffer.data(), 1, buffer.size(), output))
            text.append(buffer.data(), length);
        EXPECT_EQ(pclose(output), 0) << text;
        return text;
    }
    /// Has an office program make something else of the file, beside it.
    void convert(const std::string& to) {
        outputOf("LC_ALL=C.UTF-8 " + std::string{office} + " -env:UserInstallation=file://" +
                 (folder / "profile") + " --headless --convert-to '" + to + "' --outdir " + (folder / "") +
                 " " + (folder / "exported.xlsx"));
    }

    static constexpr const char* office = "/usr/bin/soffice";
    static constexpr const char* textOfPrint = "/usr/bin/pdftotext";

    TestFolder folder;
};

TEST_F(Spreadsheets, AnotherProgramReadsWhatWasShown) {
    EXPECT_EQ(
        read("FORMAT=0;;0;0;\r\nROW=1\r\nTABLE=Mitgl.Nr.\tMitglied Name\tMenge\tPLZ\tgeändert\tBemerkung\r\n"
             "3001\tMüller & Söhne\t1.234.567,50\t01067\t09.03.2026 08:05\t=SUM(A1:A9)\r\n"
             "3002\t0815\t-0,125\t\t29.02.2024\t31.02.2024\r\n"
             "\tSUMME:\t1.234.567\t\t\thttp://a.example\r\n"),
        "title " + workbookTitle +
            " | author anna\n"
            "sheets Vertrag R-2025 001 A&B Kalender\n"
            "header &B" +
            base::replaceAll(workbookTitle, "&", "&&") +
            "\n"
            "frozen A2 repeated $1:$1\n"
            "A1 s 'Mitgl.Nr.' bold\nB1 s 'Mitglied Name' bold\nC1 s 'Menge' bold\n"
            "D1 s 'PLZ' bold\nE1 s 'geändert' bold\nF1 s 'Bemerkung' bold\n"
            "A2 n 3001 0\nB2 s 'Müller & Söhne'\nC2 n 1234567.5 #,##0.00\nD2 n 1067 00000\n"
            "E2 d datetime.datetime(2026, 3, 9, 8, 5) dd.mm.yyyy hh:mm\nF2 s '=SUM(A1:A9)'\n"
            "A3 n 3002 0\nB3 s '0815'\nC3 n -0.125 0.000\n"
            "E3 d datetime.datetime(2024, 2, 29, 0, 0) dd.mm.yyyy\nF3 s '31.02.2024'\n"
            "B4 s 'SUMME:' bold\nC4 n 1234567 #,##0 bold\nF4 s 'http://a.example' bold\n"
            "widths 12 17 15\n");
    EXPECT_EQ(display.files().back().name, "Vertrag R-2025 001 A&B Kalender.xlsx");
}

TEST_F(Spreadsheets, AnOfficeProgramShowsAndPrintsThem) {
    if (!std::filesystem::exists(office) || !std::filesystem::exists(textOfPrint))
        GTEST_SKIP()
            << "needs the packages libreoffice-calc-nogui and poppler-utils, too large for every test";
    const std::string title = "Vertrag: R-2025-003 Judenburg";
    read("FORMAT=0;;0;0;\r\nROW=1\r\nTABLE=Mitgl.Nr.\tMitglied Name\tMenge\tPLZ\tgeändert\tBemerkung\r\n"
         "3001\tMüller & Söhne\t1.234.567,50\t01067\t09.03.2026 08:05\t=SUM(A1:A9)\r\n"
         "\tSUMME:\t1.234.567,50\t\t\t",
         title);
    // "|" between the cells, which are written as they are shown.
    convert("csv:Text - txt - csv (StarCalc):124,34,76,1,,0,false,true");
    EXPECT_EQ(folder.read("exported.csv"),
              "Mitgl.Nr.|Mitglied Name|Menge|PLZ|geändert|Bemerkung\n"
              "3001|Müller & Söhne|1,234,567.50|01067|09.03.2026 08:05|=SUM(A1:A9)\n"
              "|SUMME:|1,234,567.50|||\n");
    convert("pdf");
    const std::string printed =
        outputOf(std::string{textOfPrint} + " -layout " + (folder / "exported.pdf") + " -");
    for (const char* seen : {title.c_str(), "Müller & Söhne", "1,234,567.50", "09.03.2026 08:05", "SUMME:"})
        EXPECT_NE(printed.find(seen), std::string::npos) << seen << " in\n" << printed;
    EXPECT_EQ(printed.find("##"), std::string::npos) << "every column is wide enough\n" << printed;
}

TEST_F(Spreadsheets, TheTableBeginsInItsRowAndMayBeEmpty) {
    const std::string shifted = read("FORMAT=\r\nROW=3\r\nTABLE=A\r\nx", "T");
    EXPECT_NE(shifted.find("frozen A4 repeated $3:$3\nA3 s 'A' bold\nA4 s 'x'\n"), std::string::npos)
        << shifted;
    EXPECT_NE(read("TABLE=A\tB", "T").find("A1 s 'A' bold\nB1 s 'B' bold\n"), std::string::npos);
    EXPECT_NE(read("TABLE=", "").find("sheets Tabelle\n"), std::string::npos);
    EXPECT_NE(read("TABLE=A\r\nTABLE=1=2", "T").find("A2 s 'TABLE=1=2'"), std::string::npos);
    EXPECT_NE(read("TABLE=A\r\n\xff\x01", "T").find("A2 s "), std::string::npos) << "bytes that are no text";
}

TEST_F(Spreadsheets, WhatCannotBeShownIsTold) {
    for (const char* parameters :
         {"", "FORMAT=0", "ROW=0\r\nTABLE=A", "ROW=x\r\nTABLE=A", "OTHER=1\r\nTABLE=A", "A\tB"})
        EXPECT_THROW(host.spreadsheets.exportTable(session, parameters, "T"), std::invalid_argument)
            << parameters;
    EXPECT_THROW(host.spreadsheets.exportTable(session, "TABLE=A\r\n" + std::string(40000, 'x'), "T"),
                 std::runtime_error);
    EXPECT_TRUE(display.files().empty()) << "no part of a table";
}

TEST(CellValues, NumbersAreReadBackExactlyOrStayTexts) {
    struct Row {
        const char* text;
        std::optional<double> value;
        const char* mask;
    };
    for (const Row& row : {Row{"12,50", 12.5, "0.00"},
                           {"1.234", 1234, "#,##0"},
                           {"0", 0, "0"},
                           {"007", 7, "000"},
                           {"-1.000,5", -1000.5, "#,##0.0"},
                           {"123456789012345", 123456789012345, "0"},
                           {"1234567890123456", {}, ""},
                           {"12x", {}, ""},
                           {"", {}, ""},
                           {"1,2,3", {}, ""}}) {
        const auto number = standin::numberIn(row.text, base::Locale::german());
        EXPECT_EQ(number ? std::optional{number->value} : std::nullopt, row.value) << row.text;
        EXPECT_EQ(number ? number->mask : "", row.mask) << row.text;
    }
}

TEST(CellValues, OnlyWholeDatesAreDates) {
    for (const char* text : {"01.03.1900", "31.12.9999 23:59:59", "09.03.2026 00:00"})
        EXPECT_TRUE(standin::dateIn(text)) << text;
    for (const char* text :
         {"28.02.1900", "1.3.2026", "31.04.2026", "09.03.2026 24:00", "09.03.2026 - 15.03.2026", "09.03.26"})
        EXPECT_FALSE(standin::dateIn(text)) << text;
}

TEST(SheetName, IsOneThatASheetCanHave) {
    const std::pair<std::string, std::string> names[] = {
        {"Waldhelfer und Verträge", "Waldhelfer und Verträge"},
        {"a[b]:c*d?e/f\\g", "a b c d e f g"},
        {"'x'", "x"},
        {"", "Tabelle"},
        {" ** ", "Tabelle"},
        {"History", "Tabelle"},
        {std::string(40, 'n'), std::string(31, 'n')}};
    for (const auto& [title, name] : names)
        EXPECT_EQ(standin::sheetName(title), name);
    std::string trees;
    for (int i = 0; i < 20; ++i)
        trees += "🌲";
    EXPECT_EQ(standin::sheetName(trees).size(), 15U * 4U) << "a tree counts twice";
}

} // namespace
} // namespace tellurix::tests
