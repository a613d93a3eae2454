#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/ComObject.h"
#include "com/automation/DispatchObject.h"

#include <functional>
#include <string>

namespace tellurix::tests {

/// A class of the host's library that a test stands in for, in this process and as long as this lives.
class FakeClass {
public:
    using Operation = std::function<windows::Variant(const windows::CallArguments&)>;

    /// @param progId such as "Tellurix_Loc.HostDataAccess", which is registered
    /// @param work does every operation of the class, whatever its name
    FakeClass(const wchar_t* progId, Operation work) {
        CLSID id{};
        windows::check(CLSIDFromProgID(progId, &id), "CLSIDFromProgID");
        const auto object = windows::ComPtr<Object>::adopt(new Object(std::move(work)));
        const auto factory = windows::ComPtr<IClassFactory>::adopt(new Factory(object));
        windows::check(
            CoRegisterClassObject(id, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_),
            "CoRegisterClassObject");
    }
    ~FakeClass() { CoRevokeClassObject(cookie_); }
    FakeClass(const FakeClass&) = delete;
    FakeClass& operator=(const FakeClass&) = delete;

private:
    class Object final : public windows::DispatchObject {
    public:
        explicit Object(Operation work) {
            const auto all = [work = std::move(work)](Object&, const windows::CallArguments& given) {
                return work(given);
            };
            for (const wchar_t* name : {L"ReadValue", L"Request", L"Localize", L"Text"})
                table_.method<Object>(name, all);
        }

    protected:
        const windows::DispatchTable& table() const override { return table_; }
        const char* source() const override { return "The host"; }

    private:
        windows::DispatchTable table_;
    };

    class Factory final : public windows::ComObject<IClassFactory> {
    public:
        explicit Factory(windows::ComPtr<Object> object) : object_(std::move(object)) {}

        HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** answer) override {
            return object_->QueryInterface(id, answer);
        }
        HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

    private:
        windows::ComPtr<Object> object_;
    };

    DWORD cookie_ = 0;
};

} // namespace tellurix::tests
