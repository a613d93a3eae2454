#pragma once

#include "module/base/Locale.h"
#include "module/host/document_services.h"
#include "module/ui/Display.h"

namespace tellurix::standin {

/// Makes a spreadsheet of a table and hands it to the user.
class SpreadsheetService final : public host::SpreadsheetExport {
public:
    /// @param locale by which the numbers of a table are written
    SpreadsheetService(ui::Display& display, const base::Locale& locale)
        : display_(display), locale_(locale) {}

    /// @throws std::invalid_argument when the parameters cannot be read
    /// @throws std::runtime_error when the sheet cannot be made
    void exportTable(const host::TlxVar& session, const std::string& parameters,
                     const std::string& title) override;

private:
    ui::Display& display_;
    base::Locale locale_;
};

} // namespace tellurix::standin
