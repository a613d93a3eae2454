#include "standin/services/selection/codes/ChoiceList.h"

#include "module/base/text.h"
#include "standin/services/pickers/marking_keys.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr int markColumn = 0;
constexpr int codeColumn = 1;
constexpr const char* mark = "✓";

bool same(std::string_view left, std::string_view right) {
    return base::toUpper(base::trim(left)) == base::toUpper(base::trim(right));
}

} // namespace

ChoiceList::ChoiceList(ui::Grid& grid, Captions captions) : grid_(grid), captions_(std::move(captions)) {
    grid_.setColumns({{.caption = mark, .width = 3},
                      {.caption = captions_.code, .width = 8},
                      {.caption = captions_.name, .width = 30}});
    connectMarking(
        grid_, [this] { toggle(); },
        [this] {
            if (onEnter) onEnter();
        });
    grid_.onDoubleClick = [this] { toggle(); };
}

void ChoiceList::show(std::vector<Choice> choices, std::vector<std::string> chosen) {
    chosen_ = std::move(chosen);
    for (const std::string& code : chosen_) {
        const auto isCode = [&code](const Choice& choice) { return same(choice.code, code); };
        if (std::ranges::none_of(choices, isCode)) choices.push_back({code, captions_.notOffered});
    }
    std::vector<ui::Grid::Row> rows;
    for (Choice& choice : choices)
        rows.push_back({"", std::move(choice.code), std::move(choice.name)});
    sorting_.show(std::move(rows));
    drawMarks();
    const auto marked = std::ranges::find_if(grid_.rows(), [](const ui::Grid::Row& row) {
        return row[markColumn] == ui::Grid::ticked || row[markColumn] == mark;
    });
    const bool anyMarked = marked != grid_.rows().end();
    grid_.setCurrent(anyMarked ? static_cast<int>(marked - grid_.rows().begin()) : 0, codeColumn);
}

void ChoiceList::toggle() {
    if (grid_.currentRow() == ui::Grid::none) return;
    const std::string code = grid_.cell(grid_.currentRow(), codeColumn);
    const auto removed = std::erase_if(chosen_, [&](const std::string& other) { return same(other, code); });
    if (removed == 0) {
        if (!several_) chosen_.clear();
        chosen_.push_back(code);
    }
    drawMarks();
    if (onChange) onChange();
}

void ChoiceList::drawMarks() {
    for (int row = 0; row < static_cast<int>(grid_.rows().size()); ++row) {
        const std::string& code = grid_.cell(row, codeColumn);
        const bool isChosen =
            std::ranges::any_of(chosen_, [&](const std::string& other) { return same(other, code); });
        const char* chosen = several_ ? ui::Grid::ticked : mark;
        grid_.setCell(row, markColumn, isChosen ? chosen : several_ ? ui::Grid::unticked : "");
    }
}

std::vector<std::string> codesOf(std::string_view list) {
    std::vector<std::string> codes;
    while (true) {
        const std::size_t comma = list.find(',');
        const std::string_view code = base::trim(list.substr(0, comma));
        if (!code.empty()) codes.emplace_back(code);
        if (comma == std::string_view::npos) return codes;
        list.remove_prefix(comma + 1);
    }
}

} // namespace tellurix::standin
