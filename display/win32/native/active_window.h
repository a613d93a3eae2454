#pragma once

#include <windows.h>

namespace tellurix::windows {

/// The window of the calling thread that the user works in, or would when its program comes to the
/// front; null when the thread shows none.
HWND activeWindow();

} // namespace tellurix::windows
