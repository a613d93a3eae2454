#include "common/NumberField.h"

#include "common/field_text.h"
#include "common/number_format.h"
#include "common/typed_text.h"
#include "ui/number_box.h"

namespace tellurix::common {

NumberField::NumberField(ui::TextBox& box, std::string mask, const Locale& locale)
    : box_(box), mask_(std::move(mask)), locale_(locale) {
    ui::makeNumberBox(box_, mask_, locale_);
}

void NumberField::show(Value value) {
    shown_ = std::move(value);
    box_.show(numberText(shown_, mask_, locale_));
}

Value NumberField::value() const {
    if (!box_.touched()) return shown_;
    return box_.text().empty() ? Value{} : Value{typedNumber(box_)};
}

std::optional<std::string> NumberField::number() const {
    const auto number = box_.touched() ? parseNumber(box_.text(), locale_) : numberIn(shown_);
    return number ? std::optional{number->toString()} : std::nullopt;
}

} // namespace tellurix::common
