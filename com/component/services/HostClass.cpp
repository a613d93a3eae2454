#include "com/component/services/HostClass.h"

#include "com/automation/AutomationError.h"
#include "display/win32/native/endings.h"

namespace tellurix::windows {

Variant HostClass::call(const wchar_t* operation, Dispatch::Arguments arguments) {
    if (!object_) object_ = Dispatch::create(std::string("Tellurix_Loc.") + name_);
    try {
        return object_.call(operation, arguments);
    } catch (const AutomationError& error) {
        // A dialog of the library that was open then has failed for that reason: no error to be told,
        // and the screens that wait for it end as well.
        if (threadIsEnding()) throw MessageLoopEnded{};
        if (error.code() == OwnerClosed::result) throw OwnerClosed{};
        throw;
    }
}

} // namespace tellurix::windows
