#pragma once

#include <windows.h>

#include <string_view>

namespace tellurix::windows {

/// The picture of that name ("delete", "document") as an icon in a colour, or null for a name that
/// has no picture.
/// @param size its width and height in pixels
/// @return an icon that the caller destroys
HICON makePicture(std::string_view name, int size, COLORREF colour);

} // namespace tellurix::windows
