#include "module/ui/input/date_box.h"

#include "module/base/date_format.h"
#include "module/base/text.h"

namespace tellurix::ui {

void makeDateBox(TextBox& box, std::function<void()> showInvalid) {
    constexpr int longestDate = 10; // "dd.mm.yyyy"
    box.setMaxLength(longestDate);
    box.onKeyPress = [](char32_t& key) {
        const bool digit = key >= U'0' && key <= U'9';
        if (!digit && key != U'.' && key != U'-' && key != U'/') key = 0;
    };
    box.onLeave = [&box, showInvalid = std::move(showInvalid)] {
        if (base::trim(box.text()).empty()) {
            box.setText("");
            return true;
        }
        const auto date = base::parseDate(box.text());
        if (!date) {
            showInvalid();
            return false;
        }
        box.setText(base::dateText(*date));
        return true;
    };
}

} // namespace tellurix::ui
