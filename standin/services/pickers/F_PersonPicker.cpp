#include "standin/services/pickers/F_PersonPicker.h"

#include "standin/services/pickers/search_keys.h"

#include <algorithm>

namespace tellurix::standin {

F_PersonPicker::F_PersonPicker(std::string title, Search search, const std::string& start, Found found,
                               std::int32_t current)
    : Form("F_PersonPicker", std::move(title)), search_(std::move(search)) {
    grdPersons.setColumns({{.caption = "Nummer", .width = 8, .rightAligned = true},
                           {.caption = "Kurzbezeichnung", .width = 26},
                           {.caption = "Name", .width = 28},
                           {.caption = "Straße", .width = 22},
                           {.caption = "PLZ", .width = 7},
                           {.caption = "Ort", .width = 20}});
    limitSearch(txtSearch);
    txtSearch.onChange = [this] { narrow(); };
    connectSearch(txtSearch, grdPersons, [this] { choose(); });
    btnOk.onClick = [this] { choose(); };
    btnNone.onClick = [this] { answer(nobody); };
    btnCancel.onClick = [this] { unload(); };
    setCancelButton(btnCancel);
    arrange();

    txtSearch.setText(start);
    show(std::move(found));
    const auto row = std::ranges::find(persons_, current);
    if (row != persons_.end()) grdPersons.setCurrent(static_cast<int>(row - persons_.begin()));
}

void F_PersonPicker::arrange() {
    setLayout(ui::column({ui::field(lblSearch, txtSearch), ui::Layout{grdPersons}.growing(), lblCount,
                          ui::row({btnOk, btnNone, btnCancel})}));
}

void F_PersonPicker::narrow() {
    show(search_(txtSearch.text()));
}

void F_PersonPicker::show(Found found) {
    persons_ = std::move(found.persons);
    grdPersons.setRows(std::move(found.rows));
    grdPersons.setCurrent(0);
    lblCount.setCaption(std::move(found.count));
}

void F_PersonPicker::choose() {
    const int row = grdPersons.currentRow();
    if (row != ui::Grid::none) answer(persons_[static_cast<std::size_t>(row)]);
}

void F_PersonPicker::answer(std::int32_t person) {
    chosen_ = person;
    unload();
}

} // namespace tellurix::standin
