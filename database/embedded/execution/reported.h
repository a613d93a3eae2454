#pragma once

#include "database/embedded/values/Fault.h"

#include <string>
#include <string_view>

namespace tellurix::embedded {

/// Runs `work` and turns a fault of the engine into the error that the database port promises.
template <typename Work>
auto reported(std::string_view statement, const Work& work) -> decltype(work()) {
    try {
        return work();
    } catch (const Fault& fault) {
        throw base::DatabaseError(fault.category(), fault.what(), std::string(statement), fault.position());
    }
}

} // namespace tellurix::embedded
