#include "standin/workbench/serve.h"

#include "display/browser/network/Server.h"
#include "module/host/module_state.h"
#include "module/parts/M_Common.h"
#include "standin/home/F_Start.h"
#include "standin/home/ModuleOpener.h"
#include "standin/home/schema_step.h"
#include "standin/workbench/DatabaseAccess.h"

#include <pwd.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace tellurix::standin {

namespace {

std::string signedOnUser() {
    const passwd* entry = ::getpwuid(::getuid());
    return entry == nullptr ? std::to_string(::getuid()) : std::string{entry->pw_name};
}

/// The signals that ask the program to stop. They wait from here on until they are asked for, so
/// one that comes right behind the printed address is not lost; threads started later leave them
/// alone.
class StopSignals {
public:
    StopSignals() {
        sigemptyset(&signals_);
        sigaddset(&signals_, SIGINT);
        sigaddset(&signals_, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &signals_, nullptr);
    }
    void wait() const {
        int signal = 0;
        sigwait(&signals_, &signal);
    }

private:
    sigset_t signals_{};
};

/// Lets the process have as many files open as so many sessions need, as far as the system allows that.
void allowOpenFiles(std::size_t sessions) {
    // A session has its socket, its database with log and index, and for a while the page's file requests.
    constexpr rlim_t each = 8;
    constexpr rlim_t besides = 256;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    const rlim_t needed = std::min<rlim_t>(sessions * each + besides, limit.rlim_max);
    if (limit.rlim_cur >= needed) return;
    limit.rlim_cur = needed;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

/// What all sessions share.
struct Workbench {
    explicit Workbench(const CommandLine& commandLine) : line(commandLine), database(commandLine) {
        if (line.user.empty()) line.user = signedOnUser();
    }

    CommandLine line;
    DatabaseAccess database;
    const TextCatalogue catalogue = TextCatalogue::builtIn();
};

/// Errors go to the session's own handling as long as that lives.
class ErrorsOfSession {
public:
    ErrorsOfSession(browser::BrowserDisplay& display, ui::ErrorHandling& errors) : display_(display) {
        display_.setErrorHandling(&errors);
    }
    ~ErrorsOfSession() { display_.setErrorHandling(nullptr); }
    ErrorsOfSession(const ErrorsOfSession&) = delete;
    ErrorsOfSession& operator=(const ErrorsOfSession&) = delete;

private:
    browser::BrowserDisplay& display_;
};

/// The kept screens hold on to the session's services and must be gone before them.
struct ModuleUnloading {
    ~ModuleUnloading() { host::releaseModuleState(); }
};

/// A folder for documents that is named without its place lies beside the database's file, and is made
/// there. On a server there is no such place: then it is as the system reads the name.
void keepDocuments(const std::filesystem::path& besideDatabase, SettingsService& settings,
                   const host::TlxVar& session) {
    constexpr const char* folderSetting = "PATHOFWVOWEBVERTRAEGE";
    const std::string folder = settings.text(session, folderSetting);
    if (besideDatabase.empty() || folder.empty() || folder.find_first_of("/\\") != std::string::npos) return;
    const std::filesystem::path place = besideDatabase / folder;
    // What cannot be made is told when a document is to go there.
    std::error_code ignored;
    std::filesystem::create_directory(place, ignored);
    settings.replace(folderSetting, place.string());
}

void work(Workbench& workbench, browser::BrowserDisplay& display) {
    const auto connection = workbench.database.connect();
    host::TlxVar session{.connection = connection.get(),
                         .accessLevel = workbench.line.accessLevel,
                         .homeCurrency = workbench.line.homeCurrency,
                         .site = workbench.line.site,
                         .user = workbench.line.user,
                         .language = workbench.line.language};
    WorkbenchServices services{display, session, workbench.catalogue};
    for (const auto& [name, value] : workbench.line.settings)
        services.settings().replace(name, value);
    keepDocuments(workbench.database.folder(), services.settings(), session);
    const ErrorsOfSession errors{display, services.host().errors};
    const ModuleUnloading unloading;
    ModuleOpener module{services, session};
    F_Start start{services, session, module,
                  [&display](const std::string& language) { display.setLanguage(language); }};
    start.Run();
}

/// One browser session, from its first screen to its end.
void runSession(Workbench& workbench, browser::BrowserDisplay& display) {
    display.setLanguage(workbench.line.language);
    try {
        work(workbench, display);
    } catch (const std::exception& error) {
        parts::ShowMessage(
            display,
            filled(workbench.catalogue.text(workbench.line.language, "start.failed"), {error.what()}),
            ui::box::critical);
    }
}

/// A database on a server is made by somebody else, and may not be ready for the workbench.
void requireUsable(Workbench& workbench) {
    const auto connection = workbench.database.connect();
    if (!workbench.line.server().empty() && !hasWorkbenchTables(*connection))
        throw std::runtime_error{
            "the database " + workbench.database.name() +
            " has no tables of the workbench; \"tellurix-workbench prepare\" makes them"};
}

} // namespace

int serve(const CommandLine& line, std::ostream& out) {
    const StopSignals signals;
    allowOpenFiles(line.sessions);
    Workbench workbench{line};
    // A database that no session could use is told at once, and not to the first browser.
    requireUsable(workbench);
    if (workbench.database.isReadOnly())
        std::cerr << "tellurix-workbench: warning: the database " << workbench.database.name()
                  << " is read-only; nothing can be saved\n";
    browser::Server server{[&workbench](browser::BrowserDisplay& display) { runSession(workbench, display); },
                           {.port = line.port, .sessions = line.sessions}};
    out << server.address() << std::endl;
    signals.wait();
    server.stop();
    return 0;
}

} // namespace tellurix::standin
