#pragma once

#include "com/automation/DispatchObject.h"
#include "database/ado/constants.h"
#include "module/base/database.h"
#include "standin/ado_objects/ConnectionObject.h"

#include <map>
#include <memory>
#include <string>

namespace tellurix::windows::ado {

/// ADODB.Recordset over a connection's rows. Forward only; opened with a lock type other than read
/// only, its rows can be edited and deleted.
class RecordsetObject final : public DispatchObject {
public:
    /// What a statement answered with. As with ADO, a counted write in front of the query has a closed
    /// recordset of its own, and the rows come with NextRecordset.
    static ComPtr<IDispatch> answering(ComPtr<ConnectionObject> connection, const std::string& statement,
                                       base::ExecuteResult result);

    /// For the fields: the open rows, and the current row's values with what has been assigned to them.
    base::Recordset& rows();
    /// The field of a name, or of a number counted from zero.
    std::size_t fieldIndex(const Variant& key);
    base::Value value(std::size_t field);
    void assign(std::size_t field, base::Value value);
    /// The same by a call with the field's name or number, and the value.
    void assignField(const CallArguments& arguments);

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return sourceName; }

private:
    void open(const CallArguments& arguments);
    void openRows();
    void close(const CallArguments& arguments);
    void moveNext(const CallArguments& arguments);
    void update(const CallArguments& arguments);
    void cancelUpdate(const CallArguments& arguments);
    void remove(const CallArguments& arguments);
    Variant nextRecordset(const CallArguments& arguments);
    Variant fields(const CallArguments& arguments);
    bool atEnd();
    void requireRow();
    base::UpdatableRecordset& editableRows();

    ComPtr<ConnectionObject> connection_;
    std::string statement_;
    std::int32_t cursorType_ = adOpenForwardOnly;
    std::int32_t lockType_ = adLockReadOnly;
    std::unique_ptr<base::Recordset> rows_;
    base::UpdatableRecordset* editable_ = nullptr; ///< the same rows, when they can be edited
    std::unique_ptr<base::Recordset> next_;
    bool hadRow_ = false; ///< whether there has been any row, for BOF
    std::map<std::size_t, base::Value> assigned_;
};

} // namespace tellurix::windows::ado
