#include "module/entry/clsVertrag.h"

#include "module/base/text.h"
#include "module/contract/F_Vertrag.h"
#include "module/host/contract_type.h"
#include "module/logistics/reports/F_Bereitstellung_WVO.h"
#include "module/logistics/reports/F_VertragMengenmeldung_WVO.h"

namespace tellurix::host {

namespace {

constexpr const char* provisionReportScreen = "F_Bereitstellung_WVO";
constexpr const char* quantityReportScreen = "F_VertragMengenmeldung_WVO";

/// The next provision reports begin anew, however those before have ended.
struct FreshProvisionReports {
    FreshProvisionReports() = default;
    ~FreshProvisionReports() { moduleState().release(provisionReportScreen); }
    FreshProvisionReports(const FreshProvisionReports&) = delete;
    FreshProvisionReports& operator=(const FreshProvisionReports&) = delete;
};

/// The screen lives until its call returns, also when another call lets go of it meanwhile.
template <typename Screen>
void runReport(const std::string& name, HostServices& services, const TlxVar& session, std::int16_t modul) {
    const auto screen = moduleState().heldScreen<ReportScreen>(
        name, [&services]() -> std::shared_ptr<ReportScreen> { return std::make_shared<Screen>(services); });
    screen->Run(session, modul);
}

} // namespace

void clsVertrag::F_Bereitstellung_WVO_Run(TlxVar& session, std::int16_t modul) {
    const FreshProvisionReports fresh;
    runReport<logistics::F_Bereitstellung_WVO>(provisionReportScreen, services_, session, modul);
}

void clsVertrag::F_VertragMengenmeldung_WVO_Run(TlxVar& session, std::int16_t modul) {
    // The host relies on the quantity reports being as it left them, and on fresh provision reports.
    const FreshProvisionReports fresh;
    runReport<logistics::F_VertragMengenmeldung_WVO>(quantityReportScreen, services_, session, modul);
}

void clsVertrag::Vertrag_Run(TlxVar& session, std::int32_t id, const std::string& name,
                             const std::string& StrVer_Type_dll, const std::string& strThousantSep_dll,
                             const std::string& strDecimalSep_dll, const std::string& /*rechName_dll*/,
                             Variant& blnOK_dll, Boolean16& bolEuroChange_dll,
                             std::shared_ptr<HostMainWindow> F_Main_dll,
                             std::int16_t g_intStandardMandanten_dll, bool newVertrag,
                             const std::string& strCaption, bool enableKLR,
                             const std::function<void()>& whenClosed) {
    HostContext& context = moduleState().context;
    context.StrVer_Type = StrVer_Type_dll;
    context.VerType = GetVertragType(StrVer_Type_dll);
    context.strThousantSep = strThousantSep_dll;
    context.strDecimalSep = strDecimalSep_dll;
    context.strServiceOut1.clear();
    context.strServiceOut2.clear();
    context.blnOK = toBoolean16(toBoolean(blnOK_dll));
    context.bolEuroChange = bolEuroChange_dll;
    context.F_Main = std::move(F_Main_dll);
    context.g_intStandardMandanten = g_intStandardMandanten_dll;

    auto& editor = moduleState().screen<contract::F_Vertrag>(
        "F_Vertrag", [this] { return std::make_unique<contract::F_Vertrag>(services_); });
    editor.Run(session, id, name, newVertrag, strCaption, enableKLR);

    blnOK_dll = isTrue(context.blnOK);
    bolEuroChange_dll = context.bolEuroChange;
    if (whenClosed) whenClosed();
    notifyHost(session);
}

void clsVertrag::notifyHost(const TlxVar& session) {
    HostContext& context = moduleState().context;
    // Compared as the host wrote it: the code "r" opens an "R" contract but notifies nobody.
    const int type = contractTypeNumber(context.StrVer_Type);
    if (type < 0) return;
    const std::string code = type == 0 ? "1VVM" : "2VABR" + std::to_string(type);
    services_.moduleService.request(session, code, base::toUpper(context.StrVer_Type), context.strServiceOut1,
                                    context.strServiceOut2);
}

std::string clsVertrag::GetVertragType(const std::string& strVerType) const {
    return contractTypeOf(strVerType);
}

} // namespace tellurix::host
