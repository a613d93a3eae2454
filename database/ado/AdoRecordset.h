#pragma once

#include "com/automation/Dispatch.h"
#include "module/base/database.h"

#include <map>
#include <string>
#include <vector>

namespace tellurix::windows::ado {

/// The rows of an ADO recordset. Whether they can be edited is a matter of how it was opened.
class AdoRecordset final : public base::UpdatableRecordset {
public:
    /// @param recordset open; @param connection its connection, which knows what went wrong
    /// @throws AutomationError
    AdoRecordset(Dispatch recordset, Dispatch connection, std::string statement);
    ~AdoRecordset() override;
    AdoRecordset(const AdoRecordset&) = delete;
    AdoRecordset& operator=(const AdoRecordset&) = delete;

    std::size_t fieldCount() const override { return fields_.size(); }
    std::string fieldName(std::size_t index) const override { return fields_.at(index).name; }
    base::FieldType fieldType(std::size_t index) const override { return fields_.at(index).type; }
    int textWidth(std::size_t index) const override;

    bool atEnd() override;
    void moveNext() override;
    base::Value field(std::size_t index) override;

    void setField(std::string_view name, base::Value value) override;
    void update() override;
    void remove() override;

private:
    struct Field {
        Dispatch object; ///< follows the recordset from row to row
        std::string name;
        base::FieldType type;
    };

    template <typename Work>
    auto reported(const Work& work);
    void requireRow();
    void leaveEditing();
    Variant written(Field& field, const base::Value& value) const;

    Dispatch recordset_;
    Dispatch connection_;
    std::string statement_;
    std::vector<Field> fields_;
    bool removed_ = false;
    /// By field. They go to ADO in `update` alone: its own MoveNext would write what was not meant to be.
    std::map<std::size_t, base::Value> changes_;
};

} // namespace tellurix::windows::ado
