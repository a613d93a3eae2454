#include "standin/services/pickers/multiple/F_MultiSelection.h"

#include "module/base/text.h"
#include "standin/services/pickers/marking_keys.h"
#include "standin/services/pickers/search_keys.h"
#include "standin/services/texts/words.h"

#include <algorithm>
#include <utility>

namespace tellurix::standin {

namespace {

constexpr int tickColumn = 0;
constexpr const char* tick = "✓"; // over the column
constexpr std::size_t narrowestColumn = 4;
constexpr std::size_t widestColumn = 30;

/// All that is read of an entry, so that a word is found in any column but not across two.
std::string wordsToFind(const ui::Grid::Row& cells) {
    std::string text;
    for (const std::string& cell : cells)
        text += base::toUpper(cell) + '\n';
    return text;
}

} // namespace

F_MultiSelection::F_MultiSelection(ui::Display& display, std::string title, List list, Words words,
                                   const std::vector<std::int64_t>& marked)
    : AskingForm(display, "F_MultiSelection", std::move(title)),
      entries_(std::move(list.entries)),
      words_(std::move(words)),
      marked_(marked.begin(), marked.end()),
      before_(marked_) {
    std::ranges::stable_partition(entries_, [this](const Entry& entry) { return isMarked(entry.key); });
    std::set<std::int64_t> offered;
    for (const Entry& entry : entries_) {
        searchTexts_.push_back(wordsToFind(entry.cells));
        offered.insert(entry.key);
    }
    std::ranges::copy_if(marked_, std::back_inserter(notOffered_),
                         [&](std::int64_t key) { return !offered.contains(key); });
    fit(std::move(list.columns));

    limitSearch(txtSearch);
    txtSearch.onChange = [this] { narrow(); };
    connectSearch(txtSearch, grdList, [this] { setFocus(grdList); });
    chkMarked.onClick = [this] { narrow(); };
    connectMarking(
        grdList, [this] { toggle(); }, [this] { takeOver(); });
    grdList.setOwnKeys({base::OwnText::keyMark, base::OwnText::keyTake, base::OwnText::keySearches});
    grdList.onKeyPress = [this](char32_t& character) { searchOn(std::exchange(character, 0)); };
    grdList.onDoubleClick = [this] { toggle(); };
    btnMarkFound.onClick = [this] { markFound(true); };
    btnUnmarkFound.onClick = [this] { markFound(false); };
    btnOk.onClick = [this] { takeOver(); };
    btnCancel.onClick = [this] { leave(); };
    setCancelButton(btnCancel);
    arrange();
    narrow();
}

void F_MultiSelection::arrange() {
    setLayout(ui::column(
        {ui::filters({ui::field(lblSearch, txtSearch), chkMarked}), ui::Layout{grdList}.growing(), lblCount,
         ui::bar({ui::Layout{btnOk}.primary(), btnCancel}, {btnMarkFound, btnUnmarkFound})}));
}

void F_MultiSelection::fit(std::vector<ui::Grid::Column> columns) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::size_t width = base::decodeUtf8(columns[i].caption).size();
        for (const Entry& entry : entries_)
            width = std::max(width, base::decodeUtf8(entry.cells[i]).size());
        columns[i].width = static_cast<int>(std::clamp(width + 1, narrowestColumn, widestColumn));
    }
    columns.insert(columns.begin(), {.caption = tick, .width = 3});
    grdList.setColumns(std::move(columns));
}

void F_MultiSelection::narrow() {
    const std::vector<std::string> words = wordsOf(base::toUpper(txtSearch.text()));
    shown_.clear();
    std::vector<ui::Grid::Row> rows;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (chkMarked.checked() && !isMarked(entries_[i].key)) continue;
        const bool hasAll = std::ranges::all_of(
            words, [&](const std::string& word) { return searchTexts_[i].find(word) != std::string::npos; });
        if (!hasAll) continue;
        shown_.push_back(i);
        ui::Grid::Row row{tickBox(entries_[i].key)};
        row.insert(row.end(), entries_[i].cells.begin(), entries_[i].cells.end());
        rows.push_back(std::move(row));
    }
    sorting_.show(std::move(rows));
    grdList.setCurrent(0, 1);
    showCount();
}

void F_MultiSelection::showCount() {
    const std::string marked = std::to_string(marked_.size());
    std::string count = shown_.empty() ? base::filled(words_.none, {marked})
                                       : base::filled(words_.count, {marked, std::to_string(shown_.size()),
                                                                     std::to_string(entries_.size())});
    if (!notOffered_.empty())
        count += " " + base::filled(words_.notOffered, {std::to_string(notOffered_.size())});
    lblCount.setCaption(std::move(count));
}

void F_MultiSelection::searchOn(char32_t character) {
    // It has marked the row.
    if (character == U' ') return;
    txtSearch.setText(base::encodeUtf8(character));
    setFocus(txtSearch);
    txtSearch.select(1, 0);
    narrow();
}

void F_MultiSelection::toggle() {
    if (grdList.currentRow() == ui::Grid::none) return;
    const auto shown = static_cast<std::size_t>(grdList.currentRow());
    const std::int64_t key = entryIn(shown).key;
    if (marked_.erase(key) == 0) marked_.insert(key);
    drawMark(shown);
    showCount();
}

void F_MultiSelection::markFound(bool marked) {
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const std::int64_t key = entryIn(i).key;
        if (marked) {
            marked_.insert(key);
        } else {
            marked_.erase(key);
        }
        drawMark(i);
    }
    showCount();
}

void F_MultiSelection::drawMark(std::size_t shown) {
    grdList.setCell(static_cast<int>(shown), tickColumn, tickBox(entryIn(shown).key));
}

void F_MultiSelection::takeOver() {
    chosen_ = notOffered_;
    std::set<std::int64_t> taken;
    for (const Entry& entry : entries_)
        if (isMarked(entry.key) && taken.insert(entry.key).second) chosen_->push_back(entry.key);
    leave();
}

} // namespace tellurix::standin
