#include "com/component/services/control_services.h"

#include "com/component/services/HostClass.h"

#include "com/component/controls/BoxObject.h"
#include "com/component/controls/FormObject.h"
#include "com/component/controls/GridObject.h"
#include "com/component/controls/LinesObject.h"
#include "com/component/controls/ListObject.h"

namespace tellurix::windows {

namespace {

class LateLocalizer final : public host::HostLocalizer {
public:
    void translate(const host::TlxVar& session, ui::Form& form) override {
        SessionRecord record(session);
        const Lent<FormObject> lent(form);
        object_.call(session, L"Localize", {record.argument(), lent.argument()});
    }

    std::string text(int number, const host::TlxVar& session) override {
        SessionRecord record(session);
        TextInOut text;
        object_.call(session, L"Text", {number, record.argument(), text.argument()});
        return text.value();
    }

private:
    HostClass object_{"HostLocalizer"};
};

class LateLookupValidation final : public host::LookupValidation {
public:
    bool resolve(const host::TlxVar& session, std::int32_t option, const std::string& query, ui::TextBox& box,
                 ui::TextBox* shown, const std::string& displayColumn, ui::TextBox* third,
                 const std::string& text) override {
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

private:
    HostClass object_{"LookupValidation"};
};

class LateGridLayoutStore final : public host::GridLayoutStore {
public:
    void save(const host::TlxVar& session, const ui::Grid& grid, const std::string& key) override {
        SessionRecord record(session);
        // The library only reads what it saves; the object over a grid is the same for both ways.
        const Lent<GridObject> lent(const_cast<ui::Grid&>(grid));
        object_.call(session, L"Save", {record.argument(), lent.argument(), key});
    }

    void restore(const host::TlxVar& session, ui::Grid& grid, const std::string& key) override {
        SessionRecord record(session);
        const Lent<GridObject> lent(grid);
        object_.call(session, L"Restore", {record.argument(), lent.argument(), key});
    }

private:
    HostClass object_{"GridLayoutStore"};
};

class LateModelService final : public host::ModelService {
public:
    void fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) override {
        SessionRecord record(session);
        const Lent<ListObject> lent(list);
        object_.call(session, L"Fill", {record.argument(), lent.argument(), category});
    }

    void copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
              host::CalculationForm& form) override {
        SessionRecord record(session);
        const Lent<LinesObject> lent(form);
        object_.call(session, L"Copy", {record.argument(), category, model, lent.argument()});
    }

    void manage(const host::TlxVar& session, const std::string& category, host::CalculationForm& form,
                ui::ComboBox& list) override {
        SessionRecord record(session);
        const Lent<LinesObject> lentForm(form);
        const Lent<ListObject> lentList(list);
        object_.call(session, L"Manage",
                     {record.argument(), category, lentForm.argument(), lentList.argument()});
    }

private:
    HostClass object_{"ModelService"};
};

class LateTypeAhead final : public host::TypeAhead {
public:
    void bind(const host::TlxVar& session, ui::TextBox& box, const std::string& query,
              const std::string& displayColumn) override {
        SessionRecord record(session);
        const Lent<BoxObject> lent(box);
        object_.call(session, L"Bind", {record.argument(), lent.argument(), query, displayColumn});
    }

private:
    HostClass object_{"TypeAhead"};
};

} // namespace

std::unique_ptr<host::HostLocalizer> lateLocalizer() {
    return std::make_unique<LateLocalizer>();
}

std::unique_ptr<host::LookupValidation> lateLookupValidation() {
    return std::make_unique<LateLookupValidation>();
}

std::unique_ptr<host::GridLayoutStore> lateGridLayoutStore() {
    return std::make_unique<LateGridLayoutStore>();
}

std::unique_ptr<host::ModelService> lateModelService() {
    return std::make_unique<LateModelService>();
}

std::unique_ptr<host::TypeAhead> lateTypeAhead() {
    return std::make_unique<LateTypeAhead>();
}

} // namespace tellurix::windows
