#pragma once

#include "com/component/Apartment.h"
#include "com/server/DualObject.h"
#include "com/server/shared_by_thread.h"

#include <Tellurix_Vertrag.h>

namespace tellurix::windows {

/// The class clsVertrag of the component: takes a call of the host apart, and hands it to the module.
/// Every failure goes back with a code, a description and the class as its source.
class VertragObject final : public DualObject<_clsVertrag> {
public:
    HRESULT STDMETHODCALLTYPE F_Bereitstellung_WVO_Run(::TlxVar* record, short modul) override;
    HRESULT STDMETHODCALLTYPE F_VertragMengenmeldung_WVO_Run(::TlxVar* record, short modul) override;
    HRESULT STDMETHODCALLTYPE Vertrag_Run(::TlxVar* record, LONG id, BSTR name, BSTR StrVer_Type_dll,
                                          BSTR strThousantSep_dll, BSTR strDecimalSep_dll, BSTR rechName_dll,
                                          VARIANT* blnOK_dll, VARIANT_BOOL* bolEuroChange_dll,
                                          IDispatch* F_Main_dll, short g_intStandardMandanten_dll,
                                          VARIANT_BOOL newVertrag, BSTR strCaption,
                                          VARIANT_BOOL enableKLR) override;
    HRESULT STDMETHODCALLTYPE GetVertragType(BSTR strVerType, BSTR* result) override;

protected:
    Variant invoke(DISPID number, const CallArguments& arguments) override;
    const char* source() const override { return "Tellurix_Vertrag.clsVertrag"; }

private:
    void runReport(Apartment::Kind report, std::unique_ptr<HostsRecord> record, std::int16_t modul);
    void runByName(const CallArguments& arguments);

    /// The parameters of Vertrag_Run, however they came.
    struct RunParameters;
    /// @param writeBack called when the editor is closed, before the host is notified
    void run(std::unique_ptr<HostsRecord> record, RunParameters& parameters,
             const std::function<void()>& writeBack);

    std::shared_ptr<Apartment> apartment_ = sharedByThread<Apartment>();
};

} // namespace tellurix::windows
