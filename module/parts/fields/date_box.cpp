#include "module/parts/fields/date_box.h"

#include "module/base/own_text.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"
#include "module/ui/input/date_box.h"

namespace tellurix::parts {

void makeDateBox(ui::TextBox& box, host::HostServices& services, const host::TlxVar& session,
                 std::function<std::string()> title) {
    ui::makeDateBox(
        box, [&services] { return services.clock.today(); },
        [&box, &services, &session] {
            box.setError(base::ownText(base::OwnText::dateFormat, session.language, {nameOf(box)}));
            tellInvalid(services.display, services.localizer, session);
        });
    box.setPickPicture("calendar");
    box.onPick = [&box, &services, &session, title = std::move(title)] {
        box.setText(services.listPicker.choose(session, host::ListPicker::calendar, title(), box.text()));
    };
}

} // namespace tellurix::parts
