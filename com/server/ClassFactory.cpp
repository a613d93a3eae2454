#include "com/server/ClassFactory.h"

#include "com/automation/AutomationError.h"

namespace tellurix::windows {

namespace {

std::atomic<long> locks{0};

} // namespace

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** answer) {
    if (answer == nullptr) return E_POINTER;
    *answer = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    HRESULT result = S_OK;
    const HRESULT made =
        guarded("ClassFactory", [&] { result = served_.create()->QueryInterface(id, answer); });
    return FAILED(made) ? made : result;
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    locks += lock ? 1 : -1;
    return S_OK;
}

bool serverInUse() {
    return locks > 0 || liveComObjects > 0;
}

} // namespace tellurix::windows
