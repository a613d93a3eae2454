#pragma once

#include <string>
#include <string_view>

namespace tellurix::bench {

/// A statement's short name: its verb and the first table it works on, "UPDATE VERTRAEGE".
std::string statementName(std::string_view statement);

} // namespace tellurix::bench
