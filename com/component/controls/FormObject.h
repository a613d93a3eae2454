#pragma once

#include "com/component/controls/ControlObject.h"
#include "module/ui/Form.h"

#include <vector>

namespace tellurix::windows {

/// A control of any kind: Name, ToolTip, CaptionKind and Caption. The kind is "caption", "captions" for
/// several ones with "|" between them, or empty for a control without words.
class AnyControlObject final : public ControlObject<ui::Control> {
public:
    using ControlObject::ControlObject;

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.Control"; }
};

/// The controls of a form: Count, Item(index from 0, or name).
class ControlsObject final : public ControlObject<ui::Form> {
public:
    using ControlObject::ControlObject;
    ~ControlsObject() override { expire(); }

    void expire();
    Variant item(const Variant& which);

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.Controls"; }

private:
    std::vector<ComPtr<AnyControlObject>> lent_;
};

/// A form as the host's library sees it: Name, Title, Controls.
class FormObject final : public ControlObject<ui::Form> {
public:
    explicit FormObject(ui::Form& form)
        : ControlObject(form), controls_(ComPtr<ControlsObject>::adopt(new ControlsObject(form))) {}

    void expire();
    const ComPtr<ControlsObject>& controls() const { return controls_; }

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.Form"; }

private:
    ComPtr<ControlsObject> controls_;
};

} // namespace tellurix::windows
