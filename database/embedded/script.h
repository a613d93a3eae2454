#pragma once

#include "module/base/database.h"

#include <string_view>
#include <vector>

namespace tellurix::embedded {

/// Cuts the text of a file into its batches: they end at lines that hold only GO. Batches without
/// any character but blanks are left out. The parts point into `text`.
std::vector<std::string_view> splitBatches(std::string_view text);

/// Runs every batch of a file's text, in order.
/// @throws base::DatabaseError of the first batch that fails
void runScript(base::Connection& connection, std::string_view text);

} // namespace tellurix::embedded
