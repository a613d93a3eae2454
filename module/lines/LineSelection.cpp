#include "module/lines/LineSelection.h"

#include "module/base/text.h"
#include "module/host/module_state.h"

namespace tellurix::lines {

LineSelection::LineSelection(ui::Form& form, host::HostServices& services, const host::TlxVar& session)
    : services_(services),
      session_(session),
      boxes_(form, services, session),
      cmdSelect(form, "cmdSelect", "Selection"),
      chkSelektion(form, "chkSelektion") {
    chkSelektion.setEnabled(false);
    chkSelektion.setToolTip("Die Zeile hat eine Selektion");
}

ui::Layout LineSelection::layout() {
    return ui::column({boxes_.layout(), ui::row({cmdSelect, chkSelektion})});
}

void LineSelection::show(const std::string& value) {
    boxes_.show(readSelection(value));
    chkSelektion.setChecked(hasSelection(value));
}

std::optional<std::string> LineSelection::choose(const std::string& key) {
    const host::HostContext& context = host::moduleState().context;
    const auto chosen = services_.selectionDialog.select(session_, key, base::toUpper(context.StrVer_Type),
                                                         context.strServiceOut1, context.strServiceOut2);
    if (!chosen) return std::nullopt;
    return std::string{base::trim(*chosen)};
}

void LineSelection::showChosen(const std::string& selection) {
    chkSelektion.setChecked(!selection.empty());
    boxes_.show({});
}

} // namespace tellurix::lines
