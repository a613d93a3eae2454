#pragma once

#include "com/component/controls/ControlObject.h"
#include "module/ui/controls/ComboBox.h"

namespace tellurix::windows {

/// A drop-down list as the host's library sees it: Name, Count, Text(i), ItemData(i), ListIndex, Clear
/// and AddItem(text, item data). The items count from 0.
class ListObject final : public ControlObject<ui::ComboBox> {
public:
    using ControlObject::ControlObject;

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.ComboBox"; }
};

} // namespace tellurix::windows
