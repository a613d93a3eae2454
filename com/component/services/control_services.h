#pragma once

#include "module/host/services.h"

#include <memory>

namespace tellurix::windows {

/// The host's services that work on controls and forms, each by its class of the host's library. The
/// library gets them as objects for the time of the call.

std::unique_ptr<host::HostLocalizer> lateLocalizer();
std::unique_ptr<host::LookupValidation> lateLookupValidation();
std::unique_ptr<host::GridLayoutStore> lateGridLayoutStore();
std::unique_ptr<host::ModelService> lateModelService();
std::unique_ptr<host::TypeAhead> lateTypeAhead();

} // namespace tellurix::windows
