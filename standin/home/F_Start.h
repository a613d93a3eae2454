#pragma once

#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/grids/grid_layout.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"
#include "standin/home/ContractOpener.h"
#include "standin/home/F_NewContract.h"
#include "standin/home/F_Notifications.h"
#include "standin/home/GlancePane.h"
#include "standin/home/contract_list.h"
#include "standin/services/WorkbenchServices.h"

#include <functional>
#include <optional>
#include <string>

namespace tellurix::standin {

/// The workbench's main window: the contracts, found by name, customer, type, delivery period and
/// state, the current one at a glance, and the way into the contract module: a contract, the provision and
/// the quantity reports.
class F_Start final : public ui::Form {
public:
    /// How many contracts are listed at once; more can be reached by narrowing.
    static constexpr std::size_t listedAtMost = 500;

    /// Whether the user can close it. In a browser it is the root window of its session and goes with
    /// the session; in a program with windows of its own closing it ends the program.
    enum class Closing { never, allowed };

    /// @param session the language in it changes when the user chooses another one
    /// @param languageChanged told of the user's choice, "de" or "en"; may be empty
    F_Start(WorkbenchServices& services, host::TlxVar& session, ContractOpener& opener,
            std::function<void(const std::string&)> languageChanged = {}, Closing closing = Closing::never);

    /// Shows the contracts; returns when the window was closed.
    void Run();

private:
    bool closes() const override { return closing_ == Closing::allowed; }
    bool queryUnload() override { return closes(); }
    void connect();
    void connectPeriod(ui::TextBox& box);
    void arrange();
    /// Puts everything that is no control's caption into the session's language.
    void fillLists();
    void changeLanguage();

    ContractFilter filter() const;
    /// Reads the contracts, with the current one kept current where it is still there.
    void reload();
    void reload(std::int64_t current);
    /// When a contract ends: whether it is due, and what its line in the list says about that: "in 18 T.".
    Due dueOf(base::Fields& contract) const;
    std::string dueText(base::Fields& contract) const;
    /// How many contracts are listed, and how many of them are due.
    void showCount();
    /// Shows the current contract at a glance as soon as the user leaves time for reading it.
    void lookAtCurrent();
    std::string named(std::string_view key) const { return services_.localizer().named(key, session_); }
    std::string chosenType() const;

    /// The contract kind that the reports are opened for.
    std::int16_t chosenKind() const;
    void openCurrent();
    void create();
    void open(std::int32_t id, const std::string& name, const std::string& type, bool newContract);

    WorkbenchServices& services_;
    host::TlxVar& session_;
    ContractOpener& opener_;
    std::function<void(const std::string&)> languageChanged_;
    Closing closing_;
    F_NewContract newContract_;
    F_Notifications notifications_;

    ui::Label lblSearch{*this, "lblSearch", "&Suche"};
    ui::TextBox txtSearch{*this, "txtSearch", 20};
    ui::Label lblType{*this, "lblType", "Vertrags&art"};
    ui::ComboBox cboType{*this, "cboType", 15};
    ui::Label lblClosed{*this, "lblClosed", "S&tatus"};
    ui::ComboBox cboClosed{*this, "cboClosed", 12};
    ui::Label lblFrom{*this, "lblFrom", "Lieferung &von"};
    ui::TextBox txtFrom{*this, "txtFrom", 11};
    ui::Label lblTo{*this, "lblTo", "&bis"};
    ui::TextBox txtTo{*this, "txtTo", 11};
    ui::Label lblLanguage{*this, "lblLanguage", "S&prache"};
    ui::ComboBox cboLanguage{*this, "cboLanguage", 8};

    ui::Grid grdContracts{*this, "grdContracts", 15};
    ui::Label lblCount{*this, "lblCount"};
    ui::Button btnOpen{*this, "btnOpen", "Ö&ffnen"};
    ui::Button btnNew{*this, "btnNew", "&Neu"};

    ui::Label lblKind{*this, "lblKind", "Fakt&urart"};
    ui::ComboBox cboKind{*this, "cboKind", 15};
    ui::Button btnProvisionReports{*this, "btnProvisionReports", "Bereitstellungs&meldung"};
    ui::Button btnQuantityReports{*this, "btnQuantityReports", "Men&genmeldung"};

    ui::Button btnNotifications{*this, "btnNotifications", "Meldungen an den &Host"};

    parts::KeyedGrid contracts_{grdContracts};
    GlancePane glance_;
    std::optional<std::int64_t> lookedAt_;      ///< the contract at a glance
    std::optional<parts::GridLayouts> layouts_; ///< while it is shown
    bool more_ = false;                         ///< there are more contracts than are listed
};

} // namespace tellurix::standin
