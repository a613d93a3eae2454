#include "module/parts/fields/NumberField.h"

#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/parts/fields/typed_text.h"
#include "module/ui/input/number_box.h"

namespace tellurix::parts {

NumberField::NumberField(ui::TextBox& box, std::string mask, const base::Locale& locale,
                         const std::string& typed)
    : box_(box), mask_(std::move(mask)), locale_(locale) {
    if (typed.empty()) {
        ui::makeNumberBox(box_, mask_, locale_);
    } else {
        box_.setRightAligned(true);
        ui::takeNumbers(box_, typed, locale_);
    }
}

void NumberField::show(base::Value value) {
    shown_ = std::move(value);
    box_.show(base::numberText(shown_, mask_, locale_));
}

base::Value NumberField::value() const {
    if (!box_.touched()) return shown_;
    return box_.text().empty() ? base::Value{} : base::Value{typedNumber(box_)};
}

std::optional<std::string> NumberField::number() const {
    const auto number = box_.touched() ? base::parseNumber(box_.text(), locale_) : base::numberIn(shown_);
    return number ? std::optional{number->toString()} : std::nullopt;
}

} // namespace tellurix::parts
