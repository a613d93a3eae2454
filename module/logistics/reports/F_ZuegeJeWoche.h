#pragma once

#include "module/base/iso_week.h"
#include "module/host/services.h"
#include "module/logistics/reports/ProvisionStatements.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/input/TextSorting.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// The loads of a contract by week, announced and confirmed, as a list and as bars; one of the weeks can be
/// chosen.
class F_ZuegeJeWoche final : public ui::Form {
public:
    explicit F_ZuegeJeWoche(host::HostServices& services);

    /// @param week whose contract is shown, and which becomes the current one
    /// @param contract its name
    /// @return the week that the user has chosen; nothing when none
    std::optional<base::IsoWeek> Run(const host::TlxVar& session, const ReportWeek& week,
                                     const std::string& contract);

private:
    void show(const host::TlxVar& session, const ReportWeek& week);
    void mark();
    void choose();

    host::HostServices& services_;
    std::vector<base::IsoWeek> weeks_; ///< of the bars, and of the rows as they were given
    std::optional<base::IsoWeek> chosen_;

    ui::Grid grdWochen{*this, "grdWochen", 16};
    ui::TextSorting sorting_{grdWochen, services_.locale};
    ui::Frame frmZuege{*this, "frmZuege", "Züge je Woche"};
    ui::Chart chtZuege{*this, "chtZuege"};
    ui::Button btnWaehlen{*this, "btnWaehlen", "Woche &wählen"};
    ui::Button btnSchliessen{*this, "btnSchliessen", "S&chließen"};
};

} // namespace tellurix::logistics
