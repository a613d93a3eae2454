#include "standin/library/ServiceObject.h"
#include "standin/library/service_classes.h"

namespace tellurix::windows {

namespace {

using Given = const CallArguments&;

Variant listenerOf(ServiceObject& service, Given) {
    return service.workplace().listener.object();
}

void setListener(ServiceObject& service, Given given) {
    service.workplace().listener = Dispatch(given[0].object());
}

void request(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    std::string out1 = given[3].text();
    std::string out2 = given[4].text();
    call.services().moduleService.request(call.session(), given[1].text(), given[2].text(), out1, out2);
    given.write(3, out1);
    given.write(4, out2);
}

} // namespace

const ServiceClass& hostDataAccess() {
    static const ServiceClass served{
        "Tellurix_Loc.HostDataAccess",
        DispatchTable().method<ServiceObject>(L"ReadValue", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            given.write(4, call.services().dataAccess.readValue(call.session(), given[1].text(),
                                                                given[2].text(), given[3].text()));
        })};
    return served;
}

const ServiceClass& hostModuleService() {
    static const ServiceClass served{"Tellurix_Loc.HostModuleService",
                                     DispatchTable()
                                         .method<ServiceObject>(L"Request", request)
                                         .property<ServiceObject>(L"Listener", listenerOf, setListener)};
    return served;
}

const ServiceClass& personQueryBuilder() {
    static const ServiceClass served{
        "Tellurix_Loc.PersonQueryBuilder",
        DispatchTable()
            .method<ServiceObject>(L"Build",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       return Variant(call.services().personQuery.build(
                                           call.session(), given[1].text(), given[2].text(),
                                           given[3].integer(), given[4].text()));
                                   })
            .method<ServiceObject>(L"Restriction", [](ServiceObject& service, Given given) {
                auto call = callOf(service, given);
                return Variant(call.services().personQuery.restriction(call.session(), given[1].text()));
            })};
    return served;
}

const ServiceClass& dateConverter() {
    static const ServiceClass served{
        "Tellurix_Loc.DateConverter",
        DispatchTable().method<ServiceObject>(L"ToSql", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given, 1);
            return Variant(call.services().dateConverter.toSql(given[0].text(), call.session()));
        })};
    return served;
}

const ServiceClass& namedSettings() {
    static const ServiceClass served{
        "Tellurix_Loc.NamedSettings",
        DispatchTable()
            .method<ServiceObject>(L"Text",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       return Variant(
                                           call.services().settings.text(call.session(), given[1].text()));
                                   })
            .method<ServiceObject>(L"Replace", [](ServiceObject& service, Given given) {
                service.workplace().replaceSetting(given[0].text(), given[1].text());
            })};
    return served;
}

const ServiceClass& columnWidth() {
    static const ServiceClass served{
        "Tellurix_Loc.ColumnWidth",
        DispatchTable().method<ServiceObject>(L"Of", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            return Variant(std::int32_t{
                call.services().columnWidth.of(call.session(), given[1].text(), given[2].text())});
        })};
    return served;
}

const ServiceClass& columnUpdate() {
    static const ServiceClass served{
        "Tellurix_Loc.ColumnUpdate",
        DispatchTable().method<ServiceObject>(L"Set", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            call.services().columnUpdate.set(call.session(), given[1].text(), given[2].text(),
                                             given[3].text(), given[4].text());
        })};
    return served;
}

const ServiceClass& selectionTranslator() {
    static const ServiceClass served{
        "Tellurix_Loc.SelectionTranslator",
        DispatchTable().method<ServiceObject>(L"Translate", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            return Variant(call.services().selectionTranslator.translate(call.session(), given[1].text(),
                                                                         given[2].text(), given[3].text(),
                                                                         given[4].text(), given[5].text()));
        })};
    return served;
}

} // namespace tellurix::windows
