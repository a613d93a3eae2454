#include "tests/com/component/ComponentClient.h"

#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "standin/windows_host/HostObjects.h"
#include "standin/windows_host/libraries.h"

#include <array>

namespace tellurix::tests {

using windows::Bstr;
using windows::ComPtr;
using windows::Dispatch;
using windows::textOf;
using windows::Variant;

namespace {

/// The description of the record, as any host gets it that knows the type library.
ComPtr<IRecordInfo> recordType(IDispatch& module) {
    ComPtr<ITypeInfo> type;
    ComPtr<ITypeInfo> record;
    ComPtr<IRecordInfo> description;
    FUNCDESC* function = nullptr;
    windows::check(module.GetTypeInfo(0, 0, type.put()), "GetTypeInfo");
    DISPID number = 0;
    auto name = const_cast<wchar_t*>(L"Vertrag_Run");
    windows::check(type->GetIDsOfNames(&name, 1, &number), "GetIDsOfNames");
    TYPEATTR* attributes = nullptr;
    windows::check(type->GetTypeAttr(&attributes), "GetTypeAttr");
    const UINT functions = attributes->cFuncs;
    type->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < functions && !record; ++i) {
        windows::check(type->GetFuncDesc(i, &function), "GetFuncDesc");
        if (function->memid == number)
            windows::check(
                type->GetRefTypeInfo(function->lprgelemdescParam[0].tdesc.lptdesc->hreftype, record.put()),
                "GetRefTypeInfo");
        type->ReleaseFuncDesc(function);
    }
    windows::check(GetRecordInfoFromTypeInfo(record.get(), description.put()), "GetRecordInfoFromTypeInfo");
    return description;
}

Dispatch sampleConnection(const std::filesystem::path& file) {
    auto connection = Dispatch::create("Tellurix_Loc.EmbeddedConnection");
    connection.call(L"Open", {windows::narrow(file.wstring())});
    return connection;
}

std::filesystem::path freshFile() {
    return std::filesystem::temp_directory_path() /
           ("tellurix-component-" + std::to_string(GetCurrentProcessId()) + "-" +
            std::to_string(GetCurrentThreadId()) + "-" + std::to_string(GetTickCount64()) + ".db");
}

Outcome invoked(_clsVertrag& module, DISPID number, DISPPARAMS& parameters) {
    EXCEPINFO error{};
    Outcome outcome;
    outcome.code = module.Invoke(number, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr,
                                 &error, &outcome.wrongArgument);
    outcome.source = textOf(error.bstrSource);
    outcome.description = textOf(error.bstrDescription);
    if (outcome.code == DISP_E_EXCEPTION) outcome.code = error.scode;
    SysFreeString(error.bstrSource);
    SysFreeString(error.bstrDescription);
    return outcome;
}

} // namespace

Outcome callDirectly(_clsVertrag& module, RunCall& call) {
    SetErrorInfo(0, nullptr);
    Outcome outcome;
    outcome.code = module.Vertrag_Run(call.record, call.id, Bstr("Name").get(), Bstr(call.type).get(),
                                      Bstr(".").get(), Bstr(",").get(), nullptr, &call.ok, &call.euroChange,
                                      nullptr, 1, VARIANT_FALSE, Bstr("Vertrag").get(), VARIANT_FALSE);
    ComPtr<IErrorInfo> information;
    if (GetErrorInfo(0, information.put()) == S_OK) {
        Bstr source;
        Bstr description;
        information->GetSource(source.put());
        information->GetDescription(description.put());
        outcome.source = textOf(source.get());
        outcome.description = textOf(description.get());
    }
    return outcome;
}

Outcome callByName(_clsVertrag& module, RunCall& call) {
    // The last argument has a name too; the others stand in their places.
    std::array names{const_cast<wchar_t*>(L"Vertrag_Run"), const_cast<wchar_t*>(L"enableKLR")};
    std::array<DISPID, 2> numbers{};
    windows::check(module.GetIDsOfNames(IID_NULL, names.data(), 2, LOCALE_NEUTRAL, numbers.data()),
                   "GetIDsOfNames");
    const auto type = call.recordType == nullptr ? recordType(module) : ComPtr<IRecordInfo>(call.recordType);
    const Variant record = call.record == nullptr ? Variant() : Variant::reference(call.record, *type);
    // Backwards.
    std::array<Variant, 14> arguments{false,
                                      "Vertrag",
                                      false,
                                      std::int16_t{1},
                                      ComPtr<IDispatch>(),
                                      Variant::reference(call.euroChange),
                                      Variant::reference(call.ok),
                                      "",
                                      ",",
                                      ".",
                                      call.type,
                                      "Name",
                                      call.id,
                                      record};
    DISPPARAMS parameters{arguments.data(), &numbers[1], static_cast<UINT>(arguments.size()), 1};
    return invoked(module, numbers[0], parameters);
}

Outcome callReportByName(_clsVertrag& module, const wchar_t* operation, ::TlxVar& record) {
    auto name = const_cast<wchar_t*>(operation);
    DISPID number = 0;
    windows::check(module.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &number), "GetIDsOfNames");
    const auto type = recordType(module); // a reference to a record does not hold its type
    std::array<Variant, 2> arguments{std::int16_t{1}, Variant::reference(&record, *type)};
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return invoked(module, number, parameters);
}

ComponentClient::Apartment::Apartment() {
    windows::check(OleInitialize(nullptr), "OleInitialize");
}

ComponentClient::Apartment::~Apartment() {
    OleUninitialize();
}

ComponentClient::ComponentClient()
    : file_(freshFile()),
      connection_(sampleConnection(file_)),
      record_{.Connection = connection_.object().get(),
              .AccessLevel = 0,
              .HomeCurrency = currency_.get(),
              .Site = nullptr,
              .User = user_.get(),
              .Language = language_.get()},
      moduleService_(Dispatch::create("Tellurix_Loc.HostModuleService")) {
    const auto listener = ComPtr<IDispatch>::adopt(
        new windows::NotificationListener([this](const std::string& code, const std::string& type) {
            notifications.push_back(code + " " + type);
        }));
    moduleService_.putReference(L"Listener", Dispatch(listener));
}

ComponentClient::~ComponentClient() {
    if (connection_.get(L"State").integer() != 0) connection_.call(L"Close");
    std::error_code ignored;
    for (const wchar_t* suffix : {L"", L"-wal", L"-shm"})
        std::filesystem::remove(file_.wstring() + suffix, ignored);
}

ComPtr<_clsVertrag> ComponentClient::createModule() const {
    ComPtr<_clsVertrag> module;
    windows::check(CoCreateInstance(__uuidof(clsVertrag), nullptr, CLSCTX_INPROC_SERVER,
                                    __uuidof(_clsVertrag), module.putVoid()),
                   "Tellurix_Vertrag.clsVertrag");
    return module;
}

} // namespace tellurix::tests
