#pragma once

#include "com/automation/Dispatch.h"
#include "com/component/controls/ControlObject.h"
#include "module/ui/controls/TextBox.h"

namespace tellurix::windows {

/// A text box as the host's library sees it: Name, Label, Text, Tag, MaxLength, Locked, SelStart,
/// SelLength, and the handlers KeyPressHandler and ChangeHandler.
class BoxObject final : public ControlObject<ui::TextBox> {
public:
    using ControlObject::ControlObject;

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.TextBox"; }
};

} // namespace tellurix::windows
