// What a thread keeps when it lets go of the component's objects, and which screens stand beside each other.
#include "com/component/Apartment.h"
#include "com/server/ThreadMemory.h"
#include "com/server/shared_by_thread.h"
#include "standin/windows_host/libraries.h"
#include "tests/com/component/ComponentClient.h"

#include <gtest/gtest.h>

#include <future>

namespace tellurix::tests {
namespace {

using windows::Apartment;

/// A kept screen that counts what it is asked to remember.
struct Remembering final : host::Screen {
    std::string value;

    host::ScreenMemory memory() const override { return {{"value", value}}; }
    void resume(const host::ScreenMemory& memory) override { value = memory.at("value"); }
};

struct MainWindow final : host::HostMainWindow {
    bool IsArtikel() override { return false; }
};

Remembering& keptScreen() {
    return host::moduleState().screen<Remembering>("screen", [] { return std::make_unique<Remembering>(); });
}

TEST(ThreadOfTheHost, KeepsThePlainValuesFromOneObjectToTheNext) {
    const auto mainWindow = std::make_shared<MainWindow>();
    {
        const auto apartment = windows::sharedByThread<Apartment>();
        host::HostContext& context = host::moduleState().context;
        context.StrVer_Type = "A3";
        context.F_Main = mainWindow;
        context.g_intStandardMandanten = 7;
        keptScreen().value = "12";
    }
    EXPECT_EQ(mainWindow.use_count(), 1) << "an object of the host's is let go";
    std::thread([] {
        const auto apartment = windows::sharedByThread<Apartment>();
        EXPECT_EQ(host::moduleState().context.StrVer_Type, "") << "another thread";
        host::moduleState().context.StrVer_Type = "A5";
    }).join();
    for (int i = 0; i < 2; ++i) {
        const auto apartment = windows::sharedByThread<Apartment>();
        EXPECT_EQ(host::moduleState().context.StrVer_Type, "A3");
        EXPECT_EQ(host::moduleState().context.g_intStandardMandanten, 7);
        EXPECT_EQ(host::moduleState().context.F_Main, nullptr);
        if (i == 0) continue; // A screen that nobody has asked for meanwhile is remembered as well.
        EXPECT_EQ(keptScreen().value, "12");
        host::moduleState().release("screen");
        EXPECT_EQ(keptScreen().value, "") << "a released screen begins anew";
    }
}

TEST(ThreadOfTheHost, FreesItsValuesAtItsEndOrWhenTheLibraryGoes) {
    const auto held = std::make_shared<int>();
    auto memory = std::make_unique<windows::ThreadMemory<std::shared_ptr<int>>>();
    std::thread([&] { memory->put(held); }).join();
    EXPECT_EQ(held.use_count(), 1) << "the thread has ended";

    memory->put(held);
    std::promise<void> filled;
    std::promise<void> gone;
    std::thread other([&] {
        memory->put(held);
        filled.set_value();
        gone.get_future().wait();
    });
    filled.get_future().wait();
    EXPECT_EQ(held.use_count(), 3);
    memory.reset();
    EXPECT_EQ(held.use_count(), 1) << "of every thread";
    gone.set_value();
    other.join();
}

TEST(ThreadOfTheHost, ShowsReportsBesideNothingButEachOther) {
    windows::registerLibraries();
    ComponentClient host;
    const auto apartment = windows::sharedByThread<Apartment>();
    using enum Apartment::Kind;
    const auto call = [&](Apartment::Kind kind) {
        auto record =
            std::make_unique<windows::HostsRecord>(&host.record(), windows::RecordType::registered());
        return std::make_unique<Apartment::Call>(*apartment, kind, std::move(record), nullptr);
    };
    const struct {
        const char* rule;
        Apartment::Kind open;
        Apartment::Kind asked;
        bool shown;
    } cases[] = {
        {"a contract beside a contract", contract, contract, false},
        {"a report beside a contract", contract, quantityReport, false},
        {"a contract beside a report", provisionReport, contract, false},
        {"a report beside the other", provisionReport, quantityReport, true},
        {"a report beside itself", provisionReport, provisionReport, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.rule);
        const auto open = call(c.open);
        if (c.shown)
            EXPECT_NO_THROW(call(c.asked));
        else
            EXPECT_THROW(call(c.asked), windows::AutomationError);
        open->screenIsClosed();
        EXPECT_NO_THROW(call(c.asked)) << "afterwards";
    }
}

} // namespace
} // namespace tellurix::tests
