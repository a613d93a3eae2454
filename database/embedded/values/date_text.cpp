#include "database/embedded/values/date_text.h"

#include "database/embedded/values/blanks.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tellurix::embedded {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

/// Reads a text from left to right; every step says whether it succeeded.
class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool atEnd() const { return text_.empty(); }

    bool number(int& value, std::size_t fewest, std::size_t most) {
        std::size_t count = 0;
        value = 0;
        while (count < text_.size() && count < most && text_[count] >= '0' && text_[count] <= '9')
            value = value * 10 + (text_[count++] - '0');
        text_.remove_prefix(count);
        return count >= fewest;
    }

    bool character(char expected) {
        if (text_.empty() || text_.front() != expected) return false;
        text_.remove_prefix(1);
        return true;
    }

    bool blanks() {
        const std::size_t before = text_.size();
        while (!text_.empty() && text_.front() == ' ')
            text_.remove_prefix(1);
        return text_.size() < before;
    }

    /// The word in any case of its letters.
    bool word(std::string_view expected) {
        const auto same = [](char left, char right) { return (left | ' ') == (right | ' '); };
        if (text_.size() < expected.size() ||
            !std::equal(expected.begin(), expected.end(), text_.begin(), same))
            return false;
        text_.remove_prefix(expected.size());
        return true;
    }

    std::size_t digitsAhead() const {
        std::size_t count = 0;
        while (count < text_.size() && text_[count] >= '0' && text_[count] <= '9')
            ++count;
        return count;
    }

    char characterAt(std::size_t index) const { return index < text_.size() ? text_[index] : '\0'; }

private:
    std::string_view text_;
};

bool readTime(Scanner& scanner, std::chrono::milliseconds& time) {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    int fraction = 0;
    if (!scanner.number(hours, 1, 2) || !scanner.character(':') || !scanner.number(minutes, 1, 2))
        return false;
    if (scanner.character(':')) {
        if (!scanner.number(seconds, 1, 2)) return false;
        if (scanner.character('.')) {
            const std::size_t digits = scanner.digitsAhead();
            if (!scanner.number(fraction, 1, 3)) return false;
            for (std::size_t count = digits; count < 3; ++count)
                fraction *= 10;
        }
    }
    if (hours > 23 || minutes > 59 || seconds > 59) return false;
    time = std::chrono::hours{hours} + std::chrono::minutes{minutes} + std::chrono::seconds{seconds} +
           std::chrono::milliseconds{fraction};
    return true;
}

bool readCompactDay(Scanner& scanner, base::Date& date) {
    int whole = 0;
    if (!scanner.number(whole, 8, 8)) return false;
    date = year{whole / 10000} / (whole / 100 % 100) / (whole % 100);
    return true;
}

bool readSeparatedDay(Scanner& scanner, DateOrder order, base::Date& date) {
    std::array<int, 3> parts{};
    if (scanner.digitsAhead() > 2 && order != DateOrder::yearMonthDay) return false;
    const char separator = scanner.characterAt(scanner.digitsAhead());
    if (separator != '.' && separator != '/' && separator != '-') return false;
    const std::size_t yearAt = order == DateOrder::yearMonthDay ? 0 : 2;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        if (index > 0 && !scanner.character(separator)) return false;
        const std::size_t most = index == yearAt ? 4 : 2;
        if (!scanner.number(parts[index], 1, most)) return false;
    }
    int yearNumber = parts[yearAt];
    if (yearNumber < 100) yearNumber += yearNumber < 50 ? 2000 : 1900;
    const int monthNumber = order == DateOrder::monthDayYear ? parts[0] : parts[1];
    const int dayNumber = order == DateOrder::dayMonthYear   ? parts[0]
                          : order == DateOrder::monthDayYear ? parts[1]
                                                             : parts[2];
    date = year{yearNumber} / monthNumber / dayNumber;
    return true;
}

/// "2025-06-05T14:30:00": the one form with the year in front that no option turns around.
bool isInternational(std::string_view text) {
    constexpr std::size_t positionOfT = 10;
    return text.size() > positionOfT && text[4] == '-' && text[7] == '-' && text[positionOfT] == 'T';
}

std::string padded(int value, int width) {
    std::array<char, 16> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%0*d", width, value);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

struct Parts {
    int year, month, day, hour, minute, second, millisecond;
};

Parts partsOf(base::DateTime moment) {
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const base::Date date{midnight};
    const std::chrono::hh_mm_ss time{moment - midnight};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count()),
            static_cast<int>(time.subseconds().count())};
}

constexpr std::array<std::string_view, 12> monthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// "Jun  5 2025  2:30PM", what a date becomes when no style is given.
std::string writeDefault(const Parts& parts) {
    const int hour = parts.hour % 12 == 0 ? 12 : parts.hour % 12;
    const auto wide = [](int value) { return (value < 10 ? " " : "") + std::to_string(value); };
    return std::string(monthNames.at(static_cast<std::size_t>(parts.month - 1))) + " " + wide(parts.day) +
           " " + padded(parts.year, 4) + " " + wide(hour) + ":" + padded(parts.minute, 2) +
           (parts.hour < 12 ? "AM" : "PM");
}

