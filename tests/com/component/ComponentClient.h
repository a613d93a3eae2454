#pragma once

#include "com/automation/Bstr.h"
#include "com/automation/Dispatch.h"

#include <Tellurix_Vertrag.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tellurix::tests {

/// How a call of the component ended, as its client sees it.
struct Outcome {
    HRESULT code = S_OK;
    std::string source;
    std::string description;
    UINT wrongArgument = 0; ///< place of the argument that is to blame, the last one first
};

/// What a host hands over to Vertrag_Run and gets back.
struct RunCall {
    std::int32_t id = 1;
    std::string type = "R";
    windows::Variant ok{false};
    VARIANT_BOOL euroChange = VARIANT_FALSE;
    ::TlxVar* record = nullptr;
    IRecordInfo* recordType = nullptr; ///< for a call by name, when it is not ours
};

/// Ways to call clsVertrag: through the interface of its type library, or by name with the session
/// record as an argument of IDispatch::Invoke.
Outcome callDirectly(_clsVertrag& module, RunCall& call);
Outcome callByName(_clsVertrag& module, RunCall& call);
/// Calls one of the two report operations by name, for the contract kind 1.
Outcome callReportByName(_clsVertrag& module, const wchar_t* operation, ::TlxVar& record);

/// A host on the calling thread: an apartment, a connection to a fresh sample database, a session
/// record, and an ear for notifications.
class ComponentClient {
public:
    ComponentClient();
    ~ComponentClient();
    ComponentClient(const ComponentClient&) = delete;
    ComponentClient& operator=(const ComponentClient&) = delete;

    windows::ComPtr<_clsVertrag> createModule() const;
    ::TlxVar& record() { return record_; }
    windows::Dispatch& connection() { return connection_; }
    /// "1VVM R" and the like, in their order.
    std::vector<std::string> notifications;

private:
    struct Apartment {
        Apartment();
        ~Apartment();
    };

    Apartment apartment_;
    std::filesystem::path file_;
    windows::Dispatch connection_;
    windows::Bstr currency_{"CHF"};
    windows::Bstr user_{"test"};
    windows::Bstr language_{"de"};
    ::TlxVar record_;
    windows::Dispatch moduleService_;
};

} // namespace tellurix::tests
