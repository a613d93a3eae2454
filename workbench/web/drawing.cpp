#include "web/drawing.h"

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/Grid.h"
#include "ui/ListBox.h"
#include "ui/ProgressBar.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

#include <nlohmann/json.hpp>

namespace tellurix::workbench {

namespace {

using nlohmann::json;
using ui::Control;
using ui::ControlKind;
using ui::Layout;

void draw(json& out, const ui::TextBox& box) {
    out["kind"] = "text";
    out["text"] = box.text();
    out["selection"] = {box.selectionStart(), box.selectionLength()};
    out["locked"] = box.locked();
    out["width"] = box.width();
    out["lines"] = box.lines();
    out["maxLength"] = box.maxLength();
    out["right"] = box.rightAligned();
    out["picks"] = static_cast<bool>(box.onPick);
    // What decides about single keys can only be asked here; everything else the browser edits.
    out["filtered"] = box.filtered();
    out["warning"] = box.warning();
}

void draw(json& out, const ui::ItemList& list, bool whole) {
    out["selected"] = list.selected();
    out["width"] = list.width();
    if (list.kind() == ControlKind::listBox) out["rows"] = static_cast<const ui::ListBox&>(list).rows();
    if (!whole && !list.itemsDirty()) return;
    json items = json::array();
    for (const auto& item : list.items())
        items.push_back(item.text);
    out["items"] = std::move(items);
}

json drawColumns(const ui::Grid& grid) {
    json columns = json::array();
    for (const auto& column : grid.columns()) {
        columns.push_back({{"caption", column.caption},
                           {"width", column.width},
                           {"right", column.rightAligned},
                           {"visible", column.visible}});
    }
    return columns;
}

void draw(json& out, const ui::Grid& grid, bool whole) {
    out["kind"] = "grid";
    out["current"] = {grid.currentRow(), grid.currentColumn()};
    out["visibleRows"] = grid.visibleRows();
    out["scrolls"] = static_cast<bool>(grid.onScroll);
    out["characters"] = static_cast<bool>(grid.onKeyPress);
    out["editor"] = nullptr;
    if (const ui::TextBox* box = grid.cellEditor()) {
        out["editor"] = {{"control", box->id()}, {"row", grid.editedRow()}, {"column", grid.editedColumn()}};
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

json drawControl(const Control& control, bool whole) {
    json out{{"id", control.id()},           {"name", control.name()},
             {"enabled", control.enabled()}, {"visible", control.visible()},
             {"tip", control.toolTip()},     {"keys", static_cast<bool>(control.onKeyDown)}};
    switch (control.kind()) {
    case ControlKind::label:
        out["kind"] = "label";
        out["caption"] = static_cast<const ui::Label&>(control).caption();
        break;
    case ControlKind::textBox:
        draw(out, static_cast<const ui::TextBox&>(control));
        break;
    case ControlKind::button:
        out["kind"] = "button";
        out["caption"] = static_cast<const ui::Button&>(control).caption();
        out["picture"] = static_cast<const ui::Button&>(control).picture();
        break;
    case ControlKind::checkBox:
        out["kind"] = "check";
        out["caption"] = static_cast<const ui::CheckBox&>(control).caption();
        out["checked"] = static_cast<const ui::CheckBox&>(control).checked();
        break;
    case ControlKind::comboBox:
        out["kind"] = "combo";
        draw(out, static_cast<const ui::ItemList&>(control), whole);
        break;
    case ControlKind::listBox:
        out["kind"] = "list";
        draw(out, static_cast<const ui::ItemList&>(control), whole);
        break;
    case ControlKind::grid:
        draw(out, static_cast<const ui::Grid&>(control), whole);
        break;
    case ControlKind::frame:
        out["kind"] = "frame";
        out["caption"] = static_cast<const ui::Frame&>(control).caption();
        break;
    case ControlKind::tabs:
        out["kind"] = "tabs";
        out["captions"] = static_cast<const ui::Tabs&>(control).captions();
        out["selected"] = static_cast<const ui::Tabs&>(control).selected();
        break;
    case ControlKind::upDown:
        out["kind"] = "upDown";
        break;
    case ControlKind::progressBar:
        out["kind"] = "progress";
        out["value"] = static_cast<const ui::ProgressBar&>(control).value();
        out["maximum"] = static_cast<const ui::ProgressBar&>(control).maximum();
        break;
    }
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
    case Layout::Kind::frame:
        return "frame";
    case Layout::Kind::tabs:
        return "tabs";
    }
    return "column";
}

json drawLayout(const Layout& layout) {
    json out{{"kind", nameOf(layout.kind)}};
    if (layout.control != nullptr) out["control"] = layout.control->id();
    if (layout.grows) out["grows"] = true;
    if (layout.kind == Layout::Kind::fields) out["columns"] = layout.columns;
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
            {"layout", drawLayout(form.layout())},
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

} // namespace tellurix::workbench
