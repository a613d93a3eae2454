#pragma once

#include "com/automation/Dispatch.h"
#include "module/ui/Form.h"
#include "module/ui/Grid.h"
#include "module/ui/TextBox.h"

namespace tellurix::windows {

/// Controls of our own that stand for those of the calling screen, so that the services can work on
/// them: read from the caller's object, and what changed written to it. They are never shown.

class BoxMirror final : public ui::Form {
public:
    BoxMirror();

    ui::TextBox box{*this, "box"};

    void read(Dispatch& original);
    /// Writes what is different from what was read.
    void write(Dispatch& original) const;

private:
    ui::Label label_{*this, "label"};
    std::string text_;
    std::string tag_;
    int selectionStart_ = 0;
    int selectionLength_ = 0;
};

class GridMirror final : public ui::Form {
public:
    explicit GridMirror(Dispatch& original);

    ui::Grid grid{*this, "grid"};

    void write(Dispatch& original) const;
};

} // namespace tellurix::windows
