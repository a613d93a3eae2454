#include "standin/services/Dialogs.h"

#include "module/parts/grids/grid_layout.h"

namespace tellurix::standin {

void Dialogs::show(const host::TlxVar& session, ui::Form& form, const std::string& what) {
    services_.localizer.localize(session, form);
    parts::GridLayouts layouts{services_, session, form, what};
    services_.display.showModal(form);
    layouts.keep();
}

} // namespace tellurix::standin
