#include "com/component/services/ErrorReport.h"

#include "com/automation/AutomationError.h"
#include "com/session/error_kind.h"
#include "module/base/Refused.h"
#include "module/parts/M_Common.h"

namespace tellurix::windows {

void ErrorReport::report(const std::exception& error) {
    try {
        if (session_ == nullptr) throw AutomationError(E_UNEXPECTED, "No session");
        SessionRecord record(*session_);
        const auto* refused = dynamic_cast<const base::Refused*>(&error);
        const std::string message = refused != nullptr ? refused->message(session_->language) : error.what();
        object_.call(*session_, L"Show", {record.argument(), errorKind(error), message});
    } catch (const std::exception&) {
        // What happened first is what the user has to know.
        parts::ShowMessage(display_, error.what(), ui::box::critical);
    }
}

} // namespace tellurix::windows
