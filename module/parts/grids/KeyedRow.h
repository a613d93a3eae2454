#pragma once

#include "module/base/database.h"
#include "module/ui/controls/Control.h"

#include <limits>
#include <memory>
#include <vector>

namespace tellurix::parts {

/// One row of a query as it was read, known by the key in one of its fields.
class KeyedRow final : public base::Fields {
public:
    /// A row that has nothing but its key yet.
    explicit KeyedRow(std::int64_t key);
    /// The row that a recordset stands on.
    KeyedRow(base::Recordset& row, std::string_view keyField);

    std::int64_t key() const { return key_; }

    std::size_t fieldCount() const override { return names_->size(); }
    std::string fieldName(std::size_t index) const override { return (*names_)[index]; }
    using Fields::field;
    base::Value field(std::size_t index) override { return values_[index]; }
    /// Gives a field another value, as when the user has typed it.
    void set(std::string_view name, base::Value value);
    /// The value of a field as it was read, whatever was typed over it.
    const base::Value& asRead(std::string_view name) const;
    /// Takes over what the database has by now: the field does not count as touched any more, but as somebody
    /// else's.
    void refresh(std::string_view name, base::Value value);
    /// As if the field had been read so; what was typed over it stays.
    void rebase(std::string_view name, base::Value value);
    /// Whether a field has been set since the row was read, to whatever value.
    bool touched(std::string_view name) const;
    bool touched() const;
    /// Who has changed a field since the row was read.
    ui::ChangedBy changedBy(std::string_view name) const;
    void setChangedBy(std::string_view name, ui::ChangedBy who);
    /// The values are those of the database now: nothing counts as touched any more.
    void settle();

private:
    friend class KeyedRows;
    using Names = std::shared_ptr<const std::vector<std::string>>;
    KeyedRow(base::Recordset& row, std::int64_t key, Names names);

    std::int64_t key_;
    Names names_; ///< shared by the rows of one query
    std::vector<base::Value> values_;
    std::vector<base::Value> read_;        ///< the same as they were read; empty while nothing was set
    std::vector<ui::ChangedBy> changedBy_; ///< beside the values
};

/// The rows of one query.
class KeyedRows {
public:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    /// Reads at most `limit` rows. However many there are, no more than that is fetched.
    static KeyedRows read(base::Connection& connection, std::string_view query, std::string_view keyField,
                          std::size_t limit = unlimited);

    std::vector<KeyedRow> rows;
    bool more = false; ///< there are more than were read
};

} // namespace tellurix::parts
