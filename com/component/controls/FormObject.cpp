#include "com/component/controls/FormObject.h"

#include "module/ui/controls/control_caption.h"

namespace tellurix::windows {

using Given = const CallArguments&;

const DispatchTable& AnyControlObject::table() const {
    using Control = AnyControlObject;
    static const DispatchTable members =
        DispatchTable()
            .method<Control>(L"Name",
                             [](Control& control, Given) { return Variant(control.target().name()); })
            .property<Control>(
                L"ToolTip", [](Control& control, Given) { return Variant(control.target().toolTip()); },
                [](Control& control, Given given) { control.target().setToolTip(given[0].text()); })
            .method<Control>(L"CaptionKind", [](Control& control,
                                                Given) { return Variant(ui::captionKind(control.target())); })
            .property<Control>(
                L"Caption",
                [](Control& control, Given) {
                    return Variant(ui::captionText(control.target()).value_or(std::string()));
                },
                [](Control& control, Given given) { ui::setCaptionText(control.target(), given[0].text()); });
    return members;
}

void ControlsObject::expire() {
    for (const auto& control : lent_)
        control->expire();
    lent_.clear();
    ControlObject::expire();
}

Variant ControlsObject::item(const Variant& which) {
    const auto controls = target().controls();
    ui::Control* found = nullptr;
    if (which.vt == VT_BSTR) {
        found = target().find(which.text());
    } else {
        const std::int32_t index = which.integer();
        if (index >= 0 && static_cast<std::size_t>(index) < controls.size())
            found = controls[static_cast<std::size_t>(index)];
    }
    if (found == nullptr) throw AutomationError(DISP_E_BADINDEX, "There is no control " + which.text());
    lent_.push_back(ComPtr<AnyControlObject>::adopt(new AnyControlObject(*found)));
    return Variant(ComPtr<IDispatch>(lent_.back().get()));
}

const DispatchTable& ControlsObject::table() const {
    using Controls = ControlsObject;
    static const DispatchTable members =
        DispatchTable()
            .method<Controls>(L"Count",
                              [](Controls& controls, Given) {
                                  return Variant(
                                      static_cast<std::int32_t>(controls.target().controls().size()));
                              })
            .method<Controls>(L"Item",
                              [](Controls& controls, Given given) { return controls.item(given[0]); })
            .defaultMember(L"Item");
    return members;
}

void FormObject::expire() {
    controls_->expire();
    ControlObject::expire();
}

const DispatchTable& FormObject::table() const {
    using Form = FormObject;
    static const DispatchTable members =
        DispatchTable()
            .method<Form>(L"Name", [](Form& form, Given) { return Variant(form.target().name()); })
            .property<Form>(
                L"Title", [](Form& form, Given) { return Variant(form.target().title()); },
                [](Form& form, Given given) { form.target().setTitle(given[0].text()); })
            .method<Form>(L"Controls", [](Form& form, Given) {
                return Variant(ComPtr<IDispatch>(form.controls().get()));
            });
    return members;
}

} // namespace tellurix::windows
