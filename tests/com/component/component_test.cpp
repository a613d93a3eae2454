#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "display/win32/native/endings.h"
#include "standin/windows_host/libraries.h"
#include "tests/com/component/Closer.h"
#include "tests/com/component/ComponentClient.h"
#include "tests/support/windows/WindowsUser.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace tellurix::tests {
namespace {

using namespace std::chrono_literals;
using windows::Variant;

struct Component : testing::Test {
    static void SetUpTestSuite() { windows::registerLibraries(); }
};

struct Way {
    const char* name;
    Outcome (*call)(_clsVertrag&, RunCall&);
};
constexpr Way ways[] = {{"through the interface", callDirectly}, {"by name", callByName}};

/// @param variable is made one of that type
Variant referenceTo(Variant& variable, VARTYPE type) {
    if (type == VT_VARIANT) return Variant::reference(variable);
    variable = variable.as(type);
    Variant reference;
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = &variable.byref;
    return reference;
}

TEST_F(Component, GivesBackWhatTheHostHandedOverAndTellsItWhatWasEdited) {
    struct Case {
        const char* rule;
        const char* type;
        Variant ok;
        VARIANT_BOOL euroChange;
        const char* okAfter;
        std::vector<std::string> notifications;
        VARTYPE variable = VT_EMPTY; ///< of the variable that the VARIANT refers to
    };
    const Case cases[] = {
        {"a supply contract", "R", Variant(true), VARIANT_FALSE, "True", {"1VVM R"}},
        {"a purchase contract", "A3", Variant(), VARIANT_TRUE, "False", {"2VABR3 A3"}},
        {"a code in small letters", "r", Variant("False"), 7, "False", {}},
        {"a number for a Boolean", "A1", Variant(5), VARIANT_FALSE, "True", {"2VABR1 A1"}},
        {"a variable of any type", "r", Variant("1"), VARIANT_FALSE, "True", {}, VT_VARIANT},
        {"a variable for a byte", "r", Variant(5), VARIANT_FALSE, "255", {}, VT_UI1},
        {"a variable for 16 bits", "r", Variant(5), VARIANT_FALSE, "65535", {}, VT_UI2},
        {"a variable for 64 bits", "r", Variant(5), VARIANT_FALSE, "-1", {}, VT_I8},
        {"a variable for a single", "r", Variant(5), VARIANT_FALSE, "-1", {}, VT_R4},
        {"a variable for money", "r", Variant(5), VARIANT_FALSE, "-1", {}, VT_CY},
        {"a variable for a text", "r", Variant("1"), VARIANT_FALSE, "True", {}, VT_BSTR},
    };
    ComponentClient host;
    for (const Way& way : ways)
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(c.rule) + " " + way.name);
            host.notifications.clear();
            Variant variable = c.ok;
            RunCall call{.type = c.type, .ok = c.ok, .euroChange = c.euroChange, .record = &host.record()};
            if (c.variable != VT_EMPTY) call.ok = referenceTo(variable, c.variable);
            const Closer closer;
            const Outcome outcome = way.call(*host.createModule(), call);
            EXPECT_EQ(outcome.code, S_OK) << outcome.description;
            EXPECT_EQ(Variant::copyOf(call.ok).text(), c.okAfter);
            EXPECT_EQ(call.euroChange, c.euroChange);
            EXPECT_EQ(host.notifications, c.notifications);
        }
}

TEST_F(Component, TellsTheHostWhatWentWrong) {
    ComponentClient host;
    ::TlxVar unconnected = host.record();
    unconnected.Connection = nullptr;
    struct Case {
        const char* rule;
        RunCall call;
        const char* description;
    };
    const Case cases[] = {
        {"no record", {.record = nullptr}, "TlxVar"},
        {"no connection", {.record = &unconnected}, "connection"},
        {"no such contract", {.id = 4711, .record = &host.record()}, "Vertrag"},
        {"neither true nor false", {.ok = Variant("vielleicht"), .record = &host.record()}, "vielleicht"},
    };
    for (const Way& way : ways)
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(c.rule) + " " + way.name);
            RunCall call = c.call;
            const Outcome outcome = way.call(*host.createModule(), call);
            EXPECT_TRUE(FAILED(outcome.code));
            EXPECT_EQ(outcome.source, "Tellurix_Vertrag.clsVertrag");
            EXPECT_NE(outcome.description.find(c.description), std::string::npos) << outcome.description;
        }
    host.connection().call(L"Close");
    RunCall call{.record = &host.record()};
    EXPECT_TRUE(FAILED(callDirectly(*host.createModule(), call).code)) << "a closed connection";
    EXPECT_TRUE(FAILED(host.createModule()->F_Bereitstellung_WVO_Run(&host.record(), 1)));
    EXPECT_TRUE(host.createModule().as<ISupportErrorInfo>());
}

