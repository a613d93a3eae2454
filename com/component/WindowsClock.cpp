#include "com/component/WindowsClock.h"

#include <windows.h>

namespace tellurix::windows {

base::DateTime WindowsClock::now() const {
    using namespace std::chrono;
    SYSTEMTIME local{};
    GetLocalTime(&local);
    const year_month_day day{year{local.wYear}, month{local.wMonth}, std::chrono::day{local.wDay}};
    return base::startOf(day) + hours{local.wHour} + minutes{local.wMinute} + seconds{local.wSecond} +
           milliseconds{local.wMilliseconds};
}

} // namespace tellurix::windows
