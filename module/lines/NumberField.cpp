#include "lines/NumberField.h"

#include "common/StatementText.h"
#include "common/field_text.h"
#include "ui/number_box.h"

namespace tellurix::lines {

NumberField::NumberField(ui::TextBox& box, std::string mask, const common::Locale& locale)
    : box_(box), mask_(std::move(mask)), locale_(locale) {
    ui::makeNumberBox(box_, mask_, locale_);
}

void NumberField::show(common::Value value) {
    shown_ = std::move(value);
    shownText_ = common::numberText(shown_, mask_, locale_);
    box_.setText(shownText_);
}

common::Value NumberField::value() const {
    if (box_.text().empty()) return common::Null{};
    if (box_.text() == shownText_) return shown_;
    return common::StatementText{}.number(box_.text()).text();
}

} // namespace tellurix::lines
