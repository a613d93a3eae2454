#pragma once

#include "module/ui/controls/ItemList.h"

namespace tellurix::ui {

/// A drop-down list of which one item is chosen.
class ComboBox final : public ItemList {
public:
    static constexpr ControlKind ownKind = ControlKind::comboBox;

    ComboBox(Form& form, std::string name, int width = 20) : ItemList(form, std::move(name), width) {}

    ControlKind kind() const override { return ownKind; }
    int pageSize() const override { return 8; }
};

} // namespace tellurix::ui
