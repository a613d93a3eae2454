#include "standin/services/texts/Localizer.h"

#include "module/ui/Form.h"
#include "module/ui/controls/control_caption.h"
#include "standin/services/texts/CaptionKeys.h"

namespace tellurix::standin {

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

void Localizer::translate(const host::TlxVar& session, ui::Form& form) {
    const CaptionKeys keys{form.name()};
    form.setTitle(translated(session, keys.title(), form.title()));
    for (ui::Control* control : form.controls()) {
        if (const auto shown = ui::captionText(*control)) {
            const std::string key = keys.caption(control->name(), ui::captionKind(*control));
            ui::setCaptionText(*control, translated(session, key, *shown));
        }
        control->setToolTip(translated(session, keys.toolTip(control->name()), control->toolTip()));
    }
}

} // namespace tellurix::standin
