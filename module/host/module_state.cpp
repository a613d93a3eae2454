#include "host/module_state.h"

namespace tellurix::host {

ModuleState& moduleState() {
    thread_local ModuleState state;
    return state;
}

void releaseModuleState() {
    moduleState() = ModuleState{};
}

} // namespace tellurix::host
