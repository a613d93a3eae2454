#include "standin/services/selection/codes/F_LookupGrid.h"

namespace tellurix::standin {

F_LookupGrid::F_LookupGrid(std::string title, ChoiceList::Captions captions, std::vector<Choice> choices,
                           std::vector<std::string> chosen, bool several)
    : Form("F_LookupGrid", std::move(title)), list_(grdList, std::move(captions)) {
    list_.allowSeveral(several);
    list_.show(std::move(choices), std::move(chosen));
    list_.onEnter = [this] { takeOver(); };
    btnOk.onClick = [this] { takeOver(); };
    btnCancel.onClick = [this] { unload(); };
    setCard();
    setCancelButton(btnCancel);
    setLayout(ui::column({ui::Layout{grdList}.growing(), ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
}

void F_LookupGrid::takeOver() {
    chosen_ = list_.chosen();
    unload();
}

} // namespace tellurix::standin
