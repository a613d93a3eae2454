#include "standin/services/values/LookupValidationService.h"

#include "module/base/text.h"
#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/ui/Form.h"
#include "module/ui/Label.h"
#include "module/ui/caption.h"

namespace tellurix::standin {

namespace {

/// What the user sees the box called, in brackets behind a blank; empty when nothing names it.
std::string nameOf(const ui::TextBox& box) {
    const ui::Label* label = box.form().labelOf(box);
    return label == nullptr ? std::string{} : " [" + ui::plainCaption(label->caption()) + "]";
}

} // namespace

bool LookupValidationService::resolve(const host::TlxVar& session, std::int32_t /*option*/,
                                      const std::string& query, ui::TextBox& box, ui::TextBox* shown,
                                      const std::string& displayColumn, ui::TextBox* /*third*/,
                                      const std::string& /*text*/) {
    const auto answer = [&](const std::string& key, const std::string& display) {
        box.setTag(key);
        if (shown != nullptr) shown->setText(display);
    };
    if (base::trim(box.text()).empty()) {
        answer("", "");
        return true;
    }
    const auto found = session.connection->open(query);
    if (!found->atEnd()) {
        answer(found->text(0),
               displayColumn.empty() ? std::string{} : found->text(displayColumn));
        return true;
    }
    answer("", "");
    parts::ShowMessage(display_, localizer_.text(host::textNumber::invalidEntry, session) + nameOf(box),
                       ui::box::exclamation);
    return false;
}

} // namespace tellurix::standin
