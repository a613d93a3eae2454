#include "standin/services/models/F_Models.h"

#include "module/base/Refused.h"
#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr int longestName = 60;

} // namespace

F_Models::F_Models(ui::Display& display, ModelStore store, std::vector<std::string> statistics,
                   host::CalculationLines present, Texts texts, const std::string& current)
    : AskingForm(display, "F_Models", "Modelle"),
      store_(std::move(store)),
      statistics_(std::move(statistics)),
      present_(std::move(present)),
      texts_(std::move(texts)) {
    grdModels.setColumns({{.caption = "Modell", .width = 32}});
    grdLines.setColumns({{.caption = "Nr.", .width = 4, .rightAligned = true},
                         {.caption = "Statistik", .width = 20},
                         {.caption = "Bezeichnung", .width = 30},
                         {.caption = "Wert", .width = 10, .rightAligned = true},
                         {.caption = "Bezugszeile(n)", .width = 12},
                         {.caption = "Subset", .width = 24}});
    connect();
    setLayout(ui::column(
        {ui::row({ui::frame(frmModels, {ui::Layout{grdModels}.growing()}),
                  ui::frame(frmLines, {ui::Layout{grdLines}.growing()}).growing()})
             .growing(),
         ui::row({ui::field(lblName, txtName), ui::Layout{btnSave}.primary(), btnRename, btnDelete}),
         ui::bar({}, {}, {btnClose})}));
    load(current);
}

void F_Models::connect() {
    txtName.setMaxLength(longestName);
    grdModels.onCurrentChange = [this] { showModel(); };
    grdModels.onDoubleClick = [this] { parts::SafeSetFocus(txtName); };
    grdModels.pressOn(ui::Key::del, btnDelete);
    btnSave.onClick = [this] { save(); };
    btnRename.onClick = [this] { rename(); };
    btnDelete.onClick = [this] { remove(); };
    btnClose.onClick = [this] { leave(); };
    setCancelButton(btnClose);
}

void F_Models::load(const std::string& name) {
    models_ = store_.models();
    txtName.show("");
    std::vector<ui::Grid::Row> rows;
    for (const ModelStore::Model& model : models_)
        rows.push_back({model.name});
    sorting_.show(std::move(rows));
    const auto found = std::ranges::find(models_, name, &ModelStore::Model::name);
    if (found != models_.end())
        grdModels.setCurrent(sorting_.rowOf(static_cast<std::size_t>(found - models_.begin())));
    showModel();
}

const ModelStore::Model* F_Models::current() const {
    const int row = grdModels.currentRow();
    return row == ui::Grid::none ? nullptr : &models_[sorting_.originOf(row)];
}

void F_Models::showModel() {
    const ModelStore::Model* model = current();
    // What is typed is for the present lines, whichever model is looked at meanwhile.
    if (!txtName.touched()) txtName.show(model == nullptr ? "" : model->name);
    for (ui::Button* button : {&btnRename, &btnDelete})
        button->setEnabled(model != nullptr);
    std::vector<ui::Grid::Row> rows;
    const host::CalculationLines lines =
        model == nullptr ? host::CalculationLines{} : store_.lines(model->id);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] == host::CalculationLine{}) continue;
        const auto position = static_cast<std::size_t>(lines[i].statistic);
        rows.push_back({std::to_string(i + 1), position < statistics_.size() ? statistics_[position] : "",
                        lines[i].designation,
                        base::reformatNumber(lines[i].value, "##,##0.00", base::Locale::german()),
                        lines[i].references, lines[i].subset});
    }
    grdLines.setRows(std::move(rows));
}

std::string F_Models::typedName() {
    // The name goes into a statement as it stands, on the lines of every calculation that takes the model.
    std::string name{base::trim(parts::typedCodes(txtName))};
    if (name.empty()) {
        txtName.setError(texts_("models.nameMissing"));
        parts::ShowMessage(display(), txtName.error(), ui::box::exclamation);
        setFocus(txtName);
    }
    return name;
}

void F_Models::save() {
    const std::string name = typedName();
    if (name.empty() || (store_.find(name) && !confirmed("models.replace", name))) return;
    saved_ = store_.save(name, present_);
    load(name);
    say("models.saved", name);
}

void F_Models::rename() {
    const ModelStore::Model* model = current();
    const std::string name = typedName();
    if (model == nullptr || name.empty()) return;
    if (const auto other = store_.find(name); other && *other != model->id) {
        txtName.setError(base::filled(texts_("models.nameTaken"), {name}));
        setFocus(txtName);
        throw base::Refused{txtName.error()};
    }
    store_.rename(model->id, name);
    load(name);
    say("models.renamed", name);
}

void F_Models::remove() {
    const ModelStore::Model* model = current();
    if (model == nullptr || !confirmed("models.delete", model->name)) return;
    if (model->id == saved_) saved_ = 0;
    const std::string name = model->name;
    store_.remove(model->id);
    load("");
    say("models.deleted", name);
}

void F_Models::say(std::string_view key, const std::string& name) {
    status().say(base::filled(texts_(key), {name}));
}

bool F_Models::confirmed(std::string_view key, const std::string& name) {
    return parts::confirmed(display(), base::filled(texts_(key), {name}));
}

} // namespace tellurix::standin
