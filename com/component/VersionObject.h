#pragma once

#include "com/server/DualObject.h"

#include <Tellurix_Vertrag.h>

namespace tellurix::windows {

/// The class C_Version of the component.
class VersionObject final : public DualObject<_C_Version> {
public:
    HRESULT STDMETHODCALLTYPE DLL_Version(BSTR* result) override;

protected:
    Variant invoke(DISPID number, const CallArguments& arguments) override;
    const char* source() const override { return "Tellurix_Vertrag.C_Version"; }
};

} // namespace tellurix::windows
