#pragma once

#include <cstdint>
#include <string>

namespace tellurix::bench {

/// The memory that a process has in use, in kilobytes.
/// @param process its number, or "self"
/// @throws std::runtime_error when it is not running
std::int64_t residentKilobytes(const std::string& process);

} // namespace tellurix::bench
