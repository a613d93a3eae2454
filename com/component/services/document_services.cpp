#include "com/component/services/document_services.h"

#include "com/component/services/HostClass.h"

namespace tellurix::windows {

namespace {

class LateSpreadsheets final : public host::SpreadsheetExport {
public:
    void exportTable(const host::TlxVar& session, const std::string& parameters,
                     const std::string& title) override {
        SessionRecord record(session);
        object_.call(session, L"Show", {record.argument(), parameters, title});
    }

private:
    HostClass object_{"SpreadsheetExport"};
};

} // namespace

std::unique_ptr<host::SpreadsheetExport> lateSpreadsheets() {
    return std::make_unique<LateSpreadsheets>();
}

} // namespace tellurix::windows
