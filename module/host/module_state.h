#pragma once

#include "module/host/HostContext.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace tellurix::host {

/// A screen that stays alive between calls, whatever its kind.
class Screen {
public:
    virtual ~Screen() = default;
};

/// The module-wide values of one thread: the host context and the screens kept for later calls.
/// Nothing else in the module is global, and two threads never share it.
struct ModuleState {
    HostContext context;
    /// By the screen's name; created on first use.
    std::unordered_map<std::string, std::unique_ptr<Screen>> screens;

    /// The kept screen of that name, made by `create` when there is none.
    template <typename S, typename Create>
    S& screen(const std::string& name, const Create& create) {
        std::unique_ptr<Screen>& kept = screens[name];
        if (!kept) kept = create();
        return static_cast<S&>(*kept);
    }
    void release(const std::string& name) { screens.erase(name); }
};

/// The values of the calling thread.
ModuleState& moduleState();

/// Forgets the calling thread's values: what unloading the module from an apartment does. To be called
/// before a thread ends that has used them. The services that the kept screens were given may go away
/// after it.
void releaseModuleState();

} // namespace tellurix::host
