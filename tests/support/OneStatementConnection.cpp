#include "tests/support/OneStatementConnection.h"

#include <utility>

namespace tellurix::tests {

namespace {

/// Rows that count among the open ones as long as they are there.
template <typename Rows>
class Counted : public Rows {
public:
    Counted(std::unique_ptr<Rows> rows, std::shared_ptr<std::size_t> open)
        : rows_(std::move(rows)), open_(std::move(open)) {
        ++*open_;
    }
    ~Counted() override { --*open_; }

    std::size_t fieldCount() const override { return rows_->fieldCount(); }
    std::string fieldName(std::size_t index) const override { return rows_->fieldName(index); }
    base::FieldType fieldType(std::size_t index) const override { return rows_->fieldType(index); }
    int textWidth(std::size_t index) const override { return rows_->textWidth(index); }
    bool atEnd() override { return rows_->atEnd(); }
    void moveNext() override { rows_->moveNext(); }
    base::Value field(std::size_t index) override { return rows_->field(index); }

protected:
    Rows& rows() { return *rows_; }

private:
    std::unique_ptr<Rows> rows_;
    std::shared_ptr<std::size_t> open_;
};

class CountedUpdatable final : public Counted<base::UpdatableRecordset> {
public:
    using Counted::Counted;

    void setField(std::string_view name, base::Value value) override {
        rows().setField(name, std::move(value));
    }
    void update() override { rows().update(); }
    void remove() override { rows().remove(); }
};

} // namespace

void OneStatementConnection::requireNoneOpen(std::string_view statement) const {
    if (*open_ == 0) return;
    throw base::DatabaseError{base::DatabaseErrorCategory::connection,
                              "The connection is busy with the rows of another statement",
                              std::string{statement}};
}

base::ExecuteResult OneStatementConnection::execute(std::string_view statement) {
    requireNoneOpen(statement);
    base::ExecuteResult result = inner_.execute(statement);
    if (result.rows) result.rows = std::make_unique<Counted<base::Recordset>>(std::move(result.rows), open_);
    return result;
}

std::unique_ptr<base::UpdatableRecordset> OneStatementConnection::openUpdatable(std::string_view query) {
    requireNoneOpen(query);
    return std::make_unique<CountedUpdatable>(inner_.openUpdatable(query), open_);
}

} // namespace tellurix::tests
