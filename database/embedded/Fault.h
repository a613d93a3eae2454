#pragma once

#include "common/database.h"

#include <stdexcept>
#include <string>

namespace tellurix::embedded {

/// Trouble found inside the engine, where the whole statement text is not at hand. The connection
/// turns it into a common::DatabaseError that carries the text.
class Fault : public std::runtime_error {
public:
    Fault(common::DatabaseErrorCategory category, const std::string& message,
          std::size_t position = common::DatabaseError::noPosition)
        : std::runtime_error(message), category_(category), position_(position) {}

    common::DatabaseErrorCategory category() const { return category_; }
    std::size_t position() const { return position_; }

private:
    common::DatabaseErrorCategory category_;
    std::size_t position_;
};

[[noreturn]] inline void failSyntax(const std::string& message, std::size_t position) {
    throw Fault(common::DatabaseErrorCategory::syntax, message, position);
}

[[noreturn]] inline void failUnknownName(const std::string& message, std::size_t position) {
    throw Fault(common::DatabaseErrorCategory::unknownName, message, position);
}

[[noreturn]] inline void failConversion(const std::string& message,
                                        std::size_t position = common::DatabaseError::noPosition) {
    throw Fault(common::DatabaseErrorCategory::conversion, message, position);
}

} // namespace tellurix::embedded
