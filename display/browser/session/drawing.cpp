#include "display/browser/session/drawing.h"

#include "display/browser/session/key_uses.h"
#include "module/ui/controls/visit.h"

#include <nlohmann/json.hpp>

namespace tellurix::browser {

namespace {

using nlohmann::json;
using ui::Control;
using ui::Layout;

const char* nameOf(ui::ChangedBy who) {
    switch (who) {
    case ui::ChangedBy::user:
        return "user";
    case ui::ChangedBy::colleague:
        return "colleague";
    case ui::ChangedBy::nobody:
        return "";
    }
    return "";
}

/// Each of these adds what is particular to a kind of control. @param whole also what has not changed
void draw(json& out, const ui::Label& label, bool /*whole*/) {
    out["kind"] = "label";
    out["caption"] = label.caption();
    out["strong"] = label.strong() || label.highlighted();
}

void draw(json& out, const ui::TextBox& box, bool /*whole*/) {
    out["kind"] = "text";
    out["text"] = box.text();
    out["selection"] = {box.selectionStart(), box.selectionLength()};
    out["locked"] = box.locked();
    out["width"] = box.width();
    out["lines"] = box.lines();
    out["maxLength"] = box.maxLength();
    out["right"] = box.rightAligned();
    out["picks"] = box.onPick ? json(box.pickPicture()) : json();
    // What decides about single keys can only be asked here; everything else the browser edits.
    out["filtered"] = box.filtered();
    out["refusal"] = box.refusal();
    out["refusals"] = box.refusals();
}

void draw(json& out, const ui::Button& button, bool /*whole*/) {
    out["kind"] = "button";
    out["caption"] = button.caption();
    out["picture"] = button.picture();
}

void draw(json& out, const ui::CheckBox& check, bool /*whole*/) {
    out["kind"] = "check";
    out["caption"] = check.caption();
    out["checked"] = check.checked();
}

void drawItems(json& out, const ui::ItemList& list, bool whole) {
    out["selected"] = list.selected();
    out["width"] = list.width();
    if (!whole && !list.itemsDirty()) return;
    json items = json::array();
    for (const auto& item : list.items())
        items.push_back(item.text);
    out["items"] = std::move(items);
}

void draw(json& out, const ui::ComboBox& list, bool whole) {
    out["kind"] = "combo";
    drawItems(out, list, whole);
}

void draw(json& out, const ui::ListBox& list, bool whole) {
    out["kind"] = "list";
    out["rows"] = list.rows();
    out["pairs"] = list.pairs();
    drawItems(out, list, whole);
}

json drawColumns(const ui::Grid& grid) {
    json columns = json::array();
    for (const auto& column : grid.columns()) {
        columns.push_back({{"caption", column.caption},
                           {"width", column.width},
                           {"right", column.rightAligned},
                           {"sized", column.sized},
                           {"order", column.order},
                           {"tip", column.toolTip},
                           {"open", column.open},
                           {"narrow", column.narrow},
                           {"remark", column.remark},
                           {"visible", column.visible}});
    }
    return columns;
}

void draw(json& out, const ui::Grid& grid, bool whole) {
    out["kind"] = "grid";
    out["current"] = {grid.currentRow(), grid.currentColumn()};
    out["visibleRows"] = grid.visibleRows();
    out["reveal"] = grid.reveals();
    out["headings"] = static_cast<bool>(grid.onHeadingClick);
    out["editable"] = static_cast<bool>(grid.onPaste);
    out["block"] = nullptr;
    if (const auto block = grid.block())
        out["block"] = {block->first.row, block->first.column, block->last.row, block->last.column};
    out["far"] = {grid.farEnd().row, grid.farEnd().column};
    out["editor"] = nullptr;
    if (const ui::TextBox* box = grid.cellEditor()) {
        out["editor"] = {{"control", box->id()}, {"row", grid.editedRow()}, {"column", grid.editedColumn()}};
    }
    out["empty"] = grid.emptyText();
    if (whole || grid.marksDirty()) {
        json cells = json::array();
        for (const auto& [cell, who] : grid.changedCells())
            cells.push_back({cell.row, cell.column, nameOf(who)});
        out["changedCells"] = std::move(cells);
        json warnings = json::array();
        for (const ui::Grid::Cell cell : grid.warnings())
            warnings.push_back({cell.row, cell.column});
        out["warnings"] = std::move(warnings);
    }
    if (whole || grid.columnsDirty()) out["columns"] = drawColumns(grid);
    if (whole || grid.rowsDirty()) {
        out["content"] = grid.rows();
    } else if (!grid.changedRows().empty()) {
        // One written cell of hundreds of rows is told in a line, not in all of them.
        json rows = json::array();
        for (const int row : grid.changedRows())
            rows.push_back({row, grid.rows()[static_cast<std::size_t>(row)]});
        out["changedRows"] = std::move(rows);
    }
}

void draw(json& out, const ui::Frame& frame, bool /*whole*/) {
    out["kind"] = "frame";
    out["caption"] = frame.caption();
}

void draw(json& out, const ui::Tabs& tabs, bool /*whole*/) {
    out["kind"] = "tabs";
    out["captions"] = tabs.captions();
    out["selected"] = tabs.selected();
}

void draw(json& out, const ui::UpDown& /*upDown*/, bool /*whole*/) {
    out["kind"] = "upDown";
}

void draw(json& out, const ui::Chart& chart, bool /*whole*/) {
    const ui::Chart::Scale scale = chart.scale();
    json bars = json::array();
    for (const auto& bar : chart.bars())
        bars.push_back(
            {{"name", bar.name}, {"values", bar.values}, {"text", bar.text}, {"empty", bar.empty()}});
    out["kind"] = "chart";
    out["series"] = chart.series();
    out["bars"] = std::move(bars);
    out["marked"] = chart.marked();
    out["today"] = chart.today() ? json(*chart.today()) : json();
    out["todayText"] = chart.todayText();
    out["top"] = scale.top;
    out["step"] = scale.step;
    out["every"] = chart.namedEvery();
}

void draw(json& out, const ui::Gauges& table, bool /*whole*/) {
    json lines = json::array();
    for (const auto& line : table.gauges())
        lines.push_back({{"cells", line.cells},
                         {"reached", line.reached},
                         {"permitted", line.permitted},
                         {"warns", line.warns}});
    out["kind"] = "gauges";
    out["headings"] = table.headings();
    out["lines"] = std::move(lines);
    out["scale"] = ui::Gauges::scale;
}

void draw(json& out, const ui::ProgressBar& bar, bool /*whole*/) {
    out["kind"] = "progress";
    out["value"] = bar.value();
    out["maximum"] = bar.maximum();
}

json drawControl(const Control& control, bool whole) {
    json out{{"id", control.id()},
             {"name", control.name()},
             {"enabled", control.enabled()},
             {"visible", control.visible()},
             {"tip", control.toolTip()},
             {"keys", keyUsesOf(ui::keyTraitsOf(&control))},
             {"characters", nameOfUse(ui::characterUse(control))},
             {"warning", control.warning()},
             {"error", control.error()},
             {"changedBy", nameOf(control.changedBy())},
             {"quiet", control.quiet()}};
    ui::visit(control, [&](const auto& visited) { draw(out, visited, whole); });
    return out;
}

const char* nameOf(Layout::Kind kind) {
    switch (kind) {
    case Layout::Kind::control:
        return "control";
    case Layout::Kind::field:
        return "field";
    case Layout::Kind::row:
        return "row";
    case Layout::Kind::column:
        return "column";
    case Layout::Kind::fields:
        return "fields";
    case Layout::Kind::table:
        return "table";
    case Layout::Kind::frame:
        return "frame";
    case Layout::Kind::section:
        return "section";
    case Layout::Kind::groups:
        return "groups";
    case Layout::Kind::sides:
        return "sides";
    case Layout::Kind::filters:
        return "filters";
    case Layout::Kind::sums:
        return "sums";
    case Layout::Kind::bar:
        return "bar";
    case Layout::Kind::tabs:
        return "tabs";
    }
    return "column";
}

json drawLayout(const Layout& layout) {
    json out{{"kind", nameOf(layout.kind)}};
    if (layout.control != nullptr) out["control"] = layout.control->id();
    if (layout.grows) out["grows"] = true;
    if (layout.leads) out["primary"] = true;
    if (layout.columns != 1) out["columns"] = layout.columns;
    if (!layout.children.empty()) {
        json children = json::array();
        for (const Layout& child : layout.children)
            children.push_back(drawLayout(child));
        out["children"] = std::move(children);
    }
    return out;
}

const char* iconName(int flags) {
    switch (ui::box::iconOf(flags)) {
    case ui::box::critical:
        return "critical";
    case ui::box::question:
        return "question";
    case ui::box::exclamation:
        return "exclamation";
    case ui::box::information:
        return "information";
    default:
        return "";
    }
}

const char* captionOf(ui::Answer answer, bool german) {
    switch (answer) {
    case ui::Answer::ok:
        return "&OK";
    case ui::Answer::cancel:
        return german ? "&Abbrechen" : "&Cancel";
    case ui::Answer::yes:
        return german ? "&Ja" : "&Yes";
    case ui::Answer::no:
        return german ? "&Nein" : "&No";
    }
    return "";
}

} // namespace

json drawWindow(int id, ui::Form& form) {
    json controls = json::array();
    for (Control* control : form.controls()) {
        controls.push_back(drawControl(*control, true));
        control->drawn();
    }
    form.titleDrawn();
    return {{"id", id},
            {"form", form.name()},
            {"title", form.title()},
            {"card", form.isCard()},
            {"layout", drawLayout(form.layout())},
            {"status", drawStatus(form.status())},
            {"controls", std::move(controls)}};
}

json drawChanges(ui::Form& form) {
    json changes = json::array();
    for (Control* control : form.controls()) {
        if (!control->dirty()) continue;
        changes.push_back(drawControl(*control, false));
        control->drawn();
    }
    return changes;
}

json drawStatus(ui::StatusLine& status) {
    status.drawn();
    return {{"text", status.text()}, {"action", status.action()}};
}

json drawHints(const std::vector<ui::KeyHint>& hints) {
    json drawn = json::array();
    for (const ui::KeyHint& hint : hints)
        drawn.push_back({hint.key, hint.effect});
    return drawn;
}

std::vector<ui::Answer> answersOf(int flags) {
    using ui::Answer;
    switch (ui::box::buttonsOf(flags)) {
    case ui::box::okCancel:
        return {Answer::ok, Answer::cancel};
    case ui::box::yesNoCancel:
        return {Answer::yes, Answer::no, Answer::cancel};
    case ui::box::yesNo:
        return {Answer::yes, Answer::no};
    default:
        return {Answer::ok};
    }
}

json drawMessageBox(int id, const std::string& text, int flags, const std::string& title,
                    const std::string& language) {
    const std::vector<ui::Answer> answers = answersOf(flags);
    json buttons = json::array();
    for (const ui::Answer answer : answers) {
        buttons.push_back(
            {{"answer", static_cast<int>(answer)}, {"caption", captionOf(answer, language != "en")}});
    }
    // The last button is the one that refuses (or the only one), so Esc means it.
    return {{"id", id},
            {"text", text},
            {"title", title},
            {"icon", iconName(flags)},
            {"buttons", std::move(buttons)},
            {"default", std::min(static_cast<std::size_t>(ui::box::defaultOf(flags)), answers.size() - 1)},
            {"escape", static_cast<int>(answers.back())}};
}

std::string toText(const json& message) {
    return message.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace tellurix::browser
