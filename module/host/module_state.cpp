#include "module/host/module_state.h"

#include <memory>
#include <utility>

namespace tellurix::host {

namespace {

/// A plain pointer, as a value with a destructor would tie the library that it stands in to the end of
/// the thread: the host unloads the module before.
thread_local ModuleState* stateOfThread = nullptr;

} // namespace

ModuleState& moduleState() {
    if (stateOfThread == nullptr) stateOfThread = std::make_unique<ModuleState>().release();
    return *stateOfThread;
}

ModuleMemory releaseModuleState() {
    const std::unique_ptr<ModuleState> state(std::exchange(stateOfThread, nullptr));
    if (!state) return {};
    ModuleMemory left{std::move(state->context), std::move(state->remembered)};
    left.context.F_Main.reset();
    for (const auto& [name, screen] : state->screens)
        if (ScreenMemory memory = screen->memory(); !memory.empty()) left.screens[name] = std::move(memory);
    return left;
}

void restoreModuleState(ModuleMemory memory) {
    ModuleState& state = moduleState();
    state.context = std::move(memory.context);
    state.remembered = std::move(memory.screens);
}

} // namespace tellurix::host
