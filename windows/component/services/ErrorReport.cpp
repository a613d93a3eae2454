#include "component/services/ErrorReport.h"

#include "automation/AutomationError.h"
#include "common/M_Common.h"
#include "common/Refused.h"
#include "session/error_kind.h"

namespace tellurix::windows {

void ErrorReport::report(const std::exception& error) {
    try {
        if (session_ == nullptr) throw AutomationError(E_UNEXPECTED, "No session");
        SessionRecord record(*session_);
        const auto* refused = dynamic_cast<const common::Refused*>(&error);
        const std::string message = refused != nullptr ? refused->message(session_->language) : error.what();
        object_.call(L"Show", {record.argument(), errorKind(error), message});
    } catch (const std::exception&) {
        // What happened first is what the user has to know.
        common::ShowMessage(display_, error.what(), ui::box::critical);
    }
}

} // namespace tellurix::windows