/// The same the other way round.
std::optional<base::DateTime> readDefault(Scanner& scanner) {
    int monthNumber = 1;
    while (monthNumber <= 12 && !scanner.word(monthNames.at(static_cast<std::size_t>(monthNumber - 1))))
        ++monthNumber;
    int dayNumber = 0;
    int yearNumber = 0;
    if (monthNumber > 12 || !scanner.blanks() || !scanner.number(dayNumber, 1, 2) || !scanner.blanks() ||
        !scanner.number(yearNumber, 4, 4))
        return std::nullopt;
    const base::Date date = year{yearNumber} / monthNumber / dayNumber;
    std::chrono::milliseconds time{0};
    if (scanner.blanks()) {
        if (!readTime(scanner, time)) return std::nullopt;
        const auto hours = std::chrono::duration_cast<std::chrono::hours>(time).count();
        const bool afternoon = scanner.word("PM");
        if (afternoon || scanner.word("AM")) {
            if (hours < 1 || hours > 12) return std::nullopt;
            time += std::chrono::hours{(hours == 12 ? -12 : 0) + (afternoon ? 12 : 0)};
        }
    }
    if (!scanner.atEnd() || !date.ok()) return std::nullopt;
    return base::startOf(date) + time;
}

std::optional<base::DateTime> withinYears(std::optional<base::DateTime> moment) {
    return moment && *moment >= firstMoment && *moment <= lastMoment ? moment : std::nullopt;
}

/// The styles that are a day in digits: the order of its parts and the sign between them. Those below 100
/// have years of two digits.
struct DayStyle {
    int style;
    DateOrder order;
    char separator;
};

constexpr std::array<DayStyle, 8> dayStyles{{{101, DateOrder::monthDayYear, '/'},
                                             {102, DateOrder::yearMonthDay, '.'},
                                             {103, DateOrder::dayMonthYear, '/'},
                                             {104, DateOrder::dayMonthYear, '.'},
                                             {105, DateOrder::dayMonthYear, '-'},
                                             {110, DateOrder::monthDayYear, '-'},
                                             {111, DateOrder::yearMonthDay, '/'},
                                             {23, DateOrder::yearMonthDay, '-'}}};

const DayStyle* dayStyleOf(int style) {
    const auto* const found = std::ranges::find_if(dayStyles, [&](const DayStyle& each) {
        return each.style == style || (style < 23 && each.style == style + 100);
    });
    return found == dayStyles.end() ? nullptr : found;
}

std::string writeDay(const DayStyle& style, const std::string& y, const std::string& m,
                     const std::string& d) {
    const auto joined = [&](const std::string& a, const std::string& b, const std::string& c) {
        return a + style.separator + b + style.separator + c;
    };
    if (style.order == DateOrder::yearMonthDay) return joined(y, m, d);
    return style.order == DateOrder::dayMonthYear ? joined(d, m, y) : joined(m, d, y);
}

} // namespace

std::optional<base::DateTime> readDate(std::string_view text, DateOrder order) {
    text = trimmed(text);
    if (text.empty())
        return base::DateTime{std::chrono::local_days{year{1900} / 1 / 1}}; // as the server does
    Scanner scanner(text);
    base::Date date;
    std::chrono::milliseconds time{0};
    if (isInternational(text)) {
        if (!readSeparatedDay(scanner, DateOrder::yearMonthDay, date) || !scanner.character('T') ||
            !readTime(scanner, time))
            return std::nullopt;
    } else {
        const bool compact = scanner.digitsAhead() == 8;
        if (!(compact ? readCompactDay(scanner, date) : readSeparatedDay(scanner, order, date)))
            return std::nullopt;
        if (scanner.blanks() && !readTime(scanner, time)) return std::nullopt;
    }
    if (!scanner.atEnd() || !date.ok()) return std::nullopt;
    return withinYears(base::startOf(date) + time);
}

std::optional<base::DateTime> readStyledDate(std::string_view text, int style) {
    if (trimmed(text).empty()) return readDate(text, DateOrder::dayMonthYear);
    Scanner scanner(trimmed(text));
    if (style == 0 || style == 100) return withinYears(readDefault(scanner));
    if (style == 8 || style == 108) {
        std::chrono::milliseconds time{0};
        if (!readTime(scanner, time) || !scanner.atEnd()) return std::nullopt;
        return base::DateTime{std::chrono::local_days{year{1900} / 1 / 1}} + time;
    }
    const DayStyle* const day = dayStyleOf(style);
    const bool international = isInternational(trimmed(text));
    if (style == 126 ? !international : international) return std::nullopt;
    return readDate(text, day == nullptr ? DateOrder::yearMonthDay : day->order);
}

bool isDateStyle(int style) {
    return writeDate(base::DateTime{}, style).has_value();
}

std::optional<std::string> writeDate(base::DateTime moment, int style) {
    const Parts parts = partsOf(moment);
    const std::string y = padded(parts.year, 4);
    const std::string m = padded(parts.month, 2);
    const std::string d = padded(parts.day, 2);
    const std::string time =
        padded(parts.hour, 2) + ":" + padded(parts.minute, 2) + ":" + padded(parts.second, 2);
    const std::string shortYear = padded(parts.year % 100, 2);
    if (const DayStyle* const day = dayStyleOf(style))
        return writeDay(*day, style == day->style ? y : shortYear, m, d);
    switch (style) {
    case 0:
    case 100:
        return writeDefault(parts);
    case 8:
    case 108:
        return time;
    case 12:
        return shortYear + m + d;
    case 112:
        return y + m + d;
    case 20:
    case 120:
        return y + "-" + m + "-" + d + " " + time;
    case 21:
    case 121:
        return y + "-" + m + "-" + d + " " + time + "." + padded(parts.millisecond, 3);
    case 126: {
        std::string text = y + "-" + m + "-" + d + "T" + time;
        if (parts.millisecond != 0) text += "." + padded(parts.millisecond, 3);
        return text;
    }
    default:
        return std::nullopt;
    }
}

} // namespace tellurix::embedded
