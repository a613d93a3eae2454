#pragma once

#include "com/automation/CallArguments.h"
#include "com/automation/Dispatch.h"
#include "com/session/Session.h"
#include "display/win32/Win32Display.h"
#include "standin/services/WorkbenchServices.h"

#include <memory>

namespace tellurix::windows {

/// The workbench's services for one thread of the host, with a display of their own. The thread's
/// service objects share it.
class Workplace : public std::enable_shared_from_this<Workplace> {
public:
    Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    /// Told of every request of the module; Nothing for none.
    Dispatch listener;

    /// Lets a value of a named setting count instead of the one in the database.
    void replaceSetting(const std::string& name, const std::string& value) {
        services_.settings().replace(name, value);
    }

    /// One call of a service, with the session of its caller. What it shows stands above the window
    /// that the user works in.
    class Call {
    public:
        /// @param record the session record among the arguments
        Call(Workplace& workplace, const CallArguments& arguments, std::size_t record);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

        const host::TlxVar& session() const { return session_.values(); }
        host::HostServices& services() { return workplace_.services_.host(); }
        standin::WorkbenchServices& workbench() { return workplace_.services_; }

    private:
        Workplace& workplace_;
        Session session_;
        host::TlxVar callers_; ///< of a call that this one interrupts
    };

private:
    void notify(const standin::Notification& notification);

    Win32Display display_;
    host::TlxVar session_;
    standin::TextCatalogue catalogue_ = standin::TextCatalogue::builtIn();
    standin::WorkbenchServices services_{display_, session_, catalogue_};
};

} // namespace tellurix::windows
