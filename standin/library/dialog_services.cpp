#include "com/session/error_kind.h"
#include "module/base/text.h"
#include "standin/library/ServiceObject.h"
#include "standin/library/service_classes.h"

#include <sstream>

namespace tellurix::windows {

namespace {

using Given = const CallArguments&;

Variant choosePerson(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    auto confirmed = static_cast<host::Boolean16>(given[5].as(VT_BOOL).boolVal);
    const std::int32_t chosen =
        call.services().personalPicker.choose(call.session(), given[1].text(), given[2].integer(),
                                              given[3].as(VT_I2).iVal, given[4].integer(), confirmed);
    given.write(5, host::isTrue(confirmed));
    return chosen;
}

/// Empty for a dialog that was cancelled.
Variant selected(const std::optional<std::string>& answer) {
    return answer ? Variant(*answer) : Variant();
}

/// Keys travel as one text, with commas between them.
constexpr std::string_view betweenKeys = ",";

Variant chooseSeveral(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    std::vector<std::int64_t> marked;
    std::istringstream keys(given[3].text());
    for (std::string key; std::getline(keys, key, betweenKeys.front());)
        marked.push_back(std::stoll(key));
    const auto chosen =
        call.services().multiSelection.choose(call.session(), given[1].text(), given[2].text(), marked);
    if (!chosen) return Variant();
    std::vector<std::string> texts;
    for (const std::int64_t key : *chosen)
        texts.push_back(std::to_string(key));
    return Variant(base::joined(texts, betweenKeys));
}

void showError(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    try {
        std::rethrow_exception(errorOfKind(given[1].text(), given[2].text()));
    } catch (const std::exception& error) {
        call.services().errors.report(error);
    }
}

} // namespace

const ServiceClass& hostPersonalPicker() {
    static const ServiceClass served{"Tellurix_Loc.HostPersonalPicker",
                                     DispatchTable().method<ServiceObject>(L"Choose", choosePerson)};
    return served;
}

const ServiceClass& listPicker() {
    static const ServiceClass served{
        "Tellurix_Loc.ListPicker",
        DispatchTable().method<ServiceObject>(L"Choose", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            return Variant(call.services().listPicker.choose(call.session(), given[1].text(), given[2].text(),
                                                             given[3].text(), given[4].text()));
        })};
    return served;
}

const ServiceClass& keyedLists() {
    static const ServiceClass served{
        "Tellurix_Loc.KeyedLists",
        DispatchTable()
            .method<ServiceObject>(L"Choose",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       return Variant(call.services().keyedLists.choose(
                                           call.session(), given[1].text(), given[2].text(),
                                           {given[3].text(), given[4].integer()}, given[5].text()));
                                   })
            .method<ServiceObject>(L"Find",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       return Variant(
                                           base::joined(call.services().keyedLists.find(
                                                            call.session(), given[1].text(), given[2].text(),
                                                            {given[3].text(), given[4].integer()}),
                                                        betweenKeys));
                                   })
            .method<ServiceObject>(L"TypeOf", [](ServiceObject& service, Given given) {
                auto call = callOf(service, given);
                return Variant(call.services().keyedLists.typeOf(call.session(), given[1].integer()));
            })};
    return served;
}

const ServiceClass& selectionDialog() {
    static const ServiceClass served{
        "Tellurix_Loc.SelectionDialog",
        DispatchTable()
            .method<ServiceObject>(L"Select",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       return selected(call.services().selectionDialog.select(
                                           call.session(), given[1].text(), given[2].text(), given[3].text(),
                                           given[4].text()));
                                   })
            .method<ServiceObject>(L"Edit", [](ServiceObject& service, Given given) {
                auto call = callOf(service, given);
                return selected(call.services().selectionDialog.edit(
                    call.session(), given[1].text(), given[2].text(), given[3].text(), given[4].text()));
            })};
    return served;
}

const ServiceClass& catalogueSelection() {
    static const ServiceClass served{
        "Tellurix_Loc.CatalogueSelection",
        DispatchTable().method<ServiceObject>(L"Choose", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            return Variant(call.services().catalogue.choose(call.session(), given[1].text(), given[2].text(),
                                                            given[3].integer()));
        })};
    return served;
}

const ServiceClass& lookupGridDialog() {
    static const ServiceClass served{
        "Tellurix_Loc.LookupGridDialog",
        DispatchTable().method<ServiceObject>(L"Choose", [](ServiceObject& service, Given given) {
            auto call = callOf(service, given);
            return Variant(call.services().lookupGridDialog.choose(call.session(), given[1].text(),
                                                                   given[2].text(), given[3].text(),
                                                                   given[4].text(), given[5].text()));
        })};
    return served;
}

const ServiceClass& multiSelectionList() {
    static const ServiceClass served{"Tellurix_Loc.MultiSelectionList",
                                     DispatchTable().method<ServiceObject>(L"Choose", chooseSeveral)};
    return served;
}

const ServiceClass& hostErrorReport() {
    static const ServiceClass served{"Tellurix_Loc.HostErrorReport",
                                     DispatchTable().method<ServiceObject>(L"Show", showError)};
    return served;
}

} // namespace tellurix::windows
