#include "standin/services/pickers/persons/F_PersonPicker.h"

#include "standin/services/pickers/search_keys.h"

namespace tellurix::standin {

namespace {

std::string fullName(base::Fields& person) {
    const std::string name = person.text("NAME");
    const std::string firstName = person.text("VORNAME");
    return firstName.empty() ? name : name + ", " + firstName;
}

} // namespace

F_PersonPicker::F_PersonPicker(std::string title, Search search, const std::string& start, Found found,
                               std::int32_t current)
    : Form("F_PersonPicker", std::move(title)), search_(std::move(search)) {
    persons_.setColumns(
        {{.caption = "Nummer", .width = 8, .field = "NUMMER", .rightAligned = true, .sorts = true},
         {.caption = "Kurzbezeichnung", .width = 26, .field = "KURZBEZEICHNUNG", .sorts = true},
         {.caption = "Name", .width = 28, .sorts = true, .shown = fullName},
         {.caption = "Straße", .width = 22, .field = "STRASSE", .sorts = true},
         {.caption = "PLZ", .width = 7, .field = "PLZ", .sorts = true},
         {.caption = "Ort", .width = 20, .field = "ORT", .sorts = true}});
    limitSearch(txtSearch);
    txtSearch.onChange = [this] { narrow(); };
    connectSearch(txtSearch, grdPersons, [this] { choose(); });
    btnOk.onClick = [this] { choose(); };
    btnNone.onClick = [this] { answer(nobody); };
    btnCancel.onClick = [this] { unload(); };
    setCard();
    setCancelButton(btnCancel);
    arrange();

    txtSearch.setText(start);
    show(std::move(found));
    persons_.select(current);
}

void F_PersonPicker::arrange() {
    setLayout(ui::column({ui::field(lblSearch, txtSearch), ui::Layout{grdPersons}.growing(), lblCount,
                          ui::bar({ui::Layout{btnOk}.primary(), btnNone, btnCancel})}));
}

void F_PersonPicker::narrow() {
    show(search_(txtSearch.text()));
}

void F_PersonPicker::show(Found found) {
    persons_.show(std::move(found.rows));
    grdPersons.setCurrent(0);
    lblCount.setCaption(std::move(found.count));
}

void F_PersonPicker::choose() {
    if (const auto person = persons_.currentKey()) answer(*person);
}

void F_PersonPicker::answer(std::int64_t person) {
    chosen_ = static_cast<std::int32_t>(person);
    unload();
}

} // namespace tellurix::standin
