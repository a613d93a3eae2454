#pragma once

#include "module/ui/controls/Control.h"

#include <cstdint>
#include <vector>

namespace tellurix::ui {

/// What combo and list boxes share: items with a text and a number kept beside it (the item data,
/// mostly a database key), and which one is selected.
class ItemList : public Control {
public:
    struct Item {
        std::string text;
        std::int64_t itemData = 0;
    };

    static constexpr int none = -1;

    ItemList(Form& form, std::string name, int width) : Control(form, std::move(name)), width_(width) {}

    int width() const { return width_; }
    /// How many items PageUp and PageDown go.
    virtual int pageSize() const = 0;
    const std::vector<Item>& items() const { return items_; }
    void add(std::string text, std::int64_t itemData = 0);
    /// Removes all items; nothing is selected then.
    void clear();

    /// Index of the selected item, or `none`.
    int selected() const { return selected_; }
    /// Selects an item without calling `onChange`. An index outside the list selects nothing.
    void select(int index);
    /// Text of the selected item, empty for none.
    std::string selectedText() const;
    /// Selects the item with that item data, or nothing.
    void selectItemData(std::int64_t itemData);

    /// The items changed since the last drawing, not only the selection.
    bool itemsDirty() const { return itemsDirty_; }
    void drawn() override;

    /// The user selected an item.
    Handlers<void()> onChange;

private:
    std::vector<Item> items_;
    int width_;
    int selected_ = none;
    bool itemsDirty_ = true;
};

} // namespace tellurix::ui
