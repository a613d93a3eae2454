#pragma once

#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/host/variant.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tellurix::host {

/// The module's entry class. The host calls one operation at a time on its own thread; each shows
/// its screen modally and returns when the user has closed it.
///
/// No operation reports an error of its own: whatever fails while a screen is being opened is thrown
/// to the host. What fails inside an open screen goes to the host's error handling instead.
class clsVertrag {
public:
    /// @param services live as long as the calling thread's module state
    explicit clsVertrag(HostServices& services) : services_(services) {}

    /// Opens the weekly provision reports. Every call gets a fresh screen.
    /// @param modul the contract kind that the host works on; only contracts of that kind are offered
    void F_Bereitstellung_WVO_Run(TlxVar& session, std::int16_t modul);

    /// Opens the quantity reports. The screen is kept and finds its members as the previous call
    /// left them; it is the provision-report screen that is released afterwards.
    void F_VertragMengenmeldung_WVO_Run(TlxVar& session, std::int16_t modul);

    /// Opens the contract editor, and notifies the host after it was closed.
    /// @param id the contract, `VERTRAEGE.ID_VERTRAG`
    /// @param name not shown; the editor reads the contract's name itself
    /// @param StrVer_Type_dll the host's contract-type code, "R" or "A1" … "A8"
    /// @param rechName_dll ignored
    /// @param blnOK_dll in and out: whether the last dialog was confirmed
    /// @param bolEuroChange_dll in and out, unchanged
    /// @param newVertrag the host has just created the row: closing without saving deletes it
    /// @param strCaption what the window title starts with
    /// @param whenClosed called between the two: the editor is closed, blnOK_dll and bolEuroChange_dll are
    ///        written, the host has not been notified yet and may open the next contract when it is
    void Vertrag_Run(TlxVar& session, std::int32_t id, const std::string& name,
                     const std::string& StrVer_Type_dll, const std::string& strThousantSep_dll,
                     const std::string& strDecimalSep_dll, const std::string& rechName_dll,
                     Variant& blnOK_dll, Boolean16& bolEuroChange_dll,
                     std::shared_ptr<HostMainWindow> F_Main_dll, std::int16_t g_intStandardMandanten_dll,
                     bool newVertrag, const std::string& strCaption, bool enableKLR,
                     const std::function<void()>& whenClosed = {});

    /// "V" for "R", "V1" … "V8" for "A1" … "A8", whatever the case of the letters; else empty.
    std::string GetVertragType(const std::string& strVerType) const;

private:
    void notifyHost(const TlxVar& session);

    HostServices& services_;
};

} // namespace tellurix::host
