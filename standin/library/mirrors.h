#pragma once

#include "com/automation/Dispatch.h"
#include "module/host/CalculationForm.h"
#include "module/ui/Form.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"

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

class ListMirror final : public ui::Form {
public:
    explicit ListMirror(Dispatch& original);

    ui::ComboBox list{*this, "list"};

    void write(Dispatch& original) const;
};

/// The caller's surcharge and deduction lines.
class LinesMirror final : public host::CalculationForm {
public:
    explicit LinesMirror(Dispatch original) : original_(std::move(original)) {}

    host::CalculationLines lines() const override;
    void setLines(const host::CalculationLines& lines) override;

private:
    mutable Dispatch original_;
};

} // namespace tellurix::windows
