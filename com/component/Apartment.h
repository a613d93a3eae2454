#pragma once

#include "com/automation/AutomationError.h"
#include "com/component/services/LateServices.h"
#include "com/session/Session.h"
#include "display/win32/Win32Display.h"
#include "module/entry/clsVertrag.h"
#include "module/host/module_state.h"

#include <memory>
#include <vector>

namespace tellurix::windows {

/// What one thread of the host has of the module: a display, the host's services and the module-wide
/// values. The thread's COM objects share it, and it goes with the last of them, windows, services
/// and kept screens included. The plain values alone stay for the thread's next one, as long as the
/// thread lives and the library is loaded.
class Apartment : public std::enable_shared_from_this<Apartment> {
public:
    Apartment();
    ~Apartment();
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

    host::clsVertrag& module() { return module_; }

    enum class Kind { contract, provisionReport, quantityReport };

    /// One operation of the host that shows a screen, with its session and the window that waits.
    class Call {
    public:
        /// @throws AutomationError when the thread shows a screen that this one cannot stand beside: a
        ///         contract stands alone, the two reports beside each other
        Call(Apartment& apartment, Kind kind, std::unique_ptr<HostsRecord> record, HWND owner);
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
                host::moduleState().screens.clear();
                throw;
            }
        }
        /// What follows is no screen any more: other calls may come, on whose return this one goes on.
        void screenIsClosed();

    private:
        void use() const;

        Apartment& apartment_;
        const Kind kind_;
        Session session_;
        HWND owner_;
    };

private:
    bool mayShow(Kind kind) const;

    Win32Display display_;
    LateServices services_{display_};
    host::clsVertrag module_{services_.host()};
    std::vector<const Call*> calls_; ///< that have not returned, the latest last
    std::vector<Kind> shown_;        ///< the screens that are open
};

} // namespace tellurix::windows
