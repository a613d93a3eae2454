#pragma once

#include "com/automation/AutomationError.h"
#include "com/component/services/LateServices.h"
#include "com/session/Session.h"
#include "display/win32/Win32Display.h"
#include "module/entry/clsVertrag.h"
#include "module/host/module_state.h"

#include <memory>

namespace tellurix::windows {

/// What one thread of the host has of the module: a display, the host's services and the module-wide
/// values. The thread's COM objects share it, and it goes with the last of them, windows, services
/// and kept screens included.
class Apartment : public std::enable_shared_from_this<Apartment> {
public:
    Apartment();
    ~Apartment();
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

    host::clsVertrag& module() { return module_; }

    /// One operation of the host that shows a screen, with its session and the window that waits.
    class Call {
    public:
        /// @throws AutomationError when the thread is in such an operation already
        Call(Apartment& apartment, const ::TlxVar& record, HWND owner);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

        /// Does the operation. What ends it from outside ends the kept screens, too: they stand in the
        /// middle of whatever their user did, and the next call begins anew.
        /// @param work takes the session
        template <typename Work>
        void perform(const Work& work) {
            try {
                work(session_.values());
            } catch (const CallEnded&) {
                host::releaseModuleState();
                throw;
            }
        }

    private:
        Apartment& apartment_;
        Session session_;
    };

private:
    Win32Display display_;
    LateServices services_{display_};
    host::clsVertrag module_{services_.host()};
    bool called_ = false;
};

} // namespace tellurix::windows
