#include "module/ui/controls/ItemList.h"

namespace tellurix::ui {

void ItemList::add(std::string text, std::int64_t itemData) {
    items_.push_back({std::move(text), itemData});
    itemsDirty_ = true;
    markDirty();
}

void ItemList::clear() {
    items_.clear();
    selected_ = none;
    itemsDirty_ = true;
    markDirty();
}

void ItemList::select(int index) {
    const bool inside = index >= 0 && index < static_cast<int>(items_.size());
    change(selected_, inside ? index : none);
}

std::string ItemList::selectedText() const {
    return selected_ == none ? std::string{} : items_[static_cast<std::size_t>(selected_)].text;
}

void ItemList::selectItemData(std::int64_t itemData) {
    int found = none;
    for (std::size_t i = 0; i < items_.size() && found == none; ++i) {
        if (items_[i].itemData == itemData) found = static_cast<int>(i);
    }
    select(found);
}

void ItemList::drawn() {
    Control::drawn();
    itemsDirty_ = false;
}

} // namespace tellurix::ui
