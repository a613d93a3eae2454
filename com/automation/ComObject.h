#pragma once

#include "com/automation/com.h"

#include <atomic>

namespace tellurix::windows {

/// How many COM objects of ours are alive: a library may be unloaded when there are none.
inline std::atomic<long> liveComObjects{0};

// Windows' interfaces have no virtual destructor; their objects are never deleted through them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The lifetime of a COM object with one interface (and those it derives from). Born with one
/// reference, which belongs to whoever made it: `ComPtr<…>::adopt(new …)`.
template <typename Interface, typename... Bases>
class ComObject : public Interface {
public:
    ComObject() { ++liveComObjects; }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** answer) override {
        if (answer == nullptr) return E_POINTER;
        *answer = nullptr;
        if (id != __uuidof(IUnknown) && id != __uuidof(Interface) && !((id == __uuidof(Bases)) || ...))
            return E_NOINTERFACE;
        *answer = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }

protected:
    virtual ~ComObject() { --liveComObjects; }

private:
    std::atomic<ULONG> references_{1};
};

#pragma GCC diagnostic pop

} // namespace tellurix::windows