TEST_F(Component, OpensBothReportsDirectlyAndByName) {
    const struct {
        const char* form;
        HRESULT (*run)(_clsVertrag&, ::TlxVar&);
        const wchar_t* name;
    } cases[] = {
        {"F_Bereitstellung_WVO",
         [](_clsVertrag& module, ::TlxVar& record) { return module.F_Bereitstellung_WVO_Run(&record, 1); },
         L"F_Bereitstellung_WVO_Run"},
        {"F_VertragMengenmeldung_WVO",
         [](_clsVertrag& module, ::TlxVar& record) {
             return module.F_VertragMengenmeldung_WVO_Run(&record, 1);
         },
         L"F_VertragMengenmeldung_WVO_Run"},
    };
    ComponentClient host;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.form);
        const auto module = host.createModule();
        {
            const Closer closer{c.form};
            EXPECT_EQ(c.run(*module, host.record()), S_OK);
            EXPECT_TRUE(closer.closed());
        }
        const Closer closer{c.form};
        EXPECT_EQ(callReportByName(*module, c.name, host.record()).code, S_OK);
        EXPECT_TRUE(closer.closed());
    }
    EXPECT_EQ(host.notifications, std::vector<std::string>{}) << "only contracts notify";
}

TEST_F(Component, NamesTheArgumentThatDoesNotFitBeforeAnythingIsOpened) {
    ComponentClient host;
    const auto module = host.createModule();
    Variant number(5);
    RunCall run{.ok = referenceTo(number, VT_DECIMAL), .record = &host.record()};
    EXPECT_EQ(callDirectly(*module, run).code, DISP_E_TYPEMISMATCH);
    const Outcome outcome = callByName(*module, run);
    EXPECT_EQ(outcome.code, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(outcome.wrongArgument, 6U);

    const struct {
        const char* rule;
        Variant argument;
        HRESULT code;
    } cases[] = {
        {"an object for a text", windows::ComPtr<IDispatch>(module.get()), DISP_E_TYPEMISMATCH},
        {"left out", Variant::missing(), DISP_E_PARAMNOTOPTIONAL},
        {"right", "R", S_OK},
    };
    DISPID operation = 0;
    auto name = const_cast<wchar_t*>(L"GetVertragType");
    module->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &operation);
    for (const auto& c : cases) {
        Variant argument = c.argument;
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        UINT wrong = 4711;
        EXPECT_EQ(module->Invoke(operation, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr,
                                 nullptr, &wrong),
                  c.code)
            << c.rule;
        EXPECT_EQ(wrong, c.code == DISP_E_TYPEMISMATCH ? 0U : 4711U) << c.rule;
    }
}

TEST_F(Component, GivesEachThreadValuesAndWindowsOfItsOwn) {
    struct Apartment {
        std::string type;
        std::vector<std::string> notifications{};
        std::promise<DWORD> thread{};
        std::future<HRESULT> ended{};
    };
    std::array<Apartment, 2> apartments{Apartment{.type = "R"}, Apartment{.type = "A3"}};
    std::array<HWND, 2> editors{};
    for (std::size_t i = 0; i < 2; ++i) {
        Apartment& apartment = apartments[i];
        apartment.ended = std::async(std::launch::async, [&apartment] {
            ComponentClient host;
            RunCall call{.type = apartment.type, .record = &host.record()};
            apartment.thread.set_value(GetCurrentThreadId());
            const Outcome outcome = callDirectly(*host.createModule(), call);
            apartment.notifications = host.notifications;
            return outcome.code;
        });
        editors[i] = editorOf(apartment.thread.get_future().get(),
                              [&] { return apartment.ended.wait_for(0s) == std::future_status::timeout; });
        ASSERT_NE(editors[i], nullptr);
    }
    PostMessageW(editors[0], WM_CLOSE, 0, 0);
    EXPECT_EQ(apartments[0].ended.get(), S_OK);
    EXPECT_TRUE(IsWindow(editors[1]) && IsWindowEnabled(editors[1])) << "the other contract stays open";
    PostMessageW(editors[1], WM_CLOSE, 0, 0);
    EXPECT_EQ(apartments[1].ended.get(), S_OK);
    EXPECT_EQ(apartments[0].notifications, std::vector<std::string>{"1VVM R"});
    EXPECT_EQ(apartments[1].notifications, std::vector<std::string>{"2VABR3 A3"});
}

/// For the timer of the next test, which can be given nothing else.
ComponentClient* hostOfTimer = nullptr;
Outcome outcomeOfTimer;

void CALLBACK openSecond(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    RunCall call{.record = &hostOfTimer->record()};
    outcomeOfTimer = callDirectly(*hostOfTimer->createModule(), call);
    PostMessageW(editorOf(GetCurrentThreadId(), [] { return true; }), WM_CLOSE, 0, 0);
}

TEST_F(Component, TakesNoSecondContractOnAThreadThatShowsOne) {
    ComponentClient host;
    hostOfTimer = &host;
    // As a host's own timer would do it, which goes on while the editor is open.
    SetTimer(nullptr, 0, 50, openSecond);
    RunCall call{.record = &host.record()};
    EXPECT_EQ(callDirectly(*host.createModule(), call).code, S_OK);
    EXPECT_EQ(outcomeOfTimer.code, HRESULT_FROM_WIN32(ERROR_BUSY)) << outcomeOfTimer.description;
}

