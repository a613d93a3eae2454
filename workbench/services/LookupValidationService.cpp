#include "services/LookupValidationService.h"

#include "common/M_Common.h"
#include "common/text.h"
#include "host/text_numbers.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/caption.h"

namespace tellurix::workbench {

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
    if (common::trim(box.text()).empty()) {
        answer("", "");
        return true;
    }
    const auto found = session.connection->open(query);
    if (!found->atEnd()) {
        answer(found->text(found->fieldName(0)),
               displayColumn.empty() ? std::string{} : found->text(displayColumn));
        return true;
    }
    answer("", "");
    common::ShowMessage(display_, localizer_.text(host::textNumber::invalidEntry, session) + nameOf(box),
                        ui::box::exclamation);
    return false;
}

} // namespace tellurix::workbench
