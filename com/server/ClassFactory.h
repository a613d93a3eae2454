#pragma once

#include "com/automation/ComObject.h"
#include "com/server/ServedClass.h"

namespace tellurix::windows {

/// Makes the objects of one class for COM.
class ClassFactory final : public ComObject<IClassFactory> {
public:
    explicit ClassFactory(const ServedClass& served) : served_(served) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** answer) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

private:
    const ServedClass& served_;
};

/// Whether a client holds an object of this DLL, or has locked it in memory.
bool serverInUse();

} // namespace tellurix::windows