TEST_F(Component, EndsWithTheHostsThreadOrWindowWhateverIsOpen) {
    ComponentClient host;
    const DWORD thread = GetCurrentThreadId();
    const auto module = host.createModule();
    // A dialog of the library is open above the editor, or what is edited has not been saved.
    for (const char* clicked : {"KundeButton", "chkAbgeschlossen"})
        for (const bool byThread : {true, false}) {
            SCOPED_TRACE(std::string(clicked) + (byThread ? ", thread" : ", window"));
            HWND window = CreateWindowW(L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                                        nullptr, nullptr, nullptr, nullptr);
            SetActiveWindow(window);
            auto script = std::async(std::launch::async, [&] {
                editorOf(thread, [] { return true; });
                WindowsUser user(thread);
                user.click(user.control(clicked));
                byThread ? PostThreadMessageW(thread, WM_QUIT, 0, 0) : PostMessageW(window, WM_CLOSE, 0, 0);
            });
            RunCall call{.record = &host.record()};
            const Outcome outcome = callDirectly(*module, call);
            script.get();
            EXPECT_EQ(outcome.code, byThread ? E_UNEXPECTED : windows::OwnerClosed::result);
            EXPECT_NE(outcome.description.find("Aufrufer"), std::string::npos) << outcome.description;
            MSG quit{};
            EXPECT_EQ(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0, byThread)
                << "for the host's own loop";
            DestroyWindow(window);
        }
    windows::Dispatch saved(host.connection().call(
        L"Execute", {"SELECT COUNT(*) AS N FROM VERTRAEGE WHERE ID_VERTRAG = 1 AND ABGESCHLOSSEN = 1"}));
    EXPECT_EQ(windows::Dispatch(saved.get(L"Fields", {0})).get(L"Value").integer(), 0);
    RunCall again{.record = &host.record()};
    const Closer closer;
    EXPECT_EQ(callDirectly(*module, again).code, S_OK);
}

TEST_F(Component, IsUnloadedWhenNobodyUsesItOnWhateverThread) {
    const auto openOnce = [] {
        ComponentClient host;
        RunCall call{.record = &host.record()};
        const Closer closer;
        EXPECT_EQ(callDirectly(*host.createModule(), call).code, S_OK);
    };
    for (int i = 0; i < 3; ++i) {
        i == 0 ? openOnce() : std::thread(openOnce).join();
        for (const wchar_t* library : {L"Tellurix_Vertrag.dll", L"Tellurix_Loc.dll"})
            EXPECT_EQ(GetModuleHandleW(library), nullptr) << windows::narrow(library);
    }
}

/// What a script writes to its console.
std::string outputOf(const std::string& script) {
    std::string command = "cscript //nologo Z:";
    command.append(TELLURIX_TEST_FOLDER).append("/").append(script);
    FILE* const console = _popen(command.c_str(), "r");
    std::string output;
    for (int c = std::fgetc(console); c != EOF; c = std::fgetc(console))
        output += static_cast<char>(c);
    _pclose(console);
    return output;
}

TEST_F(Component, IsUsedByAScript) {
    EXPECT_EQ(outputOf("client.vbs"), "Everything is as it should be.\n");
}

LONG heightOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect.bottom - rect.top;
}

/// Makes a window 100 pixels higher. @return whether the control becomes so, too
bool growsWith(HWND window, HWND control) {
    const LONG before = heightOf(control);
    RECT rect{};
    GetWindowRect(window, &rect);
    SetWindowPos(window, nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top + 100,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (int i = 0; i < 200 && heightOf(control) < before + 90; ++i)
        std::this_thread::sleep_for(10ms);
    return heightOf(control) >= before + 90;
}

TEST_F(Component, ShowsTheScreensWithTheServicesOfTheHostsLibrary) {
    ComponentClient host;
    const windows::Bstr english("en");
    host.record().Language = english.get();
    RunCall call{.record = &host.record()};
    const DWORD thread = GetCurrentThreadId();
    auto script = std::async(std::launch::async, [&] {
        const HWND editor = editorOf(thread, [] { return true; });
        std::array<wchar_t, 40> caption{};
        WindowsUser user(thread);
        GetWindowTextW(user.control("btnZusatz"), caption.data(), static_cast<int>(caption.size()));
        EXPECT_EQ(windows::narrow(caption.data()), "E&xtra texts");
        for (const char* grid : {"Grid1", "Grid2"})
            EXPECT_TRUE(growsWith(editor, user.control(grid))) << grid;
        user.click(user.control("PreisButton"));
        user.click(user.control("cmdBearbeiten"));
        user.click(user.control("txtHa"));
        user.type("k");
        EXPECT_EQ(WindowsUser::textOf(user.control("txtHa")), "KI") << "completed";
        user.click(user.control("cmdAbbrechen"));
        user.close();
        PostMessageW(editor, WM_CLOSE, 0, 0);
    });
    callDirectly(*host.createModule(), call);
    script.get();
}

} // namespace
} // namespace tellurix::tests
