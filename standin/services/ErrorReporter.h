#pragma once

#include "module/base/database.h"
#include "module/host/TlxVar.h"
#include "module/ui/Display.h"
#include "standin/services/texts/TextCatalogue.h"

namespace tellurix::standin {

/// Shows an error as a message: what happened and what the user can do, in the session's language,
/// and below it the technical message for whoever is asked for help.
class ErrorReporter final : public ui::ErrorHandling {
public:
    ErrorReporter(ui::Display& display, const TextCatalogue& catalogue, const host::TlxVar& session)
        : display_(display), catalogue_(catalogue), session_(session) {}

    void report(const std::exception& error) override;

private:
    std::string text(std::string_view key) const { return catalogue_.text(session_.language, key); }

    ui::Display& display_;
    const TextCatalogue& catalogue_;
    const host::TlxVar& session_;
};

} // namespace tellurix::standin
