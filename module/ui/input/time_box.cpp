#include "module/ui/input/time_box.h"

#include "module/base/text.h"
#include "module/base/whole_number.h"

#include <utility>

namespace tellurix::ui {

namespace {

/// One or two digits as two digits.
std::optional<std::string> twoDigits(std::string_view typed, int largest) {
    const bool digits = typed.find_first_not_of("0123456789") == std::string_view::npos;
    const auto number = digits && typed.size() <= 2 ? base::wholeNumber<int>(typed) : std::nullopt;
    if (!number || *number > largest) return std::nullopt;
    return (*number < 10 ? "0" : "") + std::to_string(*number);
}

} // namespace

std::optional<std::string> timeText(std::string_view typed) {
    typed = base::trim(typed);
    const std::size_t colon = typed.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    const auto hour = twoDigits(typed.substr(0, colon), 23);
    const auto minute = twoDigits(typed.substr(colon + 1), 59);
    if (!hour || !minute) return std::nullopt;
    return *hour + ":" + *minute;
}

void makeTimeBox(TextBox& box, std::function<void()> showInvalid) {
    constexpr int longestTime = 5; // "hh:mm"
    box.setMaxLength(longestTime);
    box.setTakes({base::OwnText::takesTime});
    box.onKeyPress = [](char32_t& key) {
        if ((key < U'0' || key > U'9') && key != U':') key = 0;
    };
    box.onLeave = [&box, showInvalid = std::move(showInvalid)] {
        if (base::trim(box.text()).empty()) {
            box.setText("");
            return true;
        }
        const auto time = timeText(box.text());
        if (!time) {
            showInvalid();
            return false;
        }
        box.setText(*time);
        return true;
    };
}

} // namespace tellurix::ui
