#pragma once

#include "ui/ItemList.h"

namespace tellurix::ui {

/// A drop-down list of which one item is chosen.
class ComboBox final : public ItemList {
public:
    ComboBox(Form& form, std::string name, int width = 20) : ItemList(form, std::move(name), width) {}

    ControlKind kind() const override { return ControlKind::comboBox; }
};

} // namespace tellurix::ui
