#pragma once

#include "com/automation/AutomationError.h"

#include <windows.h>

namespace tellurix::windows {

/// Thrown out of a display when the host's thread is told to end (WM_QUIT) while something is open. The
/// WM_QUIT has been posted again for the host's own loop.
struct MessageLoopEnded : CallEnded {
    MessageLoopEnded() : CallEnded{E_UNEXPECTED, "Der Thread des Aufrufers wird beendet."} {}
};

/// Thrown out of a display when the window of the host that waits for a screen has gone, and the screen's
/// window with it.
struct OwnerClosed : CallEnded {
    /// Of ours alone, so that it is known from the failures of others.
    static constexpr HRESULT result = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x0201);
    OwnerClosed()
        : CallEnded{result, "Das Fenster wurde vom Aufrufer geschlossen; was offen war, ist verworfen."} {}
};

/// Whether the calling thread has been told to end.
bool threadIsEnding();

/// After waiting in a loop of Windows' own, which tells neither.
/// @param owner the window that waited, null for none
/// @throws OwnerClosed, MessageLoopEnded
void throwIfEnded(HWND owner);

} // namespace tellurix::windows
