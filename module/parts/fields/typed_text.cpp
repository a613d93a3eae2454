#include "module/parts/fields/typed_text.h"

#include "module/base/StatementText.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/caption.h"
#include "module/ui/input/RefusedInput.h"

namespace tellurix::parts {

std::string nameOf(const ui::TextBox& box) {
    if (const ui::Label* label = box.form().labelOf(box)) return ui::plainCaption(label->caption());
    const ui::Frame* frame = ui::as<ui::Frame>(box.container());
    return frame == nullptr ? std::string{} : ui::plainCaption(frame->caption());
}

namespace {

std::string composed(ui::TextBox& box, const base::StatementText& piece) {
    try {
        return piece.text();
    } catch (const base::StatementError& error) {
        std::vector<base::Refused::Sentence> message = base::refusedValue(error.value(), nameOf(box));
        message.push_back({error.reason()});
        throw ui::RefusedInput{box, std::move(message)};
    }
}

} // namespace

std::string typedText(ui::TextBox& box) {
    return composed(box, base::StatementText{}.insideLiteral(box.text()));
}

std::string typedCodes(ui::TextBox& box) {
    return composed(box, base::StatementText{}.insideInnerLiteral(box.text()));
}

std::string typedNumber(ui::TextBox& box) {
    return composed(box, base::StatementText{}.number(box.text()));
}

} // namespace tellurix::parts
