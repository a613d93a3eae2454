#include "standin/library/ServiceObject.h"
#include "standin/library/TypingHandler.h"
#include "standin/library/mirrors.h"
#include "standin/library/service_classes.h"
#include "standin/services/texts/CaptionKeys.h"

namespace tellurix::windows {

namespace {

using Given = const CallArguments&;

/// Does to the caller's form what the localizer does to a form of ours.
void localize(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    standin::Localizer& localizer = call.workbench().localizer();
    Dispatch form(given[1]);
    const standin::CaptionKeys keys{form.get(L"Name").text()};
    const auto translate = [&](Dispatch& object, const wchar_t* property, const std::string& key) {
        const std::string shown = object.get(property).text();
        const std::string text = localizer.translated(call.session(), key, shown);
        if (text != shown) object.put(property, text);
    };
    translate(form, L"Title", keys.title());
    Dispatch controls(form.get(L"Controls"));
    for (std::int32_t i = 0, count = controls.get(L"Count").integer(); i < count; ++i) {
        Dispatch control(controls.get(L"Item", {i}));
        const std::string name = control.get(L"Name").text();
        const std::string kind = control.get(L"CaptionKind").text();
        if (!kind.empty()) translate(control, L"Caption", keys.caption(name, kind));
        translate(control, L"ToolTip", keys.toolTip(name));
    }
}

void text(ServiceObject& service, Given given) {
    auto call = callOf(service, given, 1);
    given.write(2, call.services().localizer.text(given[0].integer(), call.session()));
}

Variant resolve(ServiceObject& service, Given given) {
    auto call = callOf(service, given);
    Dispatch box(given[3]);
    Dispatch shown(given[4].object());
    BoxMirror boxMirror;
    BoxMirror shownMirror;
    boxMirror.read(box);
    if (shown) shownMirror.read(shown);
    const bool found = call.services().lookupValidation.resolve(
        call.session(), given[1].integer(), given[2].text(), boxMirror.box,
        shown ? &shownMirror.box : nullptr, given[5].text(), nullptr, given[7].text());
    boxMirror.write(box);
    if (shown) shownMirror.write(shown);
    return found;
}

void bind(ServiceObject&, Given given) {
    const Dispatch handler(ComPtr<IDispatch>::adopt(
        new TypingHandler(*recordIn(given.raw(0), "Session"), given[2].text(), given[3].text())));
    Dispatch box(given[1]);
    box.putReference(L"KeyPressHandler", handler);
    box.putReference(L"ChangeHandler", handler);
}

} // namespace

const ServiceClass& hostLocalizer() {
    static const ServiceClass served{
        "Tellurix_Loc.HostLocalizer",
        DispatchTable().method<ServiceObject>(L"Localize", localize).method<ServiceObject>(L"Text", text)};
    return served;
}

const ServiceClass& lookupValidation() {
    static const ServiceClass served{"Tellurix_Loc.LookupValidation",
                                     DispatchTable().method<ServiceObject>(L"Resolve", resolve)};
    return served;
}

const ServiceClass& gridLayoutStore() {
    static const ServiceClass served{
        "Tellurix_Loc.GridLayoutStore",
        DispatchTable()
            .method<ServiceObject>(L"Save",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       Dispatch grid(given[1]);
                                       call.services().gridLayouts.save(call.session(), GridMirror(grid).grid,
                                                                        given[2].text());
                                   })
            .method<ServiceObject>(L"Restore", [](ServiceObject& service, Given given) {
                auto call = callOf(service, given);
                Dispatch grid(given[1]);
                GridMirror mirror(grid);
                call.services().gridLayouts.restore(call.session(), mirror.grid, given[2].text());
                mirror.write(grid);
            })};
    return served;
}

const ServiceClass& modelService() {
    static const ServiceClass served{
        "Tellurix_Loc.ModelService",
        DispatchTable()
            .method<ServiceObject>(L"Fill",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       Dispatch list(given[1]);
                                       ListMirror mirror(list);
                                       call.services().models.fill(call.session(), mirror.list,
                                                                   given[2].text());
                                       mirror.write(list);
                                   })
            .method<ServiceObject>(L"Copy",
                                   [](ServiceObject& service, Given given) {
                                       auto call = callOf(service, given);
                                       LinesMirror lines(Dispatch{given[3]});
                                       call.services().models.copy(call.session(), given[1].text(),
                                                                   given[2].integer(), lines);
                                   })
            .method<ServiceObject>(L"Manage", [](ServiceObject& service, Given given) {
                auto call = callOf(service, given);
                LinesMirror lines(Dispatch{given[2]});
                Dispatch list(given[3]);
                ListMirror mirror(list);
                call.services().models.manage(call.session(), given[1].text(), lines, mirror.list);
                mirror.write(list);
            })};
    return served;
}

const ServiceClass& typeAhead() {
    static const ServiceClass served{"Tellurix_Loc.TypeAhead",
                                     DispatchTable().method<ServiceObject>(L"Bind", bind)};
    return served;
}

} // namespace tellurix::windows
