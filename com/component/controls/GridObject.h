#pragma once

#include "com/component/controls/ControlObject.h"
#include "module/ui/controls/Grid.h"

namespace tellurix::windows {

/// A grid as the host's library sees it: Name, Cols, ColWidth(i), ColVisible(i), ColSized(i), ColOrder(i) and
/// SetColumn(i, width, visible, sized, order), of which the last two can be left out. The columns count from
/// 0, their widths are in characters.
class GridObject final : public ControlObject<ui::Grid> {
public:
    using ControlObject::ControlObject;

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.Grid"; }
};

} // namespace tellurix::windows
