#include "standin/services/pickers/lists/F_ListPicker.h"

#include "module/base/text.h"
#include "standin/services/pickers/search_keys.h"
#include "standin/services/texts/TextCatalogue.h"
#include "standin/services/texts/words.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr int narrowest = 8;
constexpr int widest = 44;

int widthOf(const F_ListPicker::List& list, std::size_t column) {
    std::size_t width = base::decodeUtf8(list.headings[column]).size();
    for (const ui::Grid::Row& entry : list.entries)
        width = std::max(width, base::decodeUtf8(entry[column]).size());
    return std::clamp(static_cast<int>(width) + 1, narrowest, widest);
}

std::string searchTextOf(const ui::Grid::Row& entry) {
    std::string text;
    for (const std::string& cell : entry)
        text += base::toUpper(cell) + '\n';
    return text;
}

} // namespace

F_ListPicker::F_ListPicker(std::string title, List list, CountTexts countTexts, const std::string& current)
    : Form("F_ListPicker", std::move(title)), list_(std::move(list)), countTexts_(std::move(countTexts)) {
    std::vector<ui::Grid::Column> columns;
    for (std::size_t i = 0; i < list_.headings.size(); ++i)
        columns.push_back({.caption = list_.headings[i], .width = widthOf(list_, i)});
    grdList.setColumns(std::move(columns));
    for (const ui::Grid::Row& entry : list_.entries)
        searchTexts_.push_back(searchTextOf(entry));

    txtFilter.onChange = [this] { narrow(); };
    connectSearch(txtFilter, grdList, [this] { choose(); });
    btnOk.onClick = [this] { choose(); };
    btnCancel.onClick = [this] { unload(); };
    setCard();
    setCancelButton(btnCancel);
    setLayout(ui::column({ui::field(lblFilter, txtFilter), ui::Layout{grdList}.growing(), lblCount,
                          ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
    startOn(current);
}

void F_ListPicker::startOn(const std::string& current) {
    narrow();
    const std::string wanted = base::toUpper(base::trim(current));
    if (wanted.empty()) return;
    const auto entry = std::ranges::find_if(grdList.rows(), [&wanted](const ui::Grid::Row& row) {
        return base::toUpper(base::trim(row.front())) == wanted;
    });
    if (entry != grdList.rows().end()) {
        grdList.setCurrent(static_cast<int>(entry - grdList.rows().begin()));
        return;
    }
    txtFilter.setText(current);
    narrow();
    if (!grdList.rows().empty()) return;
    txtFilter.setText("");
    narrow();
}

void F_ListPicker::narrow() {
    std::vector<std::string> words = wordsOf(base::toUpper(txtFilter.text()));
    std::vector<ui::Grid::Row> found;
    std::size_t count = 0;
    for (std::size_t i = 0; i < list_.entries.size(); ++i) {
        const bool hasAll = std::ranges::all_of(
            words, [&](const std::string& word) { return searchTexts_[i].find(word) != std::string::npos; });
        if (hasAll && ++count <= shownAtMost) found.push_back(list_.entries[i]);
    }
    const std::string total = std::to_string(count);
    lblCount.setCaption(count > found.size() ? filled(countTexts_.some, {std::to_string(found.size()), total})
                                             : filled(countTexts_.all, {total}));
    sorting_.show(std::move(found));
    grdList.setCurrent(0);
}

void F_ListPicker::choose() {
    if (grdList.currentRow() == ui::Grid::none) return;
    chosen_ = grdList.rows()[static_cast<std::size_t>(grdList.currentRow())];
    unload();
}

} // namespace tellurix::standin
