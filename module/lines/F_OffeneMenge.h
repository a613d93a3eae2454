#pragma once

#include "module/base/own_text.h"
#include "module/host/services.h"
#include "module/lines/DeliveredQuantity.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/input/TextSorting.h"

#include <string>

namespace tellurix::lines {

/// Shows how the open quantity of a line comes about: the logs that count for it with their sum, and
/// what the lines before it have taken of the contract's logs.
class F_OffeneMenge final : public ui::Form {
public:
    /// @param session the calling screen's own copy of the session record
    F_OffeneMenge(host::HostServices& services, const host::TlxVar& session);

    /// @param contract its name, for the title
    /// @param description, unit of the line
    /// @param agreed the line's quantity
    void Run(const std::string& contract, const DeliveredQuantity::Explanation& explanation,
             const std::string& description, const std::string& unit, const base::Decimal& agreed);

private:
    std::string number(const base::Decimal& value) const;
    std::string text(base::OwnText text, const std::vector<std::string>& values = {}) const;

    host::HostServices& services_;
    const host::TlxVar& session_;

    ui::Label lblZeile{*this, "lblZeile"};
    ui::Grid grdHolz{*this, "grdHolz", 14};
    ui::TextSorting sorting_{grdHolz, services_.locale};
    ui::Label lblSumme{*this, "lblSumme"};
    ui::Label lblFrueher{*this, "lblFrueher"};
    ui::ListBox lstFrueher{*this, "lstFrueher", 60, 4};
    ui::Button btnSchliessen{*this, "btnSchliessen"};
};

} // namespace tellurix::lines
