#include "database/ado/AdoRecordset.h"

#include "database/ado/constants.h"
#include "database/ado/errors.h"
#include "database/ado/values.h"

#include <utility>

namespace tellurix::windows::ado {

AdoRecordset::AdoRecordset(Dispatch recordset, Dispatch connection, std::string statement)
    : recordset_(std::move(recordset)), connection_(std::move(connection)), statement_(std::move(statement)) {
    Dispatch fields(recordset_.get(L"Fields"));
    const std::int32_t count = fields.get(L"Count").integer();
    fields_.reserve(static_cast<std::size_t>(count));
    for (std::int32_t index = 0; index < count; ++index) {
        Dispatch field(fields.get(L"Item", {index}));
        std::string name = field.get(L"Name").text();
        const base::FieldType type = fieldTypeOf(field.get(L"Type").integer());
        fields_.push_back({std::move(field), std::move(name), type});
    }
}

AdoRecordset::~AdoRecordset() {
    try {
        recordset_.call(L"Close");
    } catch (const std::exception&) {
        // It is let go in any case.
    }
}

int AdoRecordset::textWidth(std::size_t index) const {
    if (fieldType(index) != base::FieldType::text) return 0;
    // Texts without a limit have the largest size that a text can have.
    constexpr std::int32_t longestLimited = 8000;
    Dispatch field = fields_.at(index).object;
    const std::int32_t size = field.get(L"DefinedSize").integer();
    return size > longestLimited ? 0 : size;
}

template <typename Work>
auto AdoRecordset::reported(const Work& work) {
    return ado::reported(connection_, statement_, work);
}

bool AdoRecordset::atEnd() {
    return reported([&] { return recordset_.get(L"EOF").flag(); });
}

void AdoRecordset::requireRow() {
    if (removed_ || atEnd())
        throw base::DatabaseError(base::DatabaseErrorCategory::other, "There is no current row", statement_);
}

void AdoRecordset::moveNext() {
    if (atEnd()) requireRow();
    changes_.clear();
    reported([&] { recordset_.call(L"MoveNext"); });
    removed_ = false;
}

base::Value AdoRecordset::field(std::size_t index) {
    Field& field = fields_.at(index);
    const auto read = [&] { return valueOf(field.object.get(L"Value"), field.type); };
    try {
        return read();
    } catch (const AutomationError&) {
        requireRow();
        return reported(read);
    }
}

void AdoRecordset::setField(std::string_view name, base::Value value) {
    requireRow();
    changes_[fieldIndex(name)] = std::move(value);
}

/// Numbers are brought into the column's own form here: what ADO makes of a number in a text depends
/// on the user's language, and it refuses decimals that the column has no room for.
Variant AdoRecordset::written(Field& field, const base::Value& value) const {
    if (field.type != base::FieldType::decimal && field.type != base::FieldType::floating)
        return variantOf(value, field.type);
    base::Value number = value;
    if (const auto* text = std::get_if<std::string>(&value))
        if (const auto parsed = base::Decimal::parse(*text)) number = *parsed;
    if (const auto* decimal = std::get_if<base::Decimal>(&number)) {
        const std::int32_t scale = field.object.get(L"NumericScale").integer();
        if (scale < decimal->scale()) number = decimal->rounded(scale);
    }
    return variantOf(number, field.type);
}

void AdoRecordset::update() {
    requireRow();
    if (changes_.empty()) return;
    forgetErrors(connection_);
    try {
        reported([&] {
            for (const auto& [index, value] : changes_)
                fields_[index].object.put(L"Value", written(fields_[index], value));
            recordset_.call(L"Update");
        });
    } catch (const base::DatabaseError&) {
        leaveEditing();
        throw;
    }
    changes_.clear();
}

/// Otherwise moving on would try to write the row again.
void AdoRecordset::leaveEditing() {
    try {
        recordset_.call(L"CancelUpdate");
    } catch (const AutomationError&) {
        // The error that led here says more.
    }
}

void AdoRecordset::remove() {
    requireRow();
    forgetErrors(connection_);
    reported([&] { recordset_.call(L"Delete", {adAffectCurrent}); });
    removed_ = true;
    changes_.clear();
}

} // namespace tellurix::windows::ado
