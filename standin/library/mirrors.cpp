#include "standin/library/mirrors.h"

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
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(columns.size()); ++i) {
        columns[static_cast<std::size_t>(i)].width = original.get(L"ColWidth", {i}).integer();
        columns[static_cast<std::size_t>(i)].visible = original.get(L"ColVisible", {i}).flag();
    }
    grid.setColumns(std::move(columns));
}

void GridMirror::write(Dispatch& original) const {
    std::int32_t i = 0;
    for (const ui::Grid::Column& column : grid.columns())
        original.call(L"SetColumn", {i++, column.width, column.visible});
}

} // namespace tellurix::windows
