#include "standin/services/values/SystemClock.h"

#include <ctime>

namespace tellurix::standin {

namespace {

/// The moment on the clock on the wall. Each platform has its own thread-safe call for it.
std::tm localTime(std::time_t seconds) {
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    return local;
}

} // namespace

base::DateTime SystemClock::now() const {
    using namespace std::chrono;
    const auto moment = system_clock::now();
    const std::tm local = localTime(system_clock::to_time_t(floor<std::chrono::seconds>(moment)));
    const year_month_day day{year{local.tm_year + 1900}, month{static_cast<unsigned>(local.tm_mon + 1)},
                             std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
    const auto fraction = duration_cast<milliseconds>(moment.time_since_epoch() % 1s);
    return base::startOf(day) + hours{local.tm_hour} + minutes{local.tm_min} +
           std::chrono::seconds{local.tm_sec} + fraction;
}

} // namespace tellurix::standin
