#include "module/base/database.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace tellurix::base {

namespace {

char lowerAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

/// Column names are ASCII letters in practice; other characters have to be spelled alike.
bool sameName(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    for (std::size_t index = 0; index < left.size(); ++index)
        if (lowerAscii(left[index]) != lowerAscii(right[index])) return false;
    return true;
}

std::string plainNumber(double number) {
    std::array<char, 40> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

[[noreturn]] void failConversion(std::string_view name, std::string_view wanted) {
    throw DatabaseError(DatabaseErrorCategory::conversion,
                        "The field " + std::string(name) + " holds no " + std::string(wanted), {});
}

} // namespace

std::size_t Fields::fieldIndex(std::string_view name) const {
    for (std::size_t index = 0; index < fieldCount(); ++index)
        if (sameName(fieldName(index), name)) return index;
    throw DatabaseError(DatabaseErrorCategory::unknownName, "There is no field " + std::string(name), {});
}

std::int64_t Fields::integer(std::size_t index, std::int64_t ifNull) {
    const Value value = field(index);
    if (std::holds_alternative<Null>(value)) return ifNull;
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* const number = std::get_if<Decimal>(&value)) return number->rounded(0).units();
    if (const auto* const number = std::get_if<double>(&value)) {
        constexpr double limit = 9.2e18;
        if (!(*number > -limit && *number < limit)) failConversion(fieldName(index), "integer that fits 64 bits");
        return std::llround(*number);
    }
    if (const auto* const text = std::get_if<std::string>(&value)) {
        const auto number = Decimal::parse(*text);
        if (number && number->rounded(0) == *number) return number->rounded(0).units();
    }
    failConversion(fieldName(index), "integer");
}

std::string Fields::text(std::size_t index, std::string_view ifNull) {
    Value value = field(index);
    if (auto* const text = std::get_if<std::string>(&value)) return std::move(*text);
    if (std::holds_alternative<Null>(value)) return std::string(ifNull);
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag ? "1" : "0";
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
    if (const auto* const number = std::get_if<Decimal>(&value)) return number->toString();
    if (const auto* const number = std::get_if<double>(&value)) return plainNumber(*number);
    failConversion(fieldName(index), "text");
}

bool Fields::flag(std::string_view name, bool ifNull) {
    const Value value = field(name);
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag;
    if (std::holds_alternative<Null>(value)) return ifNull;
    return integer(name) != 0;
}

namespace {

/// Rows that were read from another recordset, which is closed then.
class RowsInMemory final : public Recordset {
public:
    explicit RowsInMemory(Recordset& rows) {
        // Rows first: for its columns alone a server would be asked once more.
        rows.atEnd();
        for (std::size_t index = 0; index < rows.fieldCount(); ++index)
            columns_.push_back({rows.fieldName(index), rows.fieldType(index), rows.textWidth(index)});
        for (; !rows.atEnd(); rows.moveNext())
            for (std::size_t index = 0; index < columns_.size(); ++index)
                values_.push_back(rows.field(index));
    }

    std::size_t fieldCount() const override { return columns_.size(); }
    std::string fieldName(std::size_t index) const override { return columns_.at(index).name; }
    FieldType fieldType(std::size_t index) const override { return columns_.at(index).type; }
    int textWidth(std::size_t index) const override { return columns_.at(index).textWidth; }

    bool atEnd() override { return start_ == values_.size(); }
    void moveNext() override {
        requireRow();
        start_ += columns_.size();
    }
    Value field(std::size_t index) override {
        requireRow();
        if (index >= columns_.size()) throw std::out_of_range{"There is no such field"};
        return values_[start_ + index];
    }

private:
    struct Column {
        std::string name;
        FieldType type;
        int textWidth;
    };

    void requireRow() {
        if (atEnd()) throw DatabaseError(DatabaseErrorCategory::other, "There is no current row", {});
    }

    std::vector<Column> columns_;
    std::vector<Value> values_; ///< row by row
    std::size_t start_ = 0;     ///< of the current row
};

} // namespace

std::unique_ptr<Recordset> Connection::open(std::string_view query) {
    const ExecuteResult result = execute(query);
    if (!result.rows)
        throw DatabaseError(DatabaseErrorCategory::other, "The statement answers without rows",
                            std::string(query));
    return std::make_unique<RowsInMemory>(*result.rows);
}

} // namespace tellurix::base
