#include "module/entry/C_Version.h"
#include "module/entry/clsVertrag.h"
#include "module/host/ReportScreen.h"
#include "tests/support/ContractTest.h"

#include <thread>

namespace tellurix::tests {
namespace {

class EntryClass : public ContractTest {};

TEST_F(EntryClass, MapsContractTypes) {
    struct Case {
        const char* code;
        const char* type;
    };
    const host::clsVertrag module{host.services};
    for (const Case& c : {Case{"R", "V"},
                          {"r", "V"},
                          {"A1", "V1"},
                          {"a3", "V3"},
                          {"A8", "V8"},
                          {"A9", ""},
                          {"A0", ""},
                          {"A11", ""},
                          {"V", ""},
                          {"", ""}}) {
        EXPECT_EQ(module.GetVertragType(c.code), c.type) << c.code;
    }
    EXPECT_EQ(host::C_Version{}.DLL_Version(), "2.0");
}

TEST_F(EntryClass, NotifiesTheHostByTheExactTypeCode) {
    struct Case {
        const char* rule;
        const char* code;
        std::vector<std::string> requests;
        const char* type;
    };
    const Case cases[] = {
        {"supply contracts", "R", {"1VVM/R"}, "V"},
        {"a small letter opens, but notifies nobody", "r", {}, "V"},
        {"the digit goes into the code", "A3", {"2VABR3/A3"}, "V3"},
        {"a small letter here, too", "a3", {}, "V3"},
        {"an unknown code", "A9", {}, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.requests.clear();
        host.display.onWindow("F_Vertrag", [&](User& user) {
            EXPECT_TRUE(host.requests.empty()) << "only after the editor is closed";
            user.close();
        });
        host.openContract(1, c.code);
        EXPECT_EQ(host.requests, c.requests);
        EXPECT_EQ(host::moduleState().context.VerType, c.type);
    }
}

TEST_F(EntryClass, HandsTheFlagsBack) {
    host.blnOK = std::string{"True"};
    host.bolEuroChange = static_cast<host::Boolean16>(1);
    host.display.onWindow("F_Vertrag", [this](User& user) {
        EXPECT_EQ(host::moduleState().context.blnOK, host::Boolean16::True);
        EXPECT_EQ(host::moduleState().context.strDecimalSep, ",");
        host.blnOK = false; // what the caller's variables hold meanwhile
        host.bolEuroChange = host::Boolean16::False;
        user.close();
    });
    host.openContract(1);
    EXPECT_EQ(host.blnOK, host::Variant{true});
    EXPECT_EQ(static_cast<int>(host.bolEuroChange), 1) << "written back as it was read";

    // Opening the header clears the flag, and nothing but the person picker sets it again.
    host.display.onWindow("F_Vertrag", [](User& user) {
        user.click("btnHeader");
        user.close();
    });
    host.display.onWindow("F_HeaderVertrag", [](User& user) { user.click("btnOk"); });
    host.openContract(1);
    EXPECT_EQ(host.blnOK, host::Variant{false});

    host.blnOK = std::string{"vielleicht"};
    EXPECT_THROW(host.openContract(1), std::invalid_argument);
}

/// A report screen that says with what it was called.
struct RecordingScreen final : host::ReportScreen {
    explicit RecordingScreen(std::string& seen) : seen_(seen) {}
    void Run(const host::TlxVar&, std::int16_t modul) override {
        seen_ = calls_ += std::to_string(modul) + " ";
    }

private:
    std::string calls_;
    std::string& seen_;
};

TEST_F(EntryClass, OfTheReportScreensOnlyThatOfQuantitiesIsKept) {
    std::string seen;
    host::clsVertrag module{host.services};
    host::moduleState().screens["F_VertragMengenmeldung_WVO"] = std::make_shared<RecordingScreen>(seen);
    const auto held = [] { return host::moduleState().screens.contains("F_Bereitstellung_WVO"); };
    const auto openProvisions = [&] {
        host.display.onWindow("F_Bereitstellung_WVO", [&](User& user) {
            EXPECT_TRUE(held());
            EXPECT_EQ(user.text("txtWaldhelfer"), "") << "a fresh screen";
            user.type("txtWaldhelfer", "Huber");
            module.F_VertragMengenmeldung_WVO_Run(host.session, 1);
            EXPECT_FALSE(held());
            user.close();
        });
        module.F_Bereitstellung_WVO_Run(host.session, 2);
        EXPECT_FALSE(held());
    };
    openProvisions();
    openProvisions();
    EXPECT_EQ(seen, "1 1 ") << "the kept screen, as the first call left it";

    host.database.failOn("FROM WVO_VERTRAG_WALDHELFER");
    EXPECT_THROW(module.F_Bereitstellung_WVO_Run(host.session, 2), base::DatabaseError);
    EXPECT_FALSE(held()) << "one that failed is not kept either";
}

TEST_F(EntryClass, ThreadsShareNoValues) {
    host.display.onWindow("F_Vertrag", [&](User& user) {
        std::thread other{[] {
            EXPECT_EQ(host::moduleState().context.StrVer_Type, "");
            EXPECT_TRUE(host::moduleState().screens.empty());
            host::moduleState().context.StrVer_Type = "A5";
            host::releaseModuleState();
        }};
        other.join();
        EXPECT_EQ(host::moduleState().context.StrVer_Type, "R");
        user.close();
    });
    host.openContract(1);
    EXPECT_EQ(host.requests, std::vector<std::string>{"1VVM/R"});
}

} // namespace
} // namespace tellurix::tests
