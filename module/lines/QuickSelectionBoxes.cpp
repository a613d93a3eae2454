#include "module/lines/QuickSelectionBoxes.h"

#include "module/base/text.h"
#include "module/parts/fields/typed_text.h"
#include "module/ui/controls/caption.h"

namespace tellurix::lines {

QuickSelectionBoxes::QuickSelectionBoxes(ui::Form& form, host::HostServices& services,
                                         const host::TlxVar& session)
    : services_(services),
      session_(session),
      frmFilter(form, "frmFilter", "Schnellselektion"),
      labels_{ui::Label{form, "lblHa", "Ha"}, ui::Label{form, "lblHs", "Hs"},
              ui::Label{form, "lblGKL", "GKL"}, ui::Label{form, "lblStkl", "Stkl"},
              ui::Label{form, "lblLange", "Lange"}},
      boxes_{ui::TextBox{form, "txtHa"}, ui::TextBox{form, "txtHs"}, ui::TextBox{form, "txtGKL"},
             ui::TextBox{form, "txtStkl"}, ui::TextBox{form, "txtLange"}} {
    connect(Attribute::species, "SELECT ID,HA FROM HOLZART WHERE ISNULL(DISABLE,0)=0", "HOLZART_GRID", "HA");
    connect(Attribute::sort, "SELECT ID,HS FROM HOLZSORTE WHERE ISNULL(DISABLE,0)=0", "HOLZSORTE_GRID", "HS");
    connect(Attribute::quality, "SELECT ID,GKL FROM GUETEKLASSE WHERE ISNULL(DISABLE,0)=0",
            "GUETEKLASSE_GRID", "GKL");
    connect(Attribute::strength, "SELECT ID,STKL FROM STKL WHERE ISNULL(DISABLE,0)=0", "STKL_GRID", "STKL");
}

void QuickSelectionBoxes::connect(Attribute attribute, const char* query, const char* settingKey,
                                  const char* column) {
    ui::Label& label = labels_[static_cast<std::size_t>(attribute)];
    ui::TextBox& box = boxes_[static_cast<std::size_t>(attribute)];
    box.onFocus = [this, &box, query, column] { services_.typeAhead.bind(session_, box, query, column); };
    box.onPick = [this, &label, &box, settingKey] {
        box.setText(services_.lookupGridDialog.choose(session_, services_.settings.text(session_, settingKey),
                                                      ui::plainCaption(label.caption()), box.text()));
    };
}

ui::Layout QuickSelectionBoxes::layout() {
    std::vector<ui::Layout> fields;
    for (std::size_t i = 0; i < attributeCount; ++i)
        fields.push_back(ui::field(labels_[i], boxes_[i]));
    return ui::frame(frmFilter, {ui::fields(2, std::move(fields))});
}

void QuickSelectionBoxes::show(const QuickSelection& selection) {
    for (std::size_t i = 0; i < attributeCount; ++i)
        boxes_[i].setText(selection.lists[i]);
}

QuickSelection QuickSelectionBoxes::shown() const {
    QuickSelection selection;
    for (std::size_t i = 0; i < attributeCount; ++i)
        selection.lists[i] = boxes_[i].text();
    return selection;
}

std::string QuickSelectionBoxes::textOf(const QuickSelection& selection) const {
    std::string text;
    for (std::size_t i = 0; i < attributeCount; ++i) {
        const std::string list = base::replaceAll(selection.lists[i], " ", "");
        if (list.empty()) continue;
        text += (text.empty() ? "" : "; ") + ui::plainCaption(labels_[i].caption()) + " " + list;
    }
    return text;
}

QuickSelection QuickSelectionBoxes::read() {
    ui::TextBox& lengths = boxes_[static_cast<std::size_t>(Attribute::length)];
    lengths.setText(lengthsIn(lengths.text(), services_.locale));
    QuickSelection selection;
    for (std::size_t i = 0; i < attributeCount; ++i)
        selection.lists[i] = parts::typedCodes(boxes_[i]);
    return selection;
}

} // namespace tellurix::lines
