#include "standin/windows_host/HostSession.h"

#include "com/automation/wide.h"
#include "standin/home/F_Start.h"
#include "standin/home/database_file.h"
#include "standin/windows_host/HostObjects.h"

namespace tellurix::windows {

namespace {

Dispatch connected(const HostOptions& options) {
    if (!options.connection.empty()) {
        Dispatch connection = Dispatch::create("ADODB.Connection");
        connection.call(L"Open", {options.connection});
        return connection;
    }
    const std::string file =
        options.database.empty() ? narrow(standin::defaultDatabaseFile().wstring()) : options.database;
    Dispatch connection = Dispatch::create("Tellurix_Loc.EmbeddedConnection");
    connection.call(L"Open", {file});
    return connection;
}

} // namespace

HostSession::HostSession(const HostOptions& options)
    : connection_(connected(options)),
      database_(connection_),
      session_{.connection = &database_,
               .accessLevel = options.accessLevel,
               .homeCurrency = options.homeCurrency,
               .site = options.site,
               .user = options.user,
               .language = options.language},
      services_(display_, session_, catalogue_),
      moduleService_(Dispatch::create("Tellurix_Loc.HostModuleService")) {
    display_.setErrorHandling(&services_.host().errors);
    display_.setLanguage(options.language);
    replaceSettings(options);
    const auto listener = ComPtr<IDispatch>::adopt(
        new NotificationListener{[this](const std::string& code, const std::string& type) {
            std::string unused;
            services_.moduleService().request(session_, code, type, unused, unused);
        }});
    moduleService_.putReference(L"Listener", Dispatch{listener});
}

HostSession::~HostSession() {
    try {
        moduleService_.putReference(L"Listener", Dispatch{});
    } catch (const std::exception&) {
        // The companion library is going anyway, and the listener with it.
    }
    display_.setErrorHandling(nullptr);
}

void HostSession::replaceSettings(const HostOptions& options) {
    if (options.settings.empty()) return;
    // The companion library keeps them as long as this thread has an object of it, such as the one above.
    Dispatch library = Dispatch::create("Tellurix_Loc.NamedSettings");
    for (const auto& [name, value] : options.settings) {
        services_.settings().replace(name, value);
        library.call(L"Replace", {name, value});
    }
}

void HostSession::run() {
    ComContractOpener opener{connection_, session_, services_.mainWindow(), services_.host().locale};
    standin::F_Start start{services_, session_, opener,
                           [this](const std::string& language) { display_.setLanguage(language); },
                           standin::F_Start::Closing::allowed};
    start.Run();
}

} // namespace tellurix::windows
