#include "com/component/services/control_services.h"

#include "com/component/controls/BoxObject.h"
#include "com/component/controls/FormObject.h"
#include "com/component/controls/GridObject.h"
#include "com/component/controls/LinesObject.h"
#include "com/component/controls/ListObject.h"

namespace tellurix::windows {

void LateLocalizer::localize(const host::TlxVar& session, ui::Form& form) {
    SessionRecord record(session);
    const Lent<FormObject> lent(form);
    object_.call(session, L"Localize", {record.argument(), lent.argument()});
}

std::string LateLocalizer::text(int number, const host::TlxVar& session) {
    SessionRecord record(session);
    TextInOut text;
    object_.call(session, L"Text", {number, record.argument(), text.argument()});
    return text.value();
}

bool LateLookupValidation::resolve(const host::TlxVar& session, std::int32_t option, const std::string& query,
                                   ui::TextBox& box, ui::TextBox* shown, const std::string& displayColumn,
                                   ui::TextBox* third, const std::string& text) {
    SessionRecord record(session);
    const Lent<BoxObject> lentBox(box);
    std::optional<Lent<BoxObject>> lentShown;
    std::optional<Lent<BoxObject>> lentThird;
    const auto lend = [](std::optional<Lent<BoxObject>>& lent, ui::TextBox* other) {
        if (other == nullptr) return Variant(ComPtr<IDispatch>());
        lent.emplace(*other);
        return lent->argument();
    };
    const Variant second = lend(lentShown, shown);
    return object_
        .call(session, L"Resolve",
              {record.argument(), option, query, lentBox.argument(), second, displayColumn,
               lend(lentThird, third), text})
        .flag();
}

void LateGridLayoutStore::save(const host::TlxVar& session, const ui::Grid& grid, const std::string& key) {
    SessionRecord record(session);
    // The library only reads what it saves; the object over a grid is the same for both ways.
    const Lent<GridObject> lent(const_cast<ui::Grid&>(grid));
    object_.call(session, L"Save", {record.argument(), lent.argument(), key});
}

void LateGridLayoutStore::restore(const host::TlxVar& session, ui::Grid& grid, const std::string& key) {
    SessionRecord record(session);
    const Lent<GridObject> lent(grid);
    object_.call(session, L"Restore", {record.argument(), lent.argument(), key});
}

void LateModelService::fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) {
    SessionRecord record(session);
    const Lent<ListObject> lent(list);
    object_.call(session, L"Fill", {record.argument(), lent.argument(), category});
}

void LateModelService::copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
                            host::CalculationForm& form) {
    SessionRecord record(session);
    const Lent<LinesObject> lent(form);
    object_.call(session, L"Copy", {record.argument(), category, model, lent.argument()});
}

void LateModelService::manage(const host::TlxVar& session, const std::string& category,
                              host::CalculationForm& form, ui::ComboBox& list) {
    SessionRecord record(session);
    const Lent<LinesObject> lentForm(form);
    const Lent<ListObject> lentList(list);
    object_.call(session, L"Manage", {record.argument(), category, lentForm.argument(), lentList.argument()});
}

void LateTypeAhead::bind(const host::TlxVar& session, ui::TextBox& box, const std::string& query,
                         const std::string& displayColumn) {
    SessionRecord record(session);
    const Lent<BoxObject> lent(box);
    object_.call(session, L"Bind", {record.argument(), lent.argument(), query, displayColumn});
}

} // namespace tellurix::windows
