#include "standin/home/F_NewContract.h"

#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "standin/home/contract_list.h"
#include "standin/home/contract_types.h"

namespace tellurix::standin {

namespace {

/// Room for names in the column VERTRAG_NAME.
constexpr int longestName = 60;

} // namespace

F_NewContract::F_NewContract(WorkbenchServices& services, const host::TlxVar& session)
    : AskingForm(services.host().display, "F_NewContract", "Neuer Vertrag"),
      services_(services),
      session_(session) {
    txtName.setMaxLength(longestName);
    btnOk.onClick = [this] { create(); };
    btnCancel.onClick = [this] { leave(); };
    btnCancel.setCausesValidation(false);
    setCancelButton(btnCancel);
    setLayout(ui::column({ui::fields(1, {ui::field(lblName, txtName), ui::field(lblType, cboType)}),
                          ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
}

std::optional<F_NewContract::Contract> F_NewContract::Run(const std::string& type) {
    created_.reset();
    txtName.show("");
    cboType.clear();
    addContractTypes(cboType, services_.localizer(), session_);
    cboType.select(0);
    for (std::size_t i = 0; i < contractTypes.size(); ++i) {
        if (contractTypes[i] == type) cboType.selectItemData(static_cast<std::int64_t>(i));
    }
    services_.localizer().localize(session_, *this);
    services_.host().display.showModal(*this);
    return created_;
}

void F_NewContract::refuse(std::string_view reason) {
    const std::string why = services_.localizer().named(reason, session_);
    txtName.setError(why);
    parts::ShowMessage(services_.host().display, why, ui::box::exclamation);
    parts::SafeSetFocus(txtName);
    txtName.selectAll();
}

void F_NewContract::create() {
    const std::string name{base::trim(txtName.text())};
    if (name.empty()) return refuse("start.nameMissing");
    // The contract screens put the name into statements as it stands, where an apostrophe would end
    // the text; such a contract could be created but never opened.
    if (name.find('\'') != std::string::npos) return refuse("start.nameWithApostrophe");
    if (contractExists(*session_.connection, name)) return refuse("start.nameTaken");
    const auto index =
        static_cast<std::size_t>(cboType.items()[static_cast<std::size_t>(cboType.selected())].itemData);
    const std::string type{contractTypes[index]};
    created_ = Contract{createContract(*session_.connection, name, type), name, type};
    leave();
}

} // namespace tellurix::standin
