#pragma once

#include "module/host/services.h"

#include <memory>

namespace tellurix::windows {

/// The host's services that answer or write values, each by its class of the host's library.

std::unique_ptr<host::HostDataAccess> lateDataAccess();
std::unique_ptr<host::HostModuleService> lateModuleService();
std::unique_ptr<host::PersonQueryBuilder> latePersonQuery();
std::unique_ptr<host::DateConverter> lateDateConverter();
std::unique_ptr<host::NamedSettings> lateSettings();
std::unique_ptr<host::ColumnWidth> lateColumnWidth();
std::unique_ptr<host::ColumnUpdate> lateColumnUpdate();
std::unique_ptr<host::SelectionTranslator> lateSelectionTranslator();

} // namespace tellurix::windows
