#include "common/typed_text.h"

#include "common/StatementText.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/RefusedInput.h"
#include "ui/caption.h"

namespace tellurix::common {

namespace {

std::string composed(ui::TextBox& box, const StatementText& piece) {
    try {
        return piece.text();
    } catch (const StatementError& error) {
        const ui::Label* label = box.form().labelOf(box);
        std::vector<Refused::Sentence> message =
            refusedValue(error.value(), label == nullptr ? "" : ui::plainCaption(label->caption()));
        message.push_back({error.reason()});
        throw ui::RefusedInput{box, std::move(message)};
    }
}

} // namespace

std::string typedText(ui::TextBox& box) {
    return composed(box, StatementText{}.insideLiteral(box.text()));
}

std::string typedCodes(ui::TextBox& box) {
    return composed(box, StatementText{}.insideInnerLiteral(box.text()));
}

std::string typedNumber(ui::TextBox& box) {
    return composed(box, StatementText{}.number(box.text()));
}

} // namespace tellurix::common
