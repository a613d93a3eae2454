#include "standin/services/values/LookupValidationService.h"

#include "module/base/text.h"
#include "module/parts/questions.h"
#include "module/ui/Form.h"
#include "standin/services/pickers/lists/named_lists.h"

namespace tellurix::standin {

bool LookupValidationService::resolve(const host::TlxVar& session, std::int32_t /*option*/,
                                      const std::string& query, ui::TextBox& box, ui::TextBox* shown,
                                      const std::string& displayColumn, ui::TextBox* /*third*/,
                                      const std::string& /*text*/) {
    const auto answer = [&](const std::string& key, const std::string& display) {
        box.setTag(key);
        if (shown != nullptr && (shown != &box || !key.empty())) shown->setText(display);
    };
    if (base::trim(box.text()).empty()) {
        answer("", "");
        return true;
    }
    const auto named = choiceNamed(query, std::string{base::trim(box.text())});
    const auto found = session.connection->open(named ? named->text() : query);
    if (!found->atEnd()) {
        answer(found->text(0), displayColumn.empty() ? std::string{} : found->text(displayColumn));
        return true;
    }
    answer("", "");
    parts::tellInvalid(display_, localizer_, session, box.form().labelOf(box));
    return false;
}

} // namespace tellurix::standin
