// The component between a host and that host's own library, of which the tests play the classes.
#include "com/automation/variables.h"
#include "com/automation/wide.h"
#include "standin/windows_host/libraries.h"
#include "tests/com/component/Closer.h"
#include "tests/com/component/ComponentClient.h"
#include "tests/com/component/FakeClass.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using windows::Bstr;
using windows::CallArguments;
using windows::ComPtr;
using windows::textOf;
using windows::Variant;

struct HostServices : testing::Test {
    static void SetUpTestSuite() { windows::registerLibraries(); }
};

/// The record as the other host's library has it.
struct OtherRecord {
    IDispatch* Connection;
    BSTR Company;
    BSTR User;
    LONG AccessLevel;
    BSTR HomeCurrency;
    BSTR Site;
    double Rate;
    BSTR Language;
};

/// What a host's own code does when it assigns to a field.
void give(BSTR& field, const char* text) {
    SysFreeString(field);
    field = Bstr(text).detach();
}

/// The record's text field of every call of a service, in their order.
using Seen = std::vector<std::string>;

template <typename Record>
Record& recordOf(const CallArguments& given) {
    return *static_cast<Record*>(windows::followed(given.raw(0)).pvRecord);
}

/// Has a class of the host's library say that it belongs to another type library, while this lives.
class RegisteredInstead {
public:
    RegisteredInstead(ITypeLib& library, const wchar_t* progId) {
        windows::check(RegisterTypeLib(&library, windows::widen("Z:" OTHER_HOST_TLB).data(), nullptr),
                       "RegisterTypeLib");
        windows::check(library.GetLibAttr(&attributes_), "GetLibAttr");
        CLSID id{};
        CLSIDFromProgID(progId, &id);
        key_ = L"CLSID\\" + written(id) + L"\\TypeLib";
        wchar_t present[40];
        DWORD bytes = sizeof present;
        RegGetValueW(HKEY_CLASSES_ROOT, key_.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, present, &bytes);
        own_ = present;
        setLibrary(written(attributes_->guid));
        library_ = ComPtr<ITypeLib>(&library);
    }
    ~RegisteredInstead() {
        setLibrary(own_);
        UnRegisterTypeLib(attributes_->guid, attributes_->wMajorVerNum, attributes_->wMinorVerNum,
                          attributes_->lcid, attributes_->syskind);
        library_->ReleaseTLibAttr(attributes_);
    }
    RegisteredInstead(const RegisteredInstead&) = delete;
    RegisteredInstead& operator=(const RegisteredInstead&) = delete;

private:
    static std::wstring written(REFGUID id) {
        std::array<wchar_t, 40> text{};
        StringFromGUID2(id, text.data(), 40);
        return text.data();
    }
    void setLibrary(const std::wstring& id) const {
        RegSetKeyValueW(HKEY_CLASSES_ROOT, key_.c_str(), nullptr, REG_SZ, id.c_str(),
                        static_cast<DWORD>((id.size() + 1) * sizeof(wchar_t)));
    }

    std::wstring key_;
    std::wstring own_;
    TLIBATTR* attributes_ = nullptr;
    ComPtr<ITypeLib> library_;
};

/// Opens a contract with a record; the library's data access changes a text of it.
/// @param call does it
template <typename Record>
void expectTheHostsOwn(Record& own, BSTR Record::*text, const std::function<Outcome()>& call) {
    Seen localizing;
    Seen notifying;
    const FakeClass dataAccess(L"Tellurix_Loc.HostDataAccess", [&](const CallArguments& given) {
        EXPECT_NE(&recordOf<Record>(given), &own) << "the screen's copy";
        EXPECT_EQ(textOf(recordOf<Record>(given).*text), "Nord");
        give(recordOf<Record>(given).*text, "Süd");
        return Variant();
    });
    const FakeClass localizer(L"Tellurix_Loc.HostLocalizer", [&](const CallArguments& given) {
        // Its other operation, Text, begins with the number.
        if (given.raw(0).vt != VT_I4) localizing.push_back(textOf(recordOf<Record>(given).*text));
        return Variant();
    });
    const FakeClass module(L"Tellurix_Loc.HostModuleService", [&](const CallArguments& given) {
        if (given[1].text() != "1VVM") return Variant();
        EXPECT_EQ(&recordOf<Record>(given), &own);
        notifying.push_back(textOf(recordOf<Record>(given).*text));
        return Variant();
    });
    const Closer closer;
    const Outcome outcome = call();
    EXPECT_EQ(outcome.code, S_OK) << outcome.description;
    EXPECT_EQ(localizing, (Seen{"Süd", "Süd", "Süd"})) << "of the editor and of both screens of lines";
    EXPECT_EQ(notifying, Seen{"Nord"}) << "nobody has changed the host's";
    EXPECT_EQ(textOf(own.*text), "Nord");
}

TEST_F(HostServices, GetTheScreensCopyOfTheRecordAndTheNotificationTheHostsOwn) {
    ComponentClient host;
    const Bstr user("Nord");
    host.record().User = user.get();
    for (const auto way : {callDirectly, callByName})
        expectTheHostsOwn(host.record(), &::TlxVar::User, [&] {
            RunCall call{.record = &host.record()};
            return way(*host.createModule(), call);
        });
}

