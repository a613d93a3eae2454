#pragma once

#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/input/TextSorting.h"
#include "standin/services/WorkbenchServices.h"

namespace tellurix::standin {

/// What the contract module has told the host since the session began, the newest on top.
class F_Notifications final : public ui::Form {
public:
    F_Notifications(WorkbenchServices& services, const host::TlxVar& session);

    void Run();

private:
    WorkbenchServices& services_;
    const host::TlxVar& session_;

    ui::Grid grdNotifications{*this, "grdNotifications", 12};
    ui::TextSorting sorting_{grdNotifications, base::Locale::german()};
    ui::Button btnClose{*this, "btnClose", "S&chließen"};
};

} // namespace tellurix::standin
