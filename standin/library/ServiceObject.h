#pragma once

#include "com/automation/DispatchObject.h"
#include "com/server/shared_by_thread.h"
#include "standin/library/Workplace.h"
#include "standin/library/service_classes.h"

#include <memory>

namespace tellurix::windows {

/// An object of one of the library's service classes.
class ServiceObject final : public DispatchObject {
public:
    /// @param interfaceId the class's own late-bound interface of the type library
    ServiceObject(const IID& interfaceId, const ServiceClass& served)
        : interfaceId_(interfaceId), served_(served) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** answer) override {
        return DispatchObject::QueryInterface(id == interfaceId_ ? __uuidof(IDispatch) : id, answer);
    }

    Workplace& workplace() { return *workplace_; }

protected:
    const DispatchTable& table() const override { return served_.members; }
    const char* source() const override { return served_.source; }

private:
    const IID interfaceId_;
    const ServiceClass& served_;
    std::shared_ptr<Workplace> workplace_ = sharedByThread<Workplace>();
};

/// The call of a service operation whose session record is the argument of that number.
inline Workplace::Call callOf(ServiceObject& service, const CallArguments& arguments,
                              std::size_t record = 0) {
    return {service.workplace(), arguments, record};
}

} // namespace tellurix::windows
