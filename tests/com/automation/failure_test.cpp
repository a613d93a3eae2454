// Codes that objects give for their failures, good and bad ones.

#include "com/automation/AutomationError.h"
#include "com/automation/ComObject.h"
#include "com/automation/Dispatch.h"

namespace tellurix::windows {
namespace {

/// An object every call of which fails, with a code or a small number of its own.
class Failing final : public ComObject<IDispatch> {
public:
    Failing(SCODE code, WORD number) : code_(code), number_(number) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* number) override {
        *number = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO* error,
                                     UINT*) override {
        *error = {};
        error->scode = code_;
        error->wCode = number_;
        return DISP_E_EXCEPTION;
    }

private:
    SCODE code_;
    WORD number_;
};

TEST(Failures, AreNeverTakenForSuccess) {
    constexpr auto numbered = [](int number) {
        return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
    };
    const struct {
        const char* rule;
        SCODE code;
        WORD number;
        HRESULT expected;
    } cases[] = {
        {"a code", E_ACCESSDENIED, 0, E_ACCESSDENIED},
        {"a number", 0, 3021, numbered(3021)},
        {"a number in place of a code", 3021, 0, numbered(3021)},
        {"both", 1, 3021, numbered(3021)},
    };
    for (const auto& c : cases) {
        Dispatch object(ComPtr<IDispatch>::adopt(new Failing(c.code, c.number)));
        const auto call = [&] { object.call(L"Do"); };
        EXPECT_EQ(guarded("Test", call), c.expected) << c.rule;
    }
    EXPECT_EQ(guarded("Test", [] { throw AutomationError(S_FALSE, "Nothing came of it"); }), E_FAIL);
}

} // namespace
} // namespace tellurix::windows
