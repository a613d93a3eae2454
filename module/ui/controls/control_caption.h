#pragma once

#include "module/ui/controls/Control.h"

#include <optional>
#include <string>

namespace tellurix::ui {

/// What a catalogue of texts calls the words on a control: "caption", "captions" for the pages of tabs
/// and the columns of a grid, empty for a control without words of its own.
const char* captionKind(const Control& control);

/// The words on a control as one text, several captions with "|" between them; nothing for a control
/// that has none of its own.
std::optional<std::string> captionText(const Control& control);

/// The words on a control that has one caption; empty for one that has several or none.
std::string ownCaption(const Control& control);

/// What a control is called when it is spoken of: by the label that it stands with or by its own words; a
/// table or a list without either by the frame around it or by the window.
std::string spokenName(const Control& control);

/// Replaces them. A text of another number of captions is for another version of the control and
/// changes nothing.
void setCaptionText(Control& control, const std::string& text);

} // namespace tellurix::ui
