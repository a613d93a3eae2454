#pragma once

#include "module/host/HostContext.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>

namespace tellurix::host {

/// The values of a screen by their names, in no form but text: they outlive everything else of it.
using ScreenMemory = std::map<std::string, std::string>;

/// A screen that stays alive between calls, whatever its kind.
class Screen {
public:
    virtual ~Screen() = default;

    /// What a later screen of the same name has to find as this one leaves it.
    virtual ScreenMemory memory() const { return {}; }
    /// Takes up where an earlier screen of the same name stopped.
    virtual void resume(const ScreenMemory&) {}
};

/// What is left of a thread's module-wide values when the module's last object there has gone: the host
/// context without the main window, and what the kept screens remember. Plain memory.
struct ModuleMemory {
    HostContext context;
    std::map<std::string, ScreenMemory> screens; ///< by name
};

/// The module-wide values of one thread: the host context and the screens kept for later calls.
/// Nothing else in the module is global, and two threads never share it.
struct ModuleState {
    HostContext context;
    /// By the screen's name; created on first use.
    std::unordered_map<std::string, std::shared_ptr<Screen>> screens;
    /// Of screens that have not been made again yet.
    std::map<std::string, ScreenMemory> remembered;

    /// The kept screen of that name, made by `create` when there is none.
    template <typename S, typename Create>
    S& screen(const std::string& name, const Create& create) {
        return *heldScreen<S>(name, create);
    }
    /// The same for one that a call may release while it is shown.
    template <typename S, typename Create>
    std::shared_ptr<S> heldScreen(const std::string& name, const Create& create) {
        if (const auto kept = screens.find(name); kept != screens.end())
            return std::static_pointer_cast<S>(kept->second);
        std::shared_ptr<S> made = create();
        if (const auto memory = remembered.extract(name)) made->resume(memory.mapped());
        screens.emplace(name, made);
        return made;
    }
    /// The next screen of that name begins anew.
    void release(const std::string& name) {
        screens.erase(name);
        remembered.erase(name);
    }
};

/// The values of the calling thread.
ModuleState& moduleState();

/// Ends the calling thread's values, kept screens included, and answers what is left of them. To be
/// called before a thread ends that has used them. The services that the kept screens were given may go
/// away after it.
ModuleMemory releaseModuleState();

/// Goes on with what was left. To be called before the thread uses the module again.
void restoreModuleState(ModuleMemory memory);

} // namespace tellurix::host
