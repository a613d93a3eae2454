#include "standin/ado_objects/FieldObjects.h"

#include "database/ado/constants.h"
#include "database/ado/values.h"

#include <utility>

namespace tellurix::windows::ado {

namespace {

class FieldObject final : public DispatchObject {
public:
    FieldObject(ComPtr<RecordsetObject> recordset, std::size_t index)
        : recordset_(std::move(recordset)), index_(index) {}

protected:
    const DispatchTable& table() const override {
        using Self = FieldObject;
        static const DispatchTable table =
            DispatchTable()
                .property<Self>(L"Value", &Self::value, &Self::setValue)
                .method<Self>(L"Name",
                              [](Self& self, const CallArguments&) -> Variant {
                                  return self.recordset_->rows().fieldName(self.index_);
                              })
                .method<Self>(
                    L"Type",
                    [](Self& self, const CallArguments&) -> Variant { return dataTypeOf(self.type()); })
                .method<Self>(L"DefinedSize", &Self::definedSize)
                .method<Self>(L"NumericScale", &Self::numericScale)
                .defaultMember(L"Value");
        return table;
    }
    const char* source() const override { return sourceName; }

private:
    base::FieldType type() { return recordset_->rows().fieldType(index_); }

    Variant value(const CallArguments&) { return variantOf(recordset_->value(index_), type()); }
    void setValue(const CallArguments& arguments) {
        recordset_->assign(index_, valueOf(arguments[0], type()));
    }

    /// Of a text; nobody asks for that of other values.
    Variant definedSize(const CallArguments&) {
        constexpr std::int32_t unlimited = 0x3fffffff;
        const int width = recordset_->rows().textWidth(index_);
        return width == 0 ? unlimited : std::int32_t{width};
    }

    /// The port tells a column's scale by its values alone.
    Variant numericScale(const CallArguments&) {
        if (type() != base::FieldType::decimal) return noScale;
        const base::Value value = recordset_->value(index_);
        const auto* number = std::get_if<base::Decimal>(&value);
        return number == nullptr ? noScale : number->scale();
    }

    ComPtr<RecordsetObject> recordset_;
    std::size_t index_;
};

class FieldsObject final : public DispatchObject {
public:
    explicit FieldsObject(ComPtr<RecordsetObject> recordset) : recordset_(std::move(recordset)) {}

protected:
    const DispatchTable& table() const override {
        using Self = FieldsObject;
        static const DispatchTable table =
            DispatchTable()
                .property<Self>(
                    L"Item",
                    [](Self& self, const CallArguments& arguments) -> Variant {
                        return fieldObject(self.recordset_, self.recordset_->fieldIndex(arguments[0]));
                    },
                    [](Self& self, const CallArguments& arguments) {
                        self.recordset_->assignField(arguments);
                    })
                .method<Self>(L"Count",
                              [](Self& self, const CallArguments&) -> Variant {
                                  return static_cast<std::int32_t>(self.recordset_->rows().fieldCount());
                              })
                .defaultMember(L"Item")
                .enumerable();
        return table;
    }
    const char* source() const override { return sourceName; }

private:
    ComPtr<RecordsetObject> recordset_;
};

} // namespace

ComPtr<IDispatch> fieldsObject(ComPtr<RecordsetObject> recordset) {
    return ComPtr<IDispatch>::adopt(new FieldsObject(std::move(recordset)));
}

ComPtr<IDispatch> fieldObject(ComPtr<RecordsetObject> recordset, std::size_t index) {
    return ComPtr<IDispatch>::adopt(new FieldObject(std::move(recordset), index));
}

} // namespace tellurix::windows::ado
