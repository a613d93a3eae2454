#include "module/parts/questions.h"

#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/ui/controls/caption.h"

namespace tellurix::parts {

void tellInvalid(ui::Display& display, host::HostLocalizer& localizer, const host::TlxVar& session,
                 const ui::Label* label) {
    std::string message = localizer.text(host::textNumber::invalidEntry, session);
    if (label != nullptr) message += " [" + ui::plainCaption(label->caption()) + "]";
    ShowMessage(display, message, ui::box::exclamation);
}

bool missing(host::HostServices& services, const host::TlxVar& session, const ui::Label& label,
             ui::Control& box) {
    box.setError(services.localizer.text(host::textNumber::invalidEntry, session));
    tellInvalid(services.display, services.localizer, session, &label);
    SafeSetFocus(box);
    return false;
}

std::string savedText(base::OwnText saved, const std::string& takenOver, const std::string& language) {
    const std::string text = base::ownText(saved, language);
    return takenOver.empty() ? text : text + ". " + takenOver;
}

bool confirmed(ui::Display& display, const std::string& question, int icon) {
    return ShowMessage(display, question, ui::box::yesNo + icon + ui::box::defaultButton2) == ui::Answer::yes;
}

bool confirmed(host::HostServices& services, const host::TlxVar& session, base::OwnText question,
               const std::vector<std::string>& values) {
    return confirmed(services.display, base::ownText(question, session.language, values));
}

} // namespace tellurix::parts
