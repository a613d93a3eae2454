#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/DispatchObject.h"

namespace tellurix::windows {

/// What the host's library sees of a control or form for the time of one call: an object over it
/// that goes blind when the call is over, so that a library that keeps it too long gets an error.
template <typename Target>
class ControlObject : public DispatchObject {
public:
    explicit ControlObject(Target& target) : target_(&target) {}

    /// @throws AutomationError when the call is over
    Target& target() const {
        if (target_ == nullptr)
            throw AutomationError(CO_E_OBJNOTCONNECTED, "The control was lent for one call only");
        return *target_;
    }
    void expire() { target_ = nullptr; }

private:
    Target* target_;
};

/// Lends a control as such an object while it lives.
template <typename Object>
class Lent {
public:
    template <typename... Targets>
    explicit Lent(Targets&... targets) : object_(ComPtr<Object>::adopt(new Object(targets...))) {}
    ~Lent() { object_->expire(); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

    Variant argument() const { return Variant(ComPtr<IDispatch>(object_.get())); }

private:
    ComPtr<Object> object_;
};

} // namespace tellurix::windows
