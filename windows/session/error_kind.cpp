#include "session/error_kind.h"

#include "common/StatementText.h"
#include "common/database.h"

#include <array>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr const char* statementKind = "statement";

using enum common::DatabaseErrorCategory;
constexpr std::array databaseKinds{std::pair{syntax, "syntax"},
                                   std::pair{unknownName, "unknownName"},
                                   std::pair{conversion, "conversion"},
                                   std::pair{constraint, "constraint"},
                                   std::pair{locked, "locked"},
                                   std::pair{connection, "connection"},
                                   std::pair{other, "other"}};

} // namespace

std::string errorKind(const std::exception& error) {
    if (dynamic_cast<const common::StatementError*>(&error) != nullptr) return statementKind;
    if (const auto* database = dynamic_cast<const common::DatabaseError*>(&error))
        for (const auto& [category, word] : databaseKinds)
            if (category == database->category()) return word;
    return {};
}

std::exception_ptr errorOfKind(const std::string& kind, const std::string& message) {
    if (kind == statementKind) return std::make_exception_ptr(common::StatementError(message, {}, {}));
    for (const auto& [category, word] : databaseKinds)
        if (kind == word) return std::make_exception_ptr(common::DatabaseError(category, message, {}));
    return std::make_exception_ptr(std::runtime_error(message));
}

} // namespace tellurix::windows
