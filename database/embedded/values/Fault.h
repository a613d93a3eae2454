#pragma once

#include "module/base/database.h"

#include <stdexcept>
#include <string>

namespace tellurix::embedded {

/// Trouble found inside the engine, where the whole statement text is not at hand. The connection
/// turns it into a base::DatabaseError that carries the text.
class Fault : public std::runtime_error {
public:
    Fault(base::DatabaseErrorCategory category, const std::string& message,
          std::size_t position = base::DatabaseError::noPosition)
        : std::runtime_error(message), category_(category), position_(position) {}

    base::DatabaseErrorCategory category() const { return category_; }
    std::size_t position() const { return position_; }

private:
    base::DatabaseErrorCategory category_;
    std::size_t position_;
};

[[noreturn]] inline void failSyntax(const std::string& message, std::size_t position) {
    throw Fault(base::DatabaseErrorCategory::syntax, message, position);
}

[[noreturn]] inline void failUnknownName(const std::string& message, std::size_t position) {
    throw Fault(base::DatabaseErrorCategory::unknownName, message, position);
}

[[noreturn]] inline void failConversion(const std::string& message,
                                        std::size_t position = base::DatabaseError::noPosition) {
    throw Fault(base::DatabaseErrorCategory::conversion, message, position);
}

} // namespace tellurix::embedded
