#include "component/services/HostClass.h"

#include "automation/AutomationError.h"
#include "screens/Win32Display.h"

namespace tellurix::windows {

namespace {

/// Whether the host's thread has been told to end.
bool threadIsEnding() {
    MSG quit{};
    return PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != 0;
}

} // namespace

Variant HostClass::call(const wchar_t* operation, Dispatch::Arguments arguments) {
    if (!object_) object_ = Dispatch::create(std::string("Tellurix_Loc.") + name_);
    try {
        return object_.call(operation, arguments);
    } catch (const AutomationError&) {
        // A dialog of the library that was open then has failed for that reason: no error to be told,
        // and the screens that wait for it end as well.
        if (threadIsEnding()) throw MessageLoopEnded{};
        throw;
    }
}

} // namespace tellurix::windows
