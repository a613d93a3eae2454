#pragma once

#include "module/ui/Display.h"
#include "module/ui/Form.h"

#include <string>

namespace tellurix::standin {

/// A dialog in which something can be entered that is lost unless it is taken over: Esc and the close box ask
/// once before they lose it. The button that cancels acts at once.
class AskingForm : public ui::Form {
protected:
    AskingForm(ui::Display& display, std::string name, std::string title)
        : Form(std::move(name), std::move(title)), display_(display) {}

    /// Whether the user has entered something.
    virtual bool changed() const = 0;
    /// Closes without asking.
    void leave();
    ui::Display& display() const { return display_; }

private:
    bool escape() override { return mayLose(); }
    bool queryUnload() override { return leaving_ || mayLose(); }
    bool mayLose() const;

    ui::Display& display_;
    bool leaving_ = false;
};

} // namespace tellurix::standin
