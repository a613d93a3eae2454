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

std::vector<ui::Layout> LineSelection::layouts() {
    return {boxes_.layout(), ui::row({cmdSelect, chkSelektion})};
}

void LineSelection::show(const std::string& value) {
    shown_ = value;
    boxes_.show(readSelection(value));
    chkSelektion.setChecked(hasSelection(value));
}

void LineSelection::showNone() {
    shown_.clear();
    chkSelektion.setChecked(false);
}

std::string LineSelection::text() const {
    const std::string said = boxes_.textOf(boxes_.shown());
    return said.empty() ? textOf(shown_) : said;
}

std::string LineSelection::textOf(const std::string& value) const {
    const std::string said = boxes_.textOf(readSelection(value));
    return said.empty() ? std::string{base::trim(value)} : said;
}

std::optional<std::string> LineSelection::choose(const std::string& key) {
    const host::HostContext& context = host::moduleState().context;
    const auto chosen = services_.selectionDialog.select(session_, key, base::toUpper(context.StrVer_Type),
                                                         context.strServiceOut1, context.strServiceOut2);
    if (!chosen) return std::nullopt;
    return std::string{base::trim(*chosen)};
}

void LineSelection::showChosen(const std::string& selection) {
    shown_ = selection;
    chkSelektion.setChecked(!selection.empty());
    boxes_.show({});
}

} // namespace tellurix::lines
