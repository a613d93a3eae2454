#pragma once

#include "module/host/boolean16.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tellurix::host {

/// The host's main window, as far as the module asks it.
class HostMainWindow {
public:
    virtual ~HostMainWindow() = default;
    /// Whether the host works on articles rather than timber.
    virtual bool IsArtikel() = 0;
};

/// What the host hands over when it opens a contract, kept for the screens; one set a thread. The
/// fields stand in the order in which `Vertrag_Run` fills them.
struct HostContext {
    std::string StrVer_Type;    ///< contract-type code as given: "R", "A1" … "A8"
    std::string VerType;        ///< the type as the deduction models store it: "V", "V1" … "V8"
    std::string strThousantSep; ///< thousands separator of the user
    std::string strDecimalSep;  ///< decimal separator of the user
    std::string strServiceOut1; ///< first output text of every module service call
    std::string strServiceOut2; ///< second output text of every module service call
    Boolean16 bolEuroChange = Boolean16::False; ///< goes back to the host unchanged
    Boolean16 blnOK = Boolean16::False;         ///< whether the last dialog was confirmed
    std::shared_ptr<HostMainWindow> F_Main;
    std::int16_t g_intStandardMandanten = 0; ///< the host's standard client
};

} // namespace tellurix::host
