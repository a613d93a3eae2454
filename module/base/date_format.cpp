#include "module/base/date_format.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace tellurix::base {

namespace {

constexpr std::string_view digits = "0123456789";
/// The first year that the database's date columns can hold.
constexpr int firstYear = 1753;

constexpr std::array<std::string_view, 7> germanDays{"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                                     "Donnerstag", "Freitag", "Samstag"};
constexpr std::array<std::string_view, 7> englishDays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                      "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 12> germanMonths{"Januar",    "Februar", "März",     "April",
                                                        "Mai",       "Juni",    "Juli",     "August",
                                                        "September", "Oktober", "November", "Dezember"};
constexpr std::array<std::string_view, 12> englishMonths{"January",   "February", "March",    "April",
                                                         "May",       "June",     "July",     "August",
                                                         "September", "October",  "November", "December"};

/// A mask writes a number with one letter as it is, with two letters in two digits; more is no field.
std::optional<std::string> shortNumber(unsigned number, std::size_t letters) {
    if (letters > 2) return std::nullopt;
    auto text = std::to_string(number);
    if (text.size() < letters) text.insert(0, 1, '0');
    return text;
}

/// A moment taken apart, to be asked for by the letters of a mask.
class MomentParts {
public:
    MomentParts(DateTime moment, const Locale& locale)
        : day_(dayOf(moment)),
          weekday_(std::chrono::floor<std::chrono::days>(moment)),
          time_(std::chrono::floor<std::chrono::seconds>(moment - startOf(day_))),
          german_(locale.germanNames) {}

    /// @return nothing when there is no field of so many of these letters
    std::optional<std::string> field(char letter, std::size_t letters, bool isMinute) const {
        switch (letter) {
        case 'd':
            return letters == 4 ? dayName() : shortNumber(static_cast<unsigned>(day_.day()), letters);
        case 'y':
            return year(letters);
        case 'h':
        case 'H':
            return shortNumber(static_cast<unsigned>(time_.hours().count()), letters);
        case 's':
            return shortNumber(static_cast<unsigned>(time_.seconds().count()), letters);
        default:
            if (isMinute) return shortNumber(static_cast<unsigned>(time_.minutes().count()), letters);
            return letters == 4 ? monthName() : shortNumber(static_cast<unsigned>(day_.month()), letters);
        }
    }

private:
    std::string dayName() const {
        return std::string((german_ ? germanDays : englishDays)[weekday_.c_encoding()]);
    }
    std::string monthName() const {
        return std::string((german_ ? germanMonths : englishMonths)[static_cast<unsigned>(day_.month()) - 1]);
    }
    std::optional<std::string> year(std::size_t letters) const {
        auto text = std::to_string(static_cast<int>(day_.year()));
        text.insert(0, 4 - std::min<std::size_t>(text.size(), 4), '0');
        if (letters == 4) return text;
        if (letters == 2) return text.substr(text.size() - 2);
        return std::nullopt;
    }

    Date day_;
    std::chrono::weekday weekday_;
    std::chrono::hh_mm_ss<std::chrono::seconds> time_;
    bool german_;
};

/// One part of a typed date: a number and with how many digits it was typed.
struct DatePart {
    int number = 0;
    std::size_t digits = 0;
};

DatePart readPart(std::string_view typed) {
    DatePart part{0, typed.size()};
    // Longer than any year: the count alone will refuse it.
    if (typed.size() > 4) return part;
    for (const char digit : typed)
        part.number = part.number * 10 + (digit - '0');
    return part;
}

std::optional<Date> makeDate(DatePart day, DatePart month, DatePart year) {
    if (day.digits > 2 || month.digits > 2) return std::nullopt;
    auto number = year.number;
    if (year.digits == 2) {
        number += number < 30 ? 2000 : 1900;
    } else if (year.digits != 4 || number < firstYear) {
        return std::nullopt;
    }
    const Date date{std::chrono::year{number}, std::chrono::month{static_cast<unsigned>(month.number)},
                    std::chrono::day{static_cast<unsigned>(day.number)}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

} // namespace

std::string formatDate(DateTime moment, std::string_view mask, const Locale& locale) {
    const MomentParts parts(moment, locale);
    std::string text;
    bool behindHour = false;
    for (std::size_t begin = 0; begin < mask.size();) {
        const char letter = mask[begin];
        const auto end = std::min(mask.find_first_not_of(letter, begin), mask.size());
        const auto letters = end - begin;
        begin = end;
        if (std::string_view("dmMyhHs").find(letter) == std::string_view::npos) {
            text.append(letters, letter);
            continue;
        }
        const auto field = parts.field(letter, letters, letter == 'm' && behindHour);
        if (!field) throw std::invalid_argument("no date mask: \"" + std::string(mask) + '"');
        text += *field;
        behindHour = letter == 'h' || letter == 'H';
    }
    return text;
}

std::string dateText(Date day) {
    return formatDate(day, "dd.mm.yyyy", Locale::german());
}

std::optional<Date> parseDate(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(blanks) + 1 - first);

    const auto firstMark = std::min(text.find_first_not_of(digits), text.size());
    if (firstMark == text.size()) {
        if (text.size() != 6 && text.size() != 8) return std::nullopt;
        return makeDate(readPart(text.substr(0, 2)), readPart(text.substr(2, 2)), readPart(text.substr(4)));
    }
    const char mark = text[firstMark];
    const auto secondMark = text.find_first_not_of(digits, firstMark + 1);
    if (std::string_view("./-").find(mark) == std::string_view::npos ||
        secondMark == std::string_view::npos || text[secondMark] != mark ||
        text.find_first_not_of(digits, secondMark + 1) != std::string_view::npos) {
        return std::nullopt;
    }
    const auto left = readPart(text.substr(0, firstMark));
    const auto middle = readPart(text.substr(firstMark + 1, secondMark - firstMark - 1));
    const auto right = readPart(text.substr(secondMark + 1));
    if (mark == '-' && left.digits == 4) return makeDate(right, middle, left);
    return makeDate(left, middle, right);
}

} // namespace tellurix::base
