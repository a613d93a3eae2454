#include "module/ui/input/date_box.h"

#include "module/base/date_format.h"
#include "module/base/text.h"
#include "module/base/typed_date.h"

#include <string_view>

namespace tellurix::ui {

void makeDateBox(TextBox& box, std::function<base::Date()> today, std::function<void()> showInvalid) {
    constexpr int longestDate = 10; // "dd.mm.yyyy"
    box.setMaxLength(longestDate);
    box.setTakes({base::OwnText::takesDate});
    box.setOwnKeys({base::OwnText::keyDate});
    box.onKeyPress = [](char32_t& key) {
        // The letters are those of "heute".
        if (std::u32string_view{U"0123456789.-/+hHeEuUtT"}.find(key) == std::u32string_view::npos) key = 0;
    };
    box.onLeave = [&box, today = std::move(today), showInvalid = std::move(showInvalid)] {
        if (base::trim(box.text()).empty()) {
            box.setText("");
            return true;
        }
        const auto date = base::typedDate(box.text(), today());
        if (!date) {
            showInvalid();
            return false;
        }
        box.setText(base::dateText(*date));
        return true;
    };
}

} // namespace tellurix::ui
