#pragma once

#include "module/host/HostContext.h"
#include "module/host/services.h"

namespace tellurix::standin {

/// The host's main window as the module asks it; the setting "ARTIKEL" says whether the
/// installation works on articles.
class MainWindow final : public host::HostMainWindow {
public:
    MainWindow(host::NamedSettings& settings, const host::TlxVar& session)
        : settings_(settings), session_(session) {}

    bool IsArtikel() override { return settings_.text(session_, "ARTIKEL") == "1"; }

private:
    host::NamedSettings& settings_;
    const host::TlxVar& session_;
};

} // namespace tellurix::standin
