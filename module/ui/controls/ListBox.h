#pragma once

#include "module/ui/controls/ItemList.h"

namespace tellurix::ui {

/// A list that shows several items at once.
class ListBox final : public ItemList {
public:
    static constexpr ControlKind ownKind = ControlKind::listBox;

    ListBox(Form& form, std::string name, int width = 40, int rows = 8)
        : ItemList(form, std::move(name), width), rows_(rows) {}

    ControlKind kind() const override { return ownKind; }

    /// How many items are seen without scrolling.
    int rows() const { return rows_; }
    int pageSize() const override { return rows_; }
    /// Its items read "name: value". Displays may align the values and use the width for two columns.
    bool pairs() const { return pairs_; }
    void setPairs(bool pairs) { change(pairs_, pairs); }
    /// The user chose the selected item: a double click, or Enter.
    Handlers<void()> onDoubleClick;

private:
    int rows_;
    bool pairs_ = false;
};

} // namespace tellurix::ui
