#include "standin/ado_objects/ServerErrors.h"

#include <oledberr.h>

namespace tellurix::windows::ado {

namespace {

class ErrorObject final : public DispatchObject {
public:
    explicit ErrorObject(ServerError error) : error_(std::move(error)) {}

protected:
    const DispatchTable& table() const override {
        static const DispatchTable table =
            DispatchTable()
                .method<ErrorObject>(L"Description",
                                     [](ErrorObject& self, const CallArguments&) -> Variant {
                                         return self.error_.description;
                                     })
                .method<ErrorObject>(L"Number",
                                     [](ErrorObject& self, const CallArguments&) -> Variant {
                                         return std::int32_t{self.error_.number};
                                     })
                .method<ErrorObject>(L"Source",
                                     [](ErrorObject&, const CallArguments&) -> Variant { return sourceName; })
                .method<ErrorObject>(
                    L"SQLState",
                    [](ErrorObject& self, const CallArguments&) -> Variant { return self.error_.state; })
                .method<ErrorObject>(L"NativeError",
                                     [](ErrorObject&, const CallArguments&) -> Variant { return 0; })
                .defaultMember(L"Description");
        return table;
    }
    const char* source() const override { return sourceName; }

private:
    ServerError error_;
};

class ErrorsObject final : public DispatchObject {
public:
    explicit ErrorsObject(std::shared_ptr<ServerErrors> errors) : errors_(std::move(errors)) {}

protected:
    const DispatchTable& table() const override {
        static const DispatchTable table =
            DispatchTable()
                .method<ErrorsObject>(L"Count",
                                      [](ErrorsObject& self, const CallArguments&) -> Variant {
                                          return static_cast<std::int32_t>(self.errors_->size());
                                      })
                .method<ErrorsObject>(L"Item", &ErrorsObject::item)
                .method<ErrorsObject>(L"Clear",
                                      [](ErrorsObject& self, const CallArguments&) { self.errors_->clear(); })
                .defaultMember(L"Item")
                .enumerable();
        return table;
    }
    const char* source() const override { return sourceName; }

private:
    Variant item(const CallArguments& arguments) {
        const std::int32_t index = arguments[0].integer();
        if (index < 0 || static_cast<std::size_t>(index) >= errors_->size()) fail(AdoError::noSuchItem);
        return ComPtr<IDispatch>::adopt(new ErrorObject((*errors_)[static_cast<std::size_t>(index)]));
    }

    std::shared_ptr<ServerErrors> errors_;
};

} // namespace

ServerError serverErrorOf(const base::DatabaseError& error) {
    using Category = base::DatabaseErrorCategory;
    switch (error.category()) {
    case Category::syntax:
        return {DB_E_ERRORSINCOMMAND, error.what(), "42000"};
    case Category::unknownName:
        return {DB_E_NOTABLE, error.what(), "42S02"};
    case Category::conversion:
        return {DB_E_CANTCONVERTVALUE, error.what(), "22018"};
    case Category::constraint:
        return {DB_E_INTEGRITYVIOLATION, error.what(), "23000"};
    case Category::locked:
        return {DB_E_ABORTLIMITREACHED, error.what(), "HYT00"};
    case Category::connection:
        return {E_FAIL, error.what(), "08001"};
    case Category::storageFull:
    case Category::readOnly:
    case Category::damaged:
    case Category::missing:
    case Category::other:
        break;
    }
    return {E_FAIL, error.what(), "HY000"};
}

ComPtr<IDispatch> errorsObject(std::shared_ptr<ServerErrors> errors) {
    return ComPtr<IDispatch>::adopt(new ErrorsObject(std::move(errors)));
}

void fail(AdoError error) {
    const auto text = [&] {
        switch (error) {
        case AdoError::noCurrentRow:
            return "There is no current row: either BOF or EOF is true, or the row has been deleted";
        case AdoError::notAllowedNow:
            return "This is not allowed while a row is being edited";
        case AdoError::notSupported:
            return "The recordset was not opened for editing";
        case AdoError::noSuchItem:
            return "There is no item of that name or number";
        case AdoError::closed:
            return "This is not allowed when the object is closed";
        case AdoError::alreadyOpen:
            return "This is not allowed when the object is open";
        case AdoError::noConnection:
            return "There is no open connection";
        }
        return "";
    };
    throw AutomationError(MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, static_cast<int>(error)), text(),
                          sourceName);
}

} // namespace tellurix::windows::ado