TEST_F(HostServices, GetWhateverElseTheHostsOwnKindOfRecordHas) {
    ComponentClient host;
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> record;
    ComPtr<IRecordInfo> type;
    windows::check(LoadTypeLibEx(windows::widen("Z:" OTHER_HOST_TLB).c_str(), REGKIND_NONE, library.put()),
                   OTHER_HOST_TLB);
    library->GetTypeInfo(0, record.put());
    windows::check(GetRecordInfoFromTypeInfo(record.get(), type.put()), "GetRecordInfoFromTypeInfo");

    const Bstr company("Nord");
    const Bstr currency("CHF");
    OtherRecord own{.Connection = host.connection().object().get(),
                    .Company = company.get(),
                    .User = nullptr,
                    .AccessLevel = 3,
                    .HomeCurrency = currency.get(),
                    .Site = nullptr,
                    .Rate = 1.25,
                    .Language = nullptr};
    const auto otherRecord = reinterpret_cast<::TlxVar*>(&own);
    expectTheHostsOwn(own, &OtherRecord::Company, [&] {
        RunCall call{.record = otherRecord, .recordType = type.get()};
        return callByName(*host.createModule(), call);
    });

    // A record that comes through the interface says nothing of its kind: the registered library does.
    const RegisteredInstead other(*library, L"Tellurix_Loc.HostDataAccess");
    expectTheHostsOwn(own, &OtherRecord::Company, [&] {
        RunCall call{.record = otherRecord};
        return callDirectly(*host.createModule(), call);
    });
}

TEST_F(HostServices, AreNamedInTheUsersLanguageWhenTheyFail) {
    const struct {
        const char* language;
        const char* message;
    } cases[] = {
        {"de", "Der Dienst Tellurix_Loc.HostDataAccess (ReadValue) ist gescheitert: Kein Zutritt"},
        {"en", "The service Tellurix_Loc.HostDataAccess (ReadValue) has failed: Kein Zutritt"},
    };
    ComponentClient host;
    const FakeClass dataAccess(L"Tellurix_Loc.HostDataAccess", [](const CallArguments&) -> Variant {
        throw windows::AutomationError(E_ACCESSDENIED, "Kein Zutritt", "Host");
    });
    for (const auto& c : cases) {
        const Bstr language(c.language);
        host.record().Language = language.get();
        RunCall call{.record = &host.record()};
        const Outcome outcome = callDirectly(*host.createModule(), call);
        EXPECT_EQ(outcome.code, E_ACCESSDENIED);
        EXPECT_EQ(outcome.source, "Host");
        EXPECT_EQ(outcome.description, c.message);
    }
}

TEST_F(HostServices, GiveTheSessionWhatTheyPutIntoItsRecord) {
    ComponentClient host;
    const FakeClass dataAccess(L"Tellurix_Loc.HostDataAccess", [](const CallArguments& given) {
        give(recordOf<::TlxVar>(given).Language, "en");
        return Variant();
    });
    const FakeClass localizer(L"Tellurix_Loc.HostLocalizer", [](const CallArguments&) -> Variant {
        throw windows::AutomationError(E_ACCESSDENIED, "No access", "Host");
    });
    RunCall call{.record = &host.record()};
    const Outcome outcome = callDirectly(*host.createModule(), call);
    EXPECT_EQ(outcome.description.find("The service Tellurix_Loc.HostLocalizer ("), 0U)
        << "the module's own texts are in the language now: " << outcome.description;
    EXPECT_EQ(textOf(host.record().Language), "de") << "the host's own record is as it was";
}

TEST_F(HostServices, AreNotifiedWhenTheEditorIsClosedAndItsAnswersAreWritten) {
    struct Case {
        const char* rule;
        std::function<void(ComponentClient&)> meanwhile;
        bool fails;
    };
    const Case cases[] = {
        {"answers are written before", [](ComponentClient&) {}, false},
        {"and stay when the notification fails",
         [](ComponentClient&) { throw windows::AutomationError(E_ACCESSDENIED, "Kein Zutritt", "Host"); },
         true},
        {"the next contract is opened by it",
         [](ComponentClient& host) {
             RunCall next{.type = "r", .record = &host.record()};
             const Closer closer;
             EXPECT_EQ(callDirectly(*host.createModule(), next).code, S_OK);
         },
         false},
    };
    for (const auto way : {callDirectly, callByName})
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            ComponentClient host;
            RunCall call{.ok = Variant(5), .record = &host.record()};
            int notified = 0;
            const FakeClass module(L"Tellurix_Loc.HostModuleService", [&](const CallArguments& given) {
                if (given[1].text() != "1VVM") return Variant();
                ++notified;
                EXPECT_EQ(call.ok.vt, VT_BOOL);
                c.meanwhile(host);
                return Variant();
            });
            const Closer closer;
            EXPECT_EQ(FAILED(way(*host.createModule(), call).code), c.fails);
            EXPECT_EQ(notified, 1);
            EXPECT_EQ(call.ok.text(), "True");
        }
}

} // namespace
} // namespace tellurix::tests
