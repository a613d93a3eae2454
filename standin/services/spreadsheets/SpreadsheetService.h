#pragma once

#include "module/host/document_services.h"
#include "module/ui/Display.h"

namespace tellurix::standin {

/// Makes a spreadsheet of a table and hands it to the user.
class SpreadsheetService final : public host::SpreadsheetExport {
public:
    explicit SpreadsheetService(ui::Display& display) : display_(display) {}

    void exportTable(const host::TlxVar& session, const std::string& parameters,
                     const std::string& title) override;

private:
    ui::Display& display_;
};

} // namespace tellurix::standin
