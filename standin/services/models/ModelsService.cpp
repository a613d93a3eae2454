#include "standin/services/models/ModelsService.h"

#include "module/base/Refused.h"
#include "standin/services/models/F_Models.h"
#include "standin/services/models/ModelStore.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

std::vector<std::string> statistics(base::Connection& connection) {
    std::vector<std::string> texts;
    auto row = connection.open("SELECT TEXT FROM STATISTIK WHERE TEXT IS NOT NULL ORDER BY STATISTIK_ID");
    for (; !row->atEnd(); row->moveNext())
        texts.push_back(row->text("TEXT"));
    return texts;
}

} // namespace

void ModelsService::fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) {
    list.clear();
    for (const ModelStore::Model& model : ModelStore{*session.connection, category}.models())
        list.add(model.name, model.id);
}

void ModelsService::copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
                         host::CalculationForm& form) {
    ModelStore store{*session.connection, category};
    const auto models = store.models();
    if (std::ranges::find(models, model, &ModelStore::Model::id) == models.end())
        throw base::Refused{localizer_.named("models.gone", session)};
    form.setLines(store.lines(model));
}

void ModelsService::manage(const host::TlxVar& session, const std::string& category,
                           host::CalculationForm& form, ui::ComboBox& list) {
    const std::string current = list.selectedText();
    F_Models dialog{dialogs_.display(),
                    ModelStore{*session.connection, category},
                    statistics(*session.connection),
                    form.lines(),
                    [&](std::string_view key) { return localizer_.named(key, session); },
                    current};
    dialogs_.show(session, dialog);
    fill(session, list, category);
    list.selectItemData(dialog.saved());
}

} // namespace tellurix::standin
