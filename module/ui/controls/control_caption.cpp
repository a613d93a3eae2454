#include "module/ui/controls/control_caption.h"

#include "module/base/text.h"
#include "module/ui/Form.h"
#include "module/ui/controls/caption.h"
#include "module/ui/controls/visit.h"

#include <vector>

namespace tellurix::ui {

namespace {

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

bool hasSeveral(const Control& control) {
    return control.kind() == ControlKind::tabs || control.kind() == ControlKind::grid;
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
    return hasSeveral(control) ? "captions" : "caption";
}

std::optional<std::string> captionText(const Control& control) {
    return visit(control, [](const auto& visited) -> std::optional<std::string> {
        if constexpr (requires { visited.caption(); }) {
            return visited.caption();
        } else if constexpr (requires { visited.captions(); }) {
            return base::joined(visited.captions(), "|");
        } else if constexpr (requires { visited.columns(); }) {
            return base::joined(columnCaptions(visited), "|");
        } else {
            return std::nullopt;
        }
    });
}

std::string ownCaption(const Control& control) {
    return hasSeveral(control) ? std::string{} : captionText(control).value_or("");
}

std::string spokenName(const Control& control) {
    if (const Label* label = control.form().labelOf(control)) return plainCaption(label->caption());
    if (std::string own = plainCaption(ownCaption(control)); !own.empty()) return own;
    for (const Control* around = control.container(); around != nullptr; around = around->container()) {
        const Frame* frame = as<Frame>(around);
        if (frame != nullptr && !frame->caption().empty()) return plainCaption(frame->caption());
    }
    return control.form().title();
}

void setCaptionText(Control& control, const std::string& text) {
    if (captionText(control) == text) return;
    visit(control, [&text](auto& visited) {
        if constexpr (requires { visited.caption(); }) {
            visited.setCaption(text);
        } else if constexpr (requires { visited.captions(); }) {
            setPageCaptions(visited, parts(text));
        } else if constexpr (requires { visited.columns(); }) {
            setColumnCaptions(visited, parts(text));
        }
    });
}

} // namespace tellurix::ui
