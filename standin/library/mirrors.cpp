#include "standin/library/mirrors.h"

#include "com/session/grid_order.h"

namespace tellurix::windows {

BoxMirror::BoxMirror() : Form("mirror") {
    // The services find a box's name by the label that stands with it.
    setLayout(ui::field(label_, box));
}

void BoxMirror::read(Dispatch& original) {
    label_.setCaption(original.get(L"Label").text());
    box.setMaxLength(original.get(L"MaxLength").integer());
    text_ = original.get(L"Text").text();
    tag_ = original.get(L"Tag").text();
    selectionStart_ = original.get(L"SelStart").integer();
    selectionLength_ = original.get(L"SelLength").integer();
    box.setText(text_);
    box.select(selectionStart_, selectionLength_);
    box.setTag(tag_);
}

void BoxMirror::write(Dispatch& original) const {
    if (box.tag() != tag_) original.put(L"Tag", box.tag());
    const bool textChanged = box.text() != text_;
    if (textChanged) original.put(L"Text", box.text());
    if (textChanged || box.selectionStart() != selectionStart_ || box.selectionLength() != selectionLength_) {
        original.put(L"SelStart", box.selectionStart());
        original.put(L"SelLength", box.selectionLength());
    }
}

GridMirror::GridMirror(Dispatch& original) : Form("mirror") {
    std::vector<ui::Grid::Column> columns(static_cast<std::size_t>(original.get(L"Cols").integer()));
    for (std::int32_t i = 0; ui::Grid::Column & column : columns) {
        column.width = original.get(L"ColWidth", {i}).integer();
        column.visible = original.get(L"ColVisible", {i}).flag();
        column.sized = original.get(L"ColSized", {i}).flag();
        column.order = orderOf(original.get(L"ColOrder", {i}).integer());
        ++i;
    }
    grid.setColumns(std::move(columns));
}

void GridMirror::write(Dispatch& original) const {
    std::int32_t i = 0;
    for (const ui::Grid::Column& column : grid.columns())
        original.call(L"SetColumn",
                      {i++, column.width, column.visible, column.sized, numberOf(column.order)});
}

ListMirror::ListMirror(Dispatch& original) : Form("mirror") {
    for (std::int32_t i = 0, count = original.get(L"Count").integer(); i < count; ++i)
        list.add(original.get(L"Text", {i}).text(), original.get(L"ItemData", {i}).integer());
    list.select(original.get(L"ListIndex").integer());
}

void ListMirror::write(Dispatch& original) const {
    original.call(L"Clear", {});
    for (const ui::ItemList::Item& item : list.items())
        original.call(L"AddItem", {item.text, static_cast<std::int32_t>(item.itemData)});
    original.put(L"ListIndex", std::int32_t{list.selected()});
}

host::CalculationLines LinesMirror::lines() const {
    host::CalculationLines lines;
    for (std::size_t number = 0; number < lines.size(); ++number) {
        const auto i = static_cast<std::int32_t>(number);
        lines[number] = {.statistic = original_.get(L"Statistic", {i}).integer(),
                         .designation = original_.get(L"Designation", {i}).text(),
                         .value = original_.get(L"Value", {i}).text(),
                         .references = original_.get(L"References", {i}).text(),
                         .subset = original_.get(L"Subset", {i}).text(),
                         .article = original_.get(L"Article", {i}).integer()};
    }
    return lines;
}

void LinesMirror::setLines(const host::CalculationLines& lines) {
    std::int32_t i = 0;
    for (const host::CalculationLine& line : lines)
        original_.call(L"SetLine", {i++, std::int32_t{line.statistic}, line.designation, line.value,
                                    line.references, line.subset, line.article});
}

} // namespace tellurix::windows
