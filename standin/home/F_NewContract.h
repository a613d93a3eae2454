#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/TextBox.h"
#include "standin/services/AskingForm.h"
#include "standin/services/WorkbenchServices.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tellurix::standin {

/// Asks for the name and the type of a new contract and creates its row, as the host does before it
/// opens the contract as a new one. The name has to be there, and to be no other contract's.
class F_NewContract final : public AskingForm {
public:
    /// What was created.
    struct Contract {
        std::int32_t id;
        std::string name;
        std::string type;
    };

    F_NewContract(WorkbenchServices& services, const host::TlxVar& session);

    /// Shows the form.
    /// @param type contract-type code to start with; empty for the first one
    /// @return nothing when the user cancelled
    std::optional<Contract> Run(const std::string& type);

private:
    bool changed() const override { return txtName.touched(); }
    void create();
    void refuse(std::string_view reason);

    WorkbenchServices& services_;
    const host::TlxVar& session_;
    std::optional<Contract> created_;

    ui::Label lblName{*this, "lblName", "&Name"};
    ui::TextBox txtName{*this, "txtName", 40};
    ui::Label lblType{*this, "lblType", "Vertrags&art"};
    ui::ComboBox cboType{*this, "cboType", 24};
    ui::Button btnOk{*this, "btnOk", "An&legen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
};

} // namespace tellurix::standin
