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

ComPtr<_clsVertrag> module() {
    CLSID id{};
    check(CLSIDFromProgID(L"Tellurix_Vertrag.clsVertrag", &id), "Tellurix_Vertrag.clsVertrag");
    ComPtr<_clsVertrag> module;
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_clsVertrag), module.putVoid()),
          "Tellurix_Vertrag.clsVertrag");
    return module;
}

/// The session record, with the texts that it points to.
class Record {
public:
    Record(const Dispatch& connection, const host::TlxVar& session)
        : homeCurrency_{session.homeCurrency},
          site_{session.site},
          user_{session.user},
          language_{session.language},
          record_{.Connection = connection.object().get(),
                  .AccessLevel = session.accessLevel,
                  .HomeCurrency = homeCurrency_.get(),
                  .Site = site_.get(),
                  .User = user_.get(),
                  .Language = language_.get()} {}
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    TlxVar* get() { return &record_; }

private:
    Bstr homeCurrency_;
    Bstr site_;
    Bstr user_;
    Bstr language_;
    TlxVar record_;
};

} // namespace

void ComContractOpener::open(const standin::ContractToOpen& contract) {
    Record record{connection_, session_};
    const auto mainWindow = ComPtr<IDispatch>::adopt(new MainWindowObject{mainWindow_});
    Variant confirmed{false};
    VARIANT_BOOL euroChange = VARIANT_FALSE;
    checkCall(module()->Vertrag_Run(record.get(), contract.id, Bstr{contract.name}.get(),
                                    Bstr{contract.type}.get(), Bstr{std::string{locale_.grouping}}.get(),
                                    Bstr{std::string{locale_.decimal}}.get(), Bstr{contract.name}.get(),
                                    &confirmed, &euroChange, mainWindow.get(), contract.standardClient,
                                    contract.isNew ? VARIANT_TRUE : VARIANT_FALSE,
                                    Bstr{contract.caption}.get(), VARIANT_FALSE),
              "Vertrag_Run");
}

void ComContractOpener::openProvisionReports(std::int16_t kind) {
    Record record{connection_, session_};
    checkCall(module()->F_Bereitstellung_WVO_Run(record.get(), kind), "F_Bereitstellung_WVO_Run");
}

void ComContractOpener::openQuantityReports(std::int16_t kind) {
    Record record{connection_, session_};
    checkCall(module()->F_VertragMengenmeldung_WVO_Run(record.get(), kind), "F_VertragMengenmeldung_WVO_Run");
}

} // namespace tellurix::windows
