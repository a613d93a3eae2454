#include "standin/home/F_Notifications.h"

#include "module/base/date_format.h"
#include "standin/home/contract_types.h"

#include <algorithm>

namespace tellurix::standin {

F_Notifications::F_Notifications(WorkbenchServices& services, const host::TlxVar& session)
    : Form("F_Notifications", "Meldungen an den Host"), services_(services), session_(session) {
    grdNotifications.setColumns({{.caption = "Zeit", .width = 9},
                                 {.caption = "Code", .width = 9},
                                 {.caption = "Vertragsart", .width = 18}});
    btnClose.onClick = [this] { unload(); };
    setCancelButton(btnClose);
    setCard();
    setLayout(ui::column({ui::Layout{grdNotifications}.growing(), ui::bar({}, {}, {btnClose})}));
}

void F_Notifications::Run() {
    std::vector<ui::Grid::Row> rows;
    for (const Notification& notification : services_.moduleService().notifications())
        rows.push_back({base::formatDate(notification.time, "hh:mm:ss", services_.host().locale),
                        notification.code,
                        contractTypeText(notification.type, services_.localizer(), session_)});
    std::ranges::reverse(rows);
    sorting_.show(std::move(rows));
    services_.dialogs().show(session_, *this);
}

} // namespace tellurix::standin
