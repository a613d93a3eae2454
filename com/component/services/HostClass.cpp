#include "com/component/services/HostClass.h"

#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "display/win32/native/endings.h"
#include "module/base/own_text.h"

namespace tellurix::windows {

Variant HostClass::call(const host::TlxVar& session, const wchar_t* operation,
                        Dispatch::Arguments arguments) {
    const std::string progId = std::string("Tellurix_Loc.") + name_;
    try {
        if (!object_) object_ = Dispatch::create(progId);
        return object_.call(operation, arguments);
    } catch (const AutomationError& error) {
        // A dialog of the library that was open then has failed for that reason: no error to be told,
        // and the screens that wait for it end as well.
        if (threadIsEnding()) throw MessageLoopEnded{};
        if (error.code() == OwnerClosed::result) throw OwnerClosed{};
        throw AutomationError(error.code(),
                              base::ownText(base::OwnText::serviceFailed, session.language,
                                            {progId, narrow(operation), error.what()}),
                              error.source());
    }
}

} // namespace tellurix::windows
