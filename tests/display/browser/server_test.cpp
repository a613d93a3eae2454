#include "display/browser/network/Server.h"

#include "tests/display/browser/RawPage.h"
#include "tests/support/DemoForm.h"

#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <ctime>
#include <thread>

namespace tellurix::browser {
namespace {

using nlohmann::json;
using namespace std::chrono_literals;

class ServerTest : public testing::Test {
protected:
    Server& start(ServerOptions options = {.grace = 400ms}) {
        server_ = std::make_unique<Server>(
            [this](BrowserDisplay& display) {
                tests::DemoForm form{display};
                const Ended ended{*this};
                display.showModal(form);
            },
            options);
        return *server_;
    }

    /// Waits a while for something to become true.
    template <typename Condition>
    static bool soon(Condition condition) {
        for (int i = 0; i < 300; ++i) {
            if (condition()) return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }

    static int idOf(const RawPage& page, const std::string& control) {
        for (const json& window : page.drawing["opened"])
            for (const json& drawn : window["controls"])
                if (drawn["name"] == control) return drawn["id"];
        return -1;
    }
    static std::string textOf(const RawPage& page, const std::string& control) {
        return page.drawing["opened"]
            .front()["controls"][static_cast<std::size_t>(idOf(page, control))]["text"];
    }
    static json clicking(const RawPage& page, const std::string& control) {
        return {{"type", "click"}, {"window", 1}, {"control", idOf(page, control)}};
    }
    static json typing(RawPage& page, const std::string& control, const std::string& text) {
        return {{"type", "text"}, {"window", 1}, {"control", idOf(page, control)},
                {"text", text},   {"start", 0},  {"length", 0}};
    }

    /// A connection that says nothing.
    class Silent {
    public:
        Silent() = default;
        ~Silent() { ::close(socket_); }
        Silent(const Silent&) = delete;
        Silent& operator=(const Silent&) = delete;

        bool connect(const Server& server) const {
            sockaddr_in address{};
            address.sin_family = AF_INET;
            address.sin_port = htons(server.port());
            address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            return ::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
        }
        /// Waits until the other side closes it. @return whether it did before it said anything
        bool isClosed() const {
            char byte = 0;
            return ::recv(socket_, &byte, 1, 0) <= 0;
        }
        void send(const std::string& bytes) const { ::send(socket_, bytes.data(), bytes.size(), 0); }

    private:
        int socket_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    };

    std::atomic<int> ended_ = 0; ///< sessions that came to their end

private:
    struct Ended {
        explicit Ended(ServerTest& test) : test_(test) {}
        ~Ended() { ++test_.ended_; }
        ServerTest& test_;
    };
    std::unique_ptr<Server> server_;
};

TEST_F(ServerTest, SilentTowardsStrangersAndMalformedRequests) {
    Server& server = start({.patience = 300ms, .strangersPatience = 300ms});
    const std::string host = "127.0.0.1:" + std::to_string(server.port());
    const std::string target = server.address().substr(server.address().find("/?"));
    struct Row {
        const char* rule;
        std::string bytes;
        int status;
    };
    for (const auto& row : std::vector<Row>{
             {"the page", "GET " + target + " HTTP/1.1\r\nHost: " + host + "\r\nConnection: close\r\n\r\n",
              200},
             {"no key", "GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n", 403},
             {"two hosts", "GET " + target + " HTTP/1.1\r\nHost: " + host + "\r\nHost: evil.example\r\n\r\n",
              403},
             {"no host", "GET " + target + " HTTP/1.1\r\n\r\n", 403},
             {"cookies of all other programs on this machine",
              "GET " + target + " HTTP/1.1\r\nHost: " + host +
                  "\r\nConnection: close\r\nCookie: " + std::string(20000, 'x') + "\r\n\r\n",
              200},
             {"no HTTP", "hello\r\n\r\n", 0},
             {"endless headers",
              "GET " + target + " HTTP/1.1\r\nHost: " + host + "\r\nX: " + std::string(70000, 'x') +
                  "\r\n\r\n",
              0},
             {"a long body",
              "POST " + target + " HTTP/1.1\r\nHost: " + host + "\r\nContent-Length: 5000\r\n\r\n", 0},
             {"never finished", "GET " + target + " HTTP/1.1\r\nHost: ", 0},
         }) {
        EXPECT_EQ(request(server.port(), row.bytes).status, row.status) << row.rule;
    }
    EXPECT_FALSE(RawPage(server.address(), "http://evil.example").connected());
    EXPECT_FALSE(RawPage(server.address() + "0").connected());
    RawPage silent{server.address()};
    ASSERT_TRUE(silent.connected());
    EXPECT_TRUE(silent.receive().is_null()) << "a page that does not greet is not waited for";
    EXPECT_EQ(server.sessionCount(), 0U);
}

TEST_F(ServerTest, MalformedMessagesCloseTheConnectionAndSpareTheSession) {
    Server& server = start({.grace = 10s, .messageBytes = 100'000});
    struct Row {
        const char* rule;
        std::string message;
        bool binary;
        int code;
    };
    std::string session;
    std::uint64_t number = 0;
    for (const auto& row : std::vector<Row>{
             {"not JSON", "hello", false, 1007},
             {"a wrong type", R"({"n":"x","type":"key"})", false, 1007},
             {"a text within a text within a text", std::string(90'000, '['), false, 1007},
             {"no UTF-8", "\"\xFF\"", false, 1007},
             {"binary", "{}", true, 1003},
             {"too long", std::string(100'001, ' '), false, 1009},
         }) {
        RawPage page{server.address()};
        EXPECT_EQ(page.greet(session, true)["messageBytes"], 100'000);
        if (session.empty()) page.say(typing(page, "txtName", "bleibt"));
        EXPECT_EQ(textOf(page, "txtName"), session.empty() ? "" : "bleibt") << row.rule;
        session = page.session;
        number = page.number;
        page.sendText(row.message, row.binary);
        EXPECT_TRUE(page.receive().is_null()) << row.rule;
        EXPECT_EQ(page.closeCode(), row.code) << row.rule;
    }
    EXPECT_GT(number, 5U) << "the numbers go on from one connection to the next";
    EXPECT_EQ(server.sessionCount(), 1U);
    EXPECT_EQ(ended_, 0);
}

TEST_F(ServerTest, AcknowledgesAnEventWhenItHasHadItsEffect) {
    Server& server = start();
    RawPage page{server.address()};
    page.greet();
    EXPECT_EQ(page.drawing["focus"]["control"], idOf(page, "txtName"));
    const std::string changed = page.say(typing(page, "txtName", "Bär"))["changed"].dump();
    EXPECT_NE(changed.find("\"text\":\"Bär|||\""), std::string::npos) << changed;
    EXPECT_EQ(page.say({{"type", "key"}, {"window", 1}, {"key", 9}})["focus"]["control"],
              idOf(page, "txtDate"));
    for (const char* digit : {"9", "x", "9"})
        page.say({{"type", "character"}, {"window", 1}, {"character", digit}});
    const json refused = page.say({{"type", "key"}, {"window", 1}, {"key", 9}});
    EXPECT_EQ(refused["box"]["text"], "Kein gültiges Datum: 99");
    EXPECT_TRUE(page.say(typing(page, "txtName", "hinter dem Rücken"))["changed"].empty())
        << "nothing but the answer counts as long as a message is shown";
    EXPECT_TRUE(
        page.say({{"type", "answer"}, {"window", refused["box"]["id"]}, {"answer", 6}})["box"].is_null())
        << "an answer that was not offered";
    const json answered = page.say({{"type", "answer"}, {"window", refused["box"]["id"]}, {"answer", 1}});
    EXPECT_TRUE(answered.contains("box") && answered["box"].is_null());
    EXPECT_EQ(answered["focus"]["control"], idOf(page, "txtDate"));
}

TEST_F(ServerTest, EventsForWindowsThatAreNotOnTopAreDropped) {
    Server& server = start();
    RawPage page{server.address()};
    page.greet();
    const json opened =
        page.say({{"type", "click"}, {"window", 1}, {"control", idOf(page, "btnOpen")}})["opened"].front();
    EXPECT_TRUE(page.say(typing(page, "txtName", "unten"))["changed"].empty());
    json above = typing(page, "txtName", "oben");
    above["window"] = opened["id"];
    EXPECT_FALSE(page.say(above)["changed"].empty());
    EXPECT_EQ(page.say({{"type", "close"}, {"window", opened["id"]}})["closed"].front(), opened["id"]);
}

TEST_F(ServerTest, APageThatComesBackFindsEverythingAndRepeatsWhatGotLost) {
    Server& server = start({.grace = 10s});
    std::string session;
    {
        RawPage page{server.address()};
        page.greet();
        session = page.session;
        page.say(typing(page, "txtName", "offen"));
        page.say({{"type", "click"}, {"window", 1}, {"control", idOf(page, "btnQuestion")}});
    }
    RawPage back{server.address()};
    ASSERT_TRUE(
        soon([&] { return RawPage(server.address()).greet(session, false, false).contains("session"); }));
    const json greeting = back.greet(session, true);
    EXPECT_EQ(greeting["session"], session);
    EXPECT_EQ(textOf(back, "txtName"), "offen");
    EXPECT_EQ(back.drawing["box"]["buttons"].size(), 3U);
    back.say({{"type", "answer"}, {"window", back.drawing["box"]["id"]}, {"answer", 7}});
    // The same message twice has its effect once.
    back.sendText(json{{"type", "key"}, {"window", 1}, {"key", 9}, {"n", back.number + 1}}.dump());
    back.sendText(json{{"type", "key"}, {"window", 1}, {"key", 9}, {"n", back.number + 1}}.dump());
    ++back.number;
    const json after = back.say({{"type", "scroll"}, {"window", 1}, {"control", 0}});
    EXPECT_EQ(after["focus"]["control"], idOf(back, "btnSlow"));
}

TEST_F(ServerTest, ALivePageKeepsItsSessionUnlessItIsKnownToBeGone) {
    Server& server = start();
    RawPage first{server.address()};
    first.greet();
    RawPage copy{server.address()};
    copy.greet(first.session);
    EXPECT_NE(copy.session, first.session);
    RawPage reloaded{server.address()};
    reloaded.greet(first.session, true);
    EXPECT_EQ(reloaded.session, first.session);
    EXPECT_EQ(first.receive()["ended"], "takenOver");
    EXPECT_EQ(server.sessionCount(), 2U);
}

TEST_F(ServerTest, AnOldPagesEndLeavesTheNewOneConnected) {
    Server& server = start();
    RawPage old{server.address()};
    old.greet();
    RawPage fresh{server.address()};
    fresh.greet(old.session, true);
    old.vanish();
    // Longer than the session would wait for a page that is gone.
    std::this_thread::sleep_for(600ms);
    EXPECT_FALSE(fresh.say(typing(fresh, "txtName", "noch da"))["changed"].empty());
    EXPECT_EQ(server.sessionCount(), 1U);
}

TEST_F(ServerTest, APageIsToldNothingBeforeItHasTheWholeDrawing) {
    Server& server = start({.grace = 10s});
    std::string session;
    {
        RawPage page{server.address()};
        page.greet();
        session = page.session;
        page.sendText(
            typing(page, "txtName", "vorher").patch(R"([{"op":"add","path":"/n","value":50}])"_json).dump());
        page.sendText(
            clicking(page, "btnSlow").patch(R"([{"op":"add","path":"/n","value":51}])"_json).dump());
        EXPECT_TRUE(page.receive().is_object());
    }
    RawPage back{server.address()};
    ASSERT_TRUE(back.sayHello(session, true).contains("session"));
    // Meanwhile the slow handler comes to its end, and what it changed is drawn.
    std::this_thread::sleep_for(600ms);
    back.sendText(json{{"type", "redraw"}, {"n", 60}}.dump());
    const json first = back.receive();
    EXPECT_TRUE(first.contains("complete")) << first.dump().substr(0, 200);
}

TEST_F(ServerTest, DrawingsCountAsWaitingUntilThePageHasTakenThem) {
    // One whole drawing is half of that.
    Server& server = start({.grace = 10s, .messageBytes = 500'000, .waitingBytes = 100'000});
    RawPage page{server.address()};
    page.greet();
    ASSERT_GT(page.drawing.dump().size(), 40'000U);
    for (int i = 0; i < 6; ++i)
        page.redraw();
    EXPECT_TRUE(page.drawing.is_object())
        << "a page that reads is never cut off, whatever it was sent in all";

    const std::string longText(400'000, 'x');
    page.say(typing(page, "txtKunde", longText));
    page.redraw();
    EXPECT_TRUE(page.drawing.is_object()) << "nor for one drawing, which would be no smaller the next time";
    // Far more than the system keeps for a connection whose page does not read.
    for (int i = 0; i < 25; ++i)
        page.sendText(json{{"type", "redraw"}, {"n", ++page.number}}.dump());
    ASSERT_TRUE(soon([&] {
        return RawPage(server.address()).sayHello(page.session, false, false).contains("session");
    })) << "it has been cut off";
    RawPage back{server.address()};
    back.greet(page.session, true);
    EXPECT_EQ(textOf(back, "txtKunde"), longText);
}

TEST_F(ServerTest, AnAbandonedSessionEndsWithoutAskingItsScreens) {
    Server& server = start();
    const int asked = tests::DemoForm::queriedUnloads;
    std::string session;
    {
        RawPage page{server.address()};
        page.greet();
        session = page.session;
        page.say(typing(page, "txtName", "offen"));
        page.say({{"type", "click"}, {"window", 1}, {"control", idOf(page, "btnOpen")}});
    }
    EXPECT_TRUE(soon([&] { return server.sessionCount() == 0; }));
    EXPECT_EQ(ended_, 1);
    EXPECT_EQ(tests::DemoForm::queriedUnloads, asked);
    RawPage late{server.address()};
    EXPECT_EQ(late.greet(session, true, false)["ended"], "gone");
}

TEST_F(ServerTest, OneSessionTooManyIsToldSo) {
    Server& server = start({.sessions = 3});
    std::vector<std::unique_ptr<RawPage>> pages;
    for (int i = 0; i < 3; ++i) {
        pages.push_back(std::make_unique<RawPage>(server.address()));
        pages.back()->greet();
    }
    RawPage tooMany{server.address()};
    EXPECT_EQ(tooMany.greet()["ended"], "full");
    // Closing one makes room.
    EXPECT_EQ(pages.front()->say({{"type", "close"}, {"window", 1}})["ended"], "closed");
    EXPECT_TRUE(soon([&] { return RawPage(server.address()).greet().contains("session"); }));
}

TEST_F(ServerTest, WhenAllAreTakenASessionInWhichNothingWasDoneGivesItsPlace) {
    Server& server = start({.sessions = 3, .grace = 10s});
    RawPage watched{server.address()};
    watched.greet();
    std::string untouched;
    std::string worked;
    {
        RawPage onlyLooked{server.address()};
        onlyLooked.greet();
        untouched = onlyLooked.session;
        RawPage typed{server.address()};
        typed.greet();
        typed.say(typing(typed, "txtName", "getippt"));
        worked = typed.session;
    }
    RawPage next{server.address()};
    ASSERT_TRUE(soon([&] { return RawPage(server.address()).greet().contains("session"); }));
    EXPECT_EQ(RawPage(server.address()).greet(untouched, false, false)["ended"], "gone");
    RawPage back{server.address()};
    EXPECT_EQ(back.greet(worked)["session"], worked);
    EXPECT_EQ(textOf(back, "txtName"), "getippt");
    EXPECT_FALSE(watched.say(typing(watched, "txtName", "noch da"))["changed"].empty());
}

TEST_F(ServerTest, WhoHasNoKeyNeitherWaitsLongNorKeepsOthersOut) {
    Server& server = start({.sessions = 2, .strangersPatience = 500ms});
    std::vector<std::unique_ptr<Silent>> strangers;
    for (int i = 0; i < 200; ++i) {
        strangers.push_back(std::make_unique<Silent>());
        ASSERT_TRUE(strangers.back()->connect(server));
        strangers.back()->send("GET / HTTP/1.1\r\nHost: ");
    }
    RawPage page{server.address()};
    EXPECT_TRUE(page.greet().contains("session"));
    const auto before = std::chrono::steady_clock::now();
    for (const auto& stranger : strangers)
        EXPECT_TRUE(stranger->isClosed());
    EXPECT_LT(std::chrono::steady_clock::now() - before, 5s) << "not as long as one who has the key";
    EXPECT_FALSE(page.say(typing(page, "txtName", "noch da"))["changed"].empty());
}

TEST_F(ServerTest, WithoutAFileLeftItPausesAndGoesOnWhenThereIsOneAgain) {
    Server& server = start({.strangersPatience = 10s});
    ASSERT_EQ(request(server.port(), "GET / HTTP/1.1\r\n\r\n").status, 403);
    const Silent late;
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const int next = ::dup(0);
    ::close(next);
    const rlimit none{static_cast<rlim_t>(next), limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_TRUE(late.connect(server));
    const std::clock_t before = std::clock();
    std::this_thread::sleep_for(1s);
    const double busy = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    ::setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_LT(busy, 0.3) << "of one second";
    late.send("GET / HTTP/1.1\r\n\r\n");
    EXPECT_FALSE(late.isClosed()) << "it is answered";
}

TEST_F(ServerTest, AnErrorInAnEventIsShownAndTheSessionGoesOn) {
    Server& server = start();
    RawPage page{server.address()};
    page.greet();
    const json failed = page.say({{"type", "click"}, {"window", 1}, {"control", idOf(page, "btnFail")}});
    EXPECT_EQ(failed["box"]["text"], "Die Anweisung ist fehlgeschlagen.");
    EXPECT_EQ(failed["box"]["icon"], "critical");
    EXPECT_TRUE(
        page.say({{"type", "answer"}, {"window", failed["box"]["id"]}, {"answer", 1}})["box"].is_null());
}

TEST_F(ServerTest, StoppingEndsAllSessionsAndTellsTheirPages) {
    Server& server = start({.grace = 10s});
    const int asked = tests::DemoForm::queriedUnloads;
    RawPage page{server.address()};
    page.greet();
    page.say(typing(page, "txtName", "offen"));
    RawPage asking{server.address()};
    asking.greet();
    asking.say({{"type", "click"}, {"window", 1}, {"control", idOf(asking, "btnQuestion")}});
    server.stop();
    EXPECT_EQ(ended_, 2);
    EXPECT_EQ(tests::DemoForm::queriedUnloads, asked);
    EXPECT_EQ(page.receive()["ended"], "stopped");
    EXPECT_EQ(asking.receive()["ended"], "stopped");
}

} // namespace
} // namespace tellurix::browser
