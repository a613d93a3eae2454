#include "com/session/error_kind.h"

#include "module/base/Refused.h"
#include "module/base/database.h"

#include <array>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr const char* refusedKind = "refused";

using enum base::DatabaseErrorCategory;
constexpr std::array databaseKinds{std::pair{syntax, "syntax"},
                                   std::pair{unknownName, "unknownName"},
                                   std::pair{conversion, "conversion"},
                                   std::pair{constraint, "constraint"},
                                   std::pair{locked, "locked"},
                                   std::pair{connection, "connection"},
                                   std::pair{storageFull, "storageFull"},
                                   std::pair{readOnly, "readOnly"},
                                   std::pair{damaged, "damaged"},
                                   std::pair{missing, "missing"},
                                   std::pair{other, "other"}};

} // namespace

std::string errorKind(const std::exception& error) {
    if (dynamic_cast<const base::Refused*>(&error) != nullptr) return refusedKind;
    if (const auto* database = dynamic_cast<const base::DatabaseError*>(&error))
        for (const auto& [category, word] : databaseKinds)
            if (category == database->category()) return word;
    return {};
}

std::exception_ptr errorOfKind(const std::string& kind, const std::string& message) {
    if (kind == refusedKind) return std::make_exception_ptr(base::Refused(message));
    for (const auto& [category, word] : databaseKinds)
        if (kind == word) return std::make_exception_ptr(base::DatabaseError(category, message, {}));
    return std::make_exception_ptr(std::runtime_error(message));
}

} // namespace tellurix::windows
