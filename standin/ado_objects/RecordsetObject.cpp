#include "standin/ado_objects/RecordsetObject.h"

#include "com/automation/Dispatch.h"
#include "database/ado/values.h"
#include "module/base/text.h"
#include "standin/ado_objects/FieldObjects.h"

#include <utility>

namespace tellurix::windows::ado {

ComPtr<IDispatch> RecordsetObject::answering(ComPtr<ConnectionObject> connection,
                                             const std::string& statement, base::ExecuteResult result) {
    const auto recordset = ComPtr<RecordsetObject>::adopt(new RecordsetObject());
    recordset->connection_ = std::move(connection);
    recordset->statement_ = statement;
    (result.rowsAffected < 0 ? recordset->rows_ : recordset->next_) = std::move(result.rows);
    return ComPtr<IDispatch>(recordset.get());
}

const DispatchTable& RecordsetObject::table() const {
    using Self = RecordsetObject;
    static const DispatchTable table =
        DispatchTable()
            .method<Self>(L"Open", &Self::open)
            .method<Self>(L"Close", &Self::close)
            .method<Self>(L"MoveNext", &Self::moveNext)
            .method<Self>(L"MoveFirst",
                          [](Self& self, const CallArguments&) {
                              self.rows();
                              self.openRows();
                          })
            .method<Self>(L"Update", &Self::update)
            .method<Self>(L"CancelUpdate", &Self::cancelUpdate)
            .method<Self>(L"Delete", &Self::remove)
            .method<Self>(L"NextRecordset", &Self::nextRecordset)
            .property<Self>(L"Fields", &Self::fields, &Self::assignField)
            .method<Self>(L"EOF", [](Self& self, const CallArguments&) -> Variant { return self.atEnd(); })
            .method<Self>(
                L"BOF",
                [](Self& self, const CallArguments&) -> Variant { return self.atEnd() && !self.hadRow_; })
            .method<Self>(L"State",
                          [](Self& self, const CallArguments&) -> Variant {
                              return self.rows_ ? adStateOpen : adStateClosed;
                          })
            .method<Self>(L"EditMode",
                          [](Self& self, const CallArguments&) -> Variant {
                              return self.assigned_.empty() ? adEditNone : adEditInProgress;
                          })
            .property<Self>(
                L"Source", [](Self& self, const CallArguments&) -> Variant { return self.statement_; },
                [](Self& self, const CallArguments& arguments) { self.statement_ = arguments[0].text(); })
            .property<Self>(
                L"ActiveConnection",
                [](Self& self, const CallArguments&) -> Variant {
                    return ComPtr<IDispatch>(self.connection_.get());
                },
                [](Self& self, const CallArguments& arguments) {
                    self.connection_ = ConnectionObject::in(arguments[0]);
                })
            .property<Self>(
                L"CursorType", [](Self& self, const CallArguments&) -> Variant { return self.cursorType_; },
                [](Self& self, const CallArguments& arguments) { self.cursorType_ = arguments[0].integer(); })
            .property<Self>(
                L"LockType", [](Self& self, const CallArguments&) -> Variant { return self.lockType_; },
                [](Self& self, const CallArguments& arguments) { self.lockType_ = arguments[0].integer(); })
            .defaultMember(L"Fields");
    return table;
}

base::Recordset& RecordsetObject::rows() {
    if (!rows_) fail(AdoError::closed);
    return *rows_;
}

base::UpdatableRecordset& RecordsetObject::editableRows() {
    requireRow();
    if (editable_ == nullptr) fail(AdoError::notSupported);
    return *editable_;
}

/// What scripts write as `rows("NAME") = value`.
void RecordsetObject::assignField(const CallArguments& arguments) {
    const std::size_t field = fieldIndex(arguments[0]);
    assign(field, valueOf(arguments[1], rows().fieldType(field)));
}

bool RecordsetObject::atEnd() {
    base::Recordset& rows = this->rows();
    const bool atEnd = connection_->onDatabase([&] { return rows.atEnd(); });
    hadRow_ = hadRow_ || !atEnd;
    return atEnd;
}

void RecordsetObject::requireRow() {
    if (atEnd()) fail(AdoError::noCurrentRow);
}

std::size_t RecordsetObject::fieldIndex(const Variant& key) {
    const base::Recordset& fields = rows();
    if (key.vt != VT_BSTR) {
        const std::int32_t index = key.integer();
        if (index < 0 || static_cast<std::size_t>(index) >= fields.fieldCount()) fail(AdoError::noSuchItem);
        return static_cast<std::size_t>(index);
    }
    const std::string name = base::toUpper(key.text());
    for (std::size_t index = 0; index < fields.fieldCount(); ++index)
        if (base::toUpper(fields.fieldName(index)) == name) return index;
    fail(AdoError::noSuchItem);
}

base::Value RecordsetObject::value(std::size_t field) {
    requireRow();
    const auto assigned = assigned_.find(field);
    if (assigned != assigned_.end()) return assigned->second;
    return connection_->onDatabase([&] { return rows_->field(field); });
}

void RecordsetObject::assign(std::size_t field, base::Value value) {
    editableRows();
    assigned_[field] = std::move(value);
}

/// Source, ActiveConnection, CursorType, LockType, Options: what is left out has been assigned before.
void RecordsetObject::open(const CallArguments& arguments) {
    if (rows_) fail(AdoError::alreadyOpen);
    if (arguments.has(0)) statement_ = arguments[0].text();
    if (arguments.has(1)) connection_ = ConnectionObject::in(arguments[1]);
    if (arguments.has(2)) cursorType_ = arguments[2].integer();
    if (arguments.has(3)) lockType_ = arguments[3].integer();
    if (!connection_) fail(AdoError::noConnection);
    openRows();
}

void RecordsetObject::openRows() {
    base::Connection& connection = connection_->connection();
    assigned_.clear();
    hadRow_ = false;
    editable_ = nullptr;
    connection_->onDatabase([&] {
        if (lockType_ == adLockReadOnly) {
            rows_ = connection.execute(statement_).rows;
            return;
        }
        auto editable = connection.openUpdatable(statement_);
        editable_ = editable.get();
        rows_ = std::move(editable);
    });
}

void RecordsetObject::close(const CallArguments&) {
    rows();
    if (!assigned_.empty()) fail(AdoError::notAllowedNow);
    editable_ = nullptr;
    rows_.reset();
}

/// A row in editing is written first.
void RecordsetObject::moveNext(const CallArguments& arguments) {
    requireRow();
    if (!assigned_.empty()) update(arguments);
    connection_->onDatabase([&] { rows_->moveNext(); });
}

void RecordsetObject::update(const CallArguments&) {
    base::UpdatableRecordset& row = editableRows();
    connection_->onDatabase([&] {
        for (const auto& [field, value] : assigned_)
            row.setField(row.fieldName(field), value);
        row.update();
    });
    assigned_.clear();
}

void RecordsetObject::cancelUpdate(const CallArguments&) {
    rows();
    assigned_.clear();
}

void RecordsetObject::remove(const CallArguments&) {
    base::UpdatableRecordset& row = editableRows();
    connection_->onDatabase([&] { row.remove(); });
    assigned_.clear();
}

Variant RecordsetObject::nextRecordset(const CallArguments& arguments) {
    editable_ = nullptr;
    rows_.reset();
    if (arguments.has(0)) arguments.write(0, -1);
    if (!next_) return ComPtr<IDispatch>();
    return answering(connection_, statement_, {std::move(next_)});
}

/// All of them, or the one that is named in the call.
Variant RecordsetObject::fields(const CallArguments& arguments) {
    rows();
    if (arguments.count() == 0) return fieldsObject(ComPtr(this));
    return fieldObject(ComPtr(this), fieldIndex(arguments[0]));
}

} // namespace tellurix::windows::ado
