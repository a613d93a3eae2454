#include "module/host/module_state.h"

#include <utility>

namespace tellurix::host {

namespace {

/// A plain pointer, as a value with a destructor would tie the library that it stands in to the end of
/// the thread: the host unloads the module before.
thread_local ModuleState* stateOfThread = nullptr;

} // namespace

ModuleState& moduleState() {
    if (stateOfThread == nullptr) stateOfThread = new ModuleState;
    return *stateOfThread;
}

void releaseModuleState() {
    delete std::exchange(stateOfThread, nullptr);
}

} // namespace tellurix::host
