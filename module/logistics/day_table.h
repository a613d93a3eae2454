#pragma once

namespace tellurix::logistics {

/// The beginning of a batch: a table @temp of all days from 2015 to 2050 with their ISO week and year.
/// The query that follows takes first and last days of weeks from it; other years have none. The pieces
/// stand on lines of their own: "@EndDate" and "begin" would run together otherwise.
// clang-format off
inline constexpr const char* dayTable =
    "SET NOCOUNT ON \r\n"
    "SET DATEFIRST 1\r\n"
    "Declare @StartDate datetime = '01.01.2015'\r\n"
    "Declare @EndDate datetime = '31.12.2050'\r\n"
    "declare @temp Table\r\n"
    "( DayDate datetime, ISO_KW  int, YEAR_KW  int )\r\n"
    "WHILE @StartDate <= @EndDate\r\n"
    "begin\r\n"
    " INSERT INTO @temp (DayDate, ISO_KW, YEAR_KW) VALUES (@StartDate, datepart(ISOWK, @StartDate),  YEAR(DATEADD(day, 26 - DATEPART(ISOWK, @StartDate), @StartDate)))\r\n"
    " SET @StartDate = Dateadd(Day,1, @StartDate)\r\n"
    " end\r\n";
// clang-format on

} // namespace tellurix::logistics
