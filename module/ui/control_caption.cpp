#include "ui/control_caption.h"

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/Tabs.h"

#include <vector>

namespace tellurix::ui {

namespace {

std::string joined(const std::vector<std::string>& captions) {
    std::string text;
    for (const std::string& caption : captions)
        text += (&caption == &captions.front() ? "" : "|") + caption;
    return text;
}

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> captions;
    std::size_t from = 0;
    for (auto bar = text.find('|'); bar != std::string::npos; bar = text.find('|', from)) {
        captions.push_back(text.substr(from, bar - from));
        from = bar + 1;
    }
    captions.push_back(text.substr(from));
    return captions;
}

std::vector<std::string> columnCaptions(const Grid& grid) {
    std::vector<std::string> captions;
    for (const Grid::Column& column : grid.columns())
        captions.push_back(column.caption);
    return captions;
}

void setColumnCaptions(Grid& grid, const std::vector<std::string>& captions) {
    std::vector<Grid::Column> columns = grid.columns();
    if (captions.size() != columns.size()) return;
    for (std::size_t i = 0; i < columns.size(); ++i)
        columns[i].caption = captions[i];
    grid.setColumns(std::move(columns));
}

void setPageCaptions(Tabs& tabs, std::vector<std::string> captions) {
    if (captions.size() == tabs.captions().size()) tabs.setCaptions(std::move(captions));
}

} // namespace

const char* captionKind(const Control& control) {
    if (!captionText(control)) return "";
    const bool several = control.kind() == ControlKind::tabs || control.kind() == ControlKind::grid;
    return several ? "captions" : "caption";
}

std::optional<std::string> captionText(const Control& control) {
    switch (control.kind()) {
    case ControlKind::label:
        return static_cast<const Label&>(control).caption();
    case ControlKind::button:
        return static_cast<const Button&>(control).caption();
    case ControlKind::checkBox:
        return static_cast<const CheckBox&>(control).caption();
    case ControlKind::frame:
        return static_cast<const Frame&>(control).caption();
    case ControlKind::tabs:
        return joined(static_cast<const Tabs&>(control).captions());
    case ControlKind::grid:
        return joined(columnCaptions(static_cast<const Grid&>(control)));
    default:
        return std::nullopt;
    }
}

void setCaptionText(Control& control, const std::string& text) {
    if (captionText(control) == text) return;
    switch (control.kind()) {
    case ControlKind::label:
        return static_cast<Label&>(control).setCaption(text);
    case ControlKind::button:
        return static_cast<Button&>(control).setCaption(text);
    case ControlKind::checkBox:
        return static_cast<CheckBox&>(control).setCaption(text);
    case ControlKind::frame:
        return static_cast<Frame&>(control).setCaption(text);
    case ControlKind::tabs:
        return setPageCaptions(static_cast<Tabs&>(control), parts(text));
    case ControlKind::grid:
        return setColumnCaptions(static_cast<Grid&>(control), parts(text));
    default:
        return;
    }
}

} // namespace tellurix::ui
