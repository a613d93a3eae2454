#pragma once

#include "module/ui/Form.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Gauges.h"
#include "module/ui/controls/Label.h"
#include "standin/home/contract_glance.h"

#include <array>
#include <string>

namespace tellurix::standin {

/// A contract at a glance, beside the list of contracts: only to be read.
class GlancePane {
public:
    GlancePane(ui::Form& form, WorkbenchServices& services, const host::TlxVar& session);

    ui::Layout layout();

    void show(const ContractGlance& glance);
    /// Nothing but a sentence: that there is no contract, or why it cannot be shown.
    void showNothing(std::string why = {});
    /// The next one is on its way: what is there stays, and is drawn as something old.
    void setOld(bool old);

private:
    void showHead(const ContractGlance& glance);
    void showLines(const ContractGlance& glance);
    void showDates(const ContractGlance& glance);
    std::string quantity(const base::Decimal& value) const;
    std::string named(std::string_view key) const { return services_.localizer().named(key, session_); }

    static constexpr std::size_t mostHeadData = 13; ///< customer, address, period and ten texts
    static constexpr std::size_t mostDates = 4;

    WorkbenchServices& services_;
    const host::TlxVar& session_;

    ui::Frame frmGlance;
    ui::Label lblGlanceKind;
    std::array<ui::Label, mostHeadData> lblHead;
    std::array<ui::Label, mostHeadData> lblHeadValue;
    ui::Frame frmGlanceLines;
    ui::Gauges gagLines;
    ui::Label lblTicks;
    ui::Label lblTooMuch;
    ui::Frame frmGlanceDates;
    std::array<ui::Label, mostDates> lblDate;
    std::array<ui::Label, mostDates> lblDay;
    std::array<ui::Label, mostDates> lblDue;
};

} // namespace tellurix::standin
