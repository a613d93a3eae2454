#include "standin/library/ServiceObject.h"
#include "standin/library/service_classes.h"

namespace tellurix::windows {

const ServiceClass& spreadsheetExport() {
    static const ServiceClass served{"Tellurix_Loc.SpreadsheetExport",
                                     DispatchTable().method<ServiceObject>(
                                         L"Show", [](ServiceObject& service, const CallArguments& given) {
                                             auto call = callOf(service, given);
                                             call.services().spreadsheets.exportTable(
                                                 call.session(), given[1].text(), given[2].text());
                                         })};
    return served;
}

} // namespace tellurix::windows
