#pragma once

#include "module/base/own_text.h"
#include "module/contract/AdditionalTexts.h"
#include "module/contract/TakeOverFrame.h"
#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/lines/F_VertragMengen.h"
#include "module/lines/F_VertragPreise.h"
#include "module/parts/fields/EnteredChanges.h"
#include "module/parts/meanwhile/SharedRow.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/TextBox.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::contract {

/// The contract editor: the overview of one contract and the way to all its other screens.
///
/// Only the closed flag, the visibility flag and the access level wait for "Speichern"; everything
/// else is written at the moment of the change. A contract that the host has just created survives
/// only if it is saved at least once: closing it otherwise asks, and deletes it.
class F_Vertrag final : public ui::Form, public host::Screen {
public:
    explicit F_Vertrag(host::HostServices& services);

    /// Opens a contract and returns when the editor is closed.
    /// @param name not shown; the name in the title is read from the database
    /// @param newVertrag the host has just created the row
    /// @param strCaption what the title starts with
    /// @param enableKLR kept for the child screens
    void Run(const host::TlxVar& session, std::int32_t id, const std::string& name, bool newVertrag,
             const std::string& strCaption, const bool& enableKLR);

    /// Writes one column of the contract's row; an empty value becomes NULL. The value goes into the
    /// statement as it stands.
    void SetContractField(const std::string& column, const std::string& value, std::int32_t contract);
    /// Shows the summary of the head data.
    void ShowHeader();
    /// Copies columns and cells of a line screen's table into one of the editor's.
    static void CopyGrid(const ui::Grid& source, ui::Grid& target);
    /// One column of the contract's deduction model, empty when it has none.
    std::string GetAbschlagValue(const std::string& column);
    /// The person picker's code for the customers of a contract type; empty for an unknown type.
    static std::string GetRightsCode(const std::string& typeCode);
    /// The customer and the period of the delivery.
    std::string subject() const override;

private:
    void arrange();
    void connect();
    parts::OpenContract openContract() const;
    void say(base::OwnText text, const std::vector<std::string>& values = {});
    void loadContract();
    void loadFlags();
    /// @return false when nothing is to be written
    bool settleFlags();
    void showCustomer();
    /// Empty, with the reason beside it, for a contract whose name no statement can carry.
    void showDeductionModel();
    /// @throws base::Refused with that reason, and nothing is sent
    void openDeductions();
    void openLogistics();
    lines::F_VertragPreise& priceLines();
    lines::F_VertragMengen& quantityLines();
    /// Loads the lines into the overview, with or without showing their screen first.
    /// @param line the key of the one that the screen begins with
    void showPriceLines(bool openScreen, std::optional<std::int64_t> line = {});
    void showQuantityLines(bool openScreen, std::optional<std::int64_t> line = {});
    void releaseLineScreens();

    void chooseCustomer();
    void removeCustomer();
    void openHeader();
    void save();
    bool escape() override { return !additionalTexts_.close(); }
    bool queryUnload() override;

    host::HostServices& services_;
    host::TlxVar session_;
    std::int32_t id_ = 0;
    std::string name_;             ///< `VERTRAG_NAME`, which is also the accounting name
    std::int32_t customer_ = 0;    ///< `ID_PERSONAL`, 0 for none
    std::string period_;           ///< of the delivery
    std::int64_t accessLevel_ = 0; ///< `ID_ACCESS_LEVELS`, 0 for none
    bool notYetSaved_ = true;
    bool newContract_ = false;
    bool enableKLR_ = false;

    ui::Frame frmKunde{*this, "frmKunde", "Kunde und Kopf"};
    ui::TextBox txtKunde{*this, "txtKunde", 36};
    ui::Button KundeButton{*this, "KundeButton", "&Kunde"};
    ui::Button btnDeleteMan{*this, "btnDeleteMan", "Kunde entfernen", "delete"};
    ui::ListBox List1{*this, "List1", 60, 9};
    ui::Button btnHeader{*this, "btnHeader", "&Kopf"};
    ui::Button btnZusatz{*this, "btnZusatz", "&Zus.text"};

    ui::Frame frmPreise{*this, "frmPreise", "Preise"};
    ui::Grid Grid1{*this, "Grid1", 6};
    ui::Button PreisButton{*this, "PreisButton", "&Preis"};
    ui::Frame frmMengen{*this, "frmMengen", "Mengen"};
    ui::Grid Grid2{*this, "Grid2", 6};
    ui::Button PosButton{*this, "PosButton", "&Art.Pos."};

    AdditionalTexts additionalTexts_{*this, btnZusatz};

    ui::Button btnAbschlag{*this, "btnAbschlag", "Abschlag"};
    ui::TextBox txtAbschlag{*this, "txtAbschlag", 26};
    ui::Label lblOhneAbschlag{*this, "lblOhneAbschlag"};
    ui::CheckBox chkAbgeschlossen{*this, "chkAbgeschlossen", "Abgeschlossen"};
    ui::CheckBox chkAClEmpty{*this, "chkAClEmpty", "Auf allen Ebenen sichtbar"};
    ui::Button btnLieferprofil_WVO{*this, "btnLieferprofil_WVO", "Lieferprofil Vertragsdefinition"};

    TakeOverFrame takeOver_;
    parts::SharedRow flags_{services_, session_};
    parts::EnteredChanges enteredFlags_;
    ui::Label txtMessage{*this, "txtMessage", "Umschalten zu MS-Word"};

    ui::Button btnWord{*this, "btnWord", "Vertragsdokument", "document"};
    ui::Button btnSpeichern{*this, "btnSpeichern", "Speichern"};
    ui::Button btnAbbrechen{*this, "btnAbbrechen", "Abbrechen"};
};

} // namespace tellurix::contract
