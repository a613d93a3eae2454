#pragma once

#include "module/host/services.h"

#include <memory>

namespace tellurix::windows {

/// The host's services that ask the user, each by its class of the host's library.

std::unique_ptr<host::HostPersonalPicker> latePersonalPicker();
std::unique_ptr<host::ListPicker> lateListPicker();
std::unique_ptr<host::KeyedLists> lateKeyedLists();
std::unique_ptr<host::SelectionDialog> lateSelectionDialog();
std::unique_ptr<host::CatalogueSelection> lateCatalogueSelection();
std::unique_ptr<host::LookupGridDialog> lateLookupGridDialog();
std::unique_ptr<host::MultiSelectionList> lateMultiSelection();

} // namespace tellurix::windows
