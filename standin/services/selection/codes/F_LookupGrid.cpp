#include "standin/services/selection/codes/F_LookupGrid.h"

namespace tellurix::standin {

F_LookupGrid::F_LookupGrid(ui::Display& display, std::string title, ChoiceList::Captions captions,
                           std::vector<Choice> choices, std::vector<std::string> chosen, bool several)
    : AskingForm(display, "F_LookupGrid", std::move(title)), list_(grdList, std::move(captions)) {
    list_.allowSeveral(several);
    list_.show(std::move(choices), std::move(chosen));
    before_ = list_.chosen();
    list_.onEnter = [this] { takeOver(); };
    btnOk.onClick = [this] { takeOver(); };
    btnCancel.onClick = [this] { leave(); };
    setCard();
    setCancelButton(btnCancel);
    setLayout(ui::column({ui::Layout{grdList}.growing(), ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
}

void F_LookupGrid::takeOver() {
    chosen_ = list_.chosen();
    leave();
}

} // namespace tellurix::standin
