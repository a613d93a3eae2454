#include "services/Localizer.h"

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/Tabs.h"

#include <vector>

namespace tellurix::workbench {

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

template <typename C, typename Translate>
void replaceCaption(ui::Control& control, const Translate& translate) {
    C& captioned = static_cast<C&>(control);
    captioned.setCaption(translate(".caption", captioned.caption()));
}

} // namespace

std::string Localizer::text(int number, const host::TlxVar& session) {
    return named(std::to_string(number), session);
}

std::string Localizer::named(std::string_view key, const host::TlxVar& session) const {
    return catalogue_.text(session.language, key);
}

std::string Localizer::namedOr(std::string_view key, const host::TlxVar& session,
                               const std::string& otherwise) const {
    const std::string* text = catalogue_.find(session.language, key);
    return text == nullptr ? otherwise : *text;
}

std::string Localizer::translated(const host::TlxVar& session, const std::string& key,
                                  const std::string& shown) {
    if (const std::string* text = catalogue_.find(session.language, key)) {
        design_.try_emplace(key, shown);
        return *text;
    }
    const auto design = design_.find(key);
    return design == design_.end() ? shown : design->second;
}

void Localizer::localize(const host::TlxVar& session, ui::Form& form) {
    form.setTitle(translated(session, form.name() + ".title", form.title()));
    for (ui::Control* control : form.controls())
        localize(session, form.name() + "." + control->name(), *control);
}

void Localizer::localize(const host::TlxVar& session, const std::string& base, ui::Control& control) {
    const auto translate = [&](const char* what, const std::string& shown) {
        return translated(session, base + what, shown);
    };
    switch (control.kind()) {
    case ui::ControlKind::label:
        replaceCaption<ui::Label>(control, translate);
        break;
    case ui::ControlKind::button:
        replaceCaption<ui::Button>(control, translate);
        break;
    case ui::ControlKind::checkBox:
        replaceCaption<ui::CheckBox>(control, translate);
        break;
    case ui::ControlKind::frame:
        replaceCaption<ui::Frame>(control, translate);
        break;
    case ui::ControlKind::tabs: {
        auto& tabs = static_cast<ui::Tabs&>(control);
        tabs.setCaptions(parts(translate(".captions", joined(tabs.captions()))));
        break;
    }
    case ui::ControlKind::grid: {
        auto& grid = static_cast<ui::Grid&>(control);
        std::vector<ui::Grid::Column> columns = grid.columns();
        std::vector<std::string> captions;
        for (const ui::Grid::Column& column : columns)
            captions.push_back(column.caption);
        const std::string shown = joined(captions);
        const std::string text = translate(".captions", shown);
        captions = parts(text);
        // A screen that shows fewer or other columns than the catalogue knows keeps its own captions.
        if (text == shown || captions.size() != columns.size()) break;
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].caption = captions[i];
        grid.setColumns(std::move(columns));
        break;
    }
    default:
        break;
    }
    control.setToolTip(translate(".toolTip", control.toolTip()));
}

} // namespace tellurix::workbench
