#include "standin/windows_host/ComContractOpener.h"

#include "Tellurix_Vertrag.h"
#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "standin/windows_host/HostObjects.h"

namespace tellurix::windows {

namespace {

/// The description that a called object left with the thread, or else Windows' words.
void checkCall(HRESULT result, const std::string& action) {
    if (SUCCEEDED(result)) return;
    ComPtr<IErrorInfo> information;
    Bstr description;
    Bstr source;
    if (GetErrorInfo(0, information.put()) == S_OK &&
        SUCCEEDED(information->GetDescription(description.put())) &&
        SUCCEEDED(information->GetSource(source.put())))
        throw AutomationError{result, textOf(description.get()), textOf(source.get())};
    check(result, action);
}

} // namespace

void ComContractOpener::open(const standin::ContractToOpen& contract) {
    CLSID id{};
    check(CLSIDFromProgID(L"Tellurix_Vertrag.clsVertrag", &id), "Tellurix_Vertrag.clsVertrag");
    ComPtr<_clsVertrag> module;
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_clsVertrag), module.putVoid()),
          "Tellurix_Vertrag.clsVertrag");

    const Bstr homeCurrency{session_.homeCurrency};
    const Bstr site{session_.site};
    const Bstr user{session_.user};
    const Bstr language{session_.language};
    TlxVar session{.Connection = connection_.object().get(),
                   .AccessLevel = session_.accessLevel,
                   .HomeCurrency = homeCurrency.get(),
                   .Site = site.get(),
                   .User = user.get(),
                   .Language = language.get()};
    const auto mainWindow = ComPtr<IDispatch>::adopt(new MainWindowObject{mainWindow_});
    Variant confirmed{false};
    VARIANT_BOOL euroChange = VARIANT_FALSE;
    checkCall(module->Vertrag_Run(&session, contract.id, Bstr{contract.name}.get(), Bstr{contract.type}.get(),
                                  Bstr{std::string{locale_.grouping}}.get(),
                                  Bstr{std::string{locale_.decimal}}.get(), Bstr{contract.name}.get(),
                                  &confirmed, &euroChange, mainWindow.get(), contract.standardClient,
                                  contract.isNew ? VARIANT_TRUE : VARIANT_FALSE, Bstr{contract.caption}.get(),
                                  VARIANT_FALSE),
              "Vertrag_Run");
}

} // namespace tellurix::windows
