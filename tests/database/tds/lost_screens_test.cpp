// Screens over the driver while the network or the server fails under them.

#include "database/odbc/Database.h"
#include "tests/database/odbc/TcpProxy.h"
#include "tests/database/tds/TdsServer.h"
#include "tests/support/SampleDatabase.h"
#include "tests/support/TestHost.h"

#include <chrono>
#include <thread>

namespace tellurix::tests {
namespace {

/// The sample trade behind a server, and a host whose way there can fail.
class ScreensOverALine : public testing::Test {
private:
    SampleDatabase sample_;
    TdsServer server_{sample_.file(), testClock(), {}};

protected:
    /// What a user does in the price lines of the first contract.
    void editPrices(const ScriptedDisplay::Script& script) {
        host.display.onWindow("F_Vertrag", [=, this](User& user) {
            host.display.onWindow("F_VertragPreise", script);
            user.click("PreisButton");
            user.click("btnAbbrechen");
        });
        host.openContract(1);
    }
    /// What is in the database, past the line.
    std::string stored(const std::string& query) { return firstRow(*direct_, query); }
    void loseTheConnection() {
        line.cut();
        std::this_thread::sleep_for(std::chrono::milliseconds{100});
    }
    /// One more error was shown, and tells of the server.
    void expectServerMissed() {
        ASSERT_EQ(host.display.errors().size(), ++missed_);
        EXPECT_NE(host.display.errors().back().find("database server"), std::string::npos)
            << host.display.errors().back();
    }

    TcpProxy line{server_.port()};

private:
    std::unique_ptr<base::Connection> direct_ = sample_.connect();
    odbc::Database database_{
        odbc::Source::parse("SERVER=127.0.0.1;UID=test;PWD=test;PORT=" + std::to_string(line.port())),
        {.loginTime = std::chrono::seconds{1}, .answerTime = std::chrono::seconds{1}}};
    std::unique_ptr<base::Connection> connection_ = database_.connect();
    std::size_t missed_ = 0;

protected:
    TestHost host{*connection_};
};

TEST_F(ScreensOverALine, AWriteIntoALostConnectionIsToldAndTheSameLineIsWrittenOnceByTheNext) {
    editPrices([this](User& user) {
        user.click("cmdNeu");
        user.type("txtBEZEICHNUNG", "Nach der Pause");
        user.type("txtPreis", "12,5");
        user.type("txtHa", "FI");
        loseTheConnection();
        user.click("cmdSpeichern");
        expectServerMissed();
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Nach der Pause");
        user.click("cmdSpeichern");
        EXPECT_EQ(user.status(), "Gespeichert");
        user.click("cmdOk");
    });
    EXPECT_EQ(stored("SELECT COUNT(*), MAX(PREIS) FROM VERTRAG_PREISE WHERE BEZEICHNUNG = 'Nach der Pause'"),
              "1 | 12.5000");
}

TEST_F(ScreensOverALine, WhatWasTypedStandsWhileTheServerIsSilentAndIsSavedWhenItAnswersAgain) {
    const std::string before = stored("SELECT BEZEICHNUNG,PREIS FROM VERTRAG_PREISE WHERE ID = 1");
    editPrices([&](User& user) {
        user.click("cmdBearbeiten");
        user.type("txtBEZEICHNUNG", "Trotzdem");
        user.type("txtPreis", "77,25");
        line.swallow();
        for (int time = 0; time < 2; ++time) {
            user.click("cmdSpeichern");
            expectServerMissed();
            EXPECT_EQ(user.text("txtBEZEICHNUNG") + " " + user.text("txtPreis"), "Trotzdem 77,25");
            EXPECT_TRUE(user.usable("cmdSpeichern"));
            EXPECT_EQ(stored("SELECT BEZEICHNUNG,PREIS FROM VERTRAG_PREISE WHERE ID = 1"), before);
        }
        line.passAgain();
        // Somebody else could write meanwhile: what both have changed is asked as if nothing had been lost.
        stored("UPDATE VERTRAG_PREISE SET PREIS = 55 WHERE ID = 1 SELECT 1 AS EINS");
        host.display.onWindow("F_Inzwischen", [](User& asked) { asked.click("btnMeines"); });
        user.click("cmdSpeichern");
        EXPECT_EQ(user.status(), "Gespeichert");
        user.click("cmdOk");
    });
    EXPECT_EQ(stored("SELECT BEZEICHNUNG,PREIS FROM VERTRAG_PREISE WHERE ID = 1"), "Trotzdem | 77.2500");
}

TEST_F(ScreensOverALine, AScreenThatCannotBeReadIsToldAndTheEditorLivesOn) {
    host.display.onWindow("F_Vertrag", [this](User& user) {
        line.swallow();
        user.click("PreisButton");
        expectServerMissed();
        line.passAgain();
        host.display.onWindow("F_VertragPreise", [](User& lines) {
            EXPECT_EQ(std::ssize(lines.grid("MSFlexGrid1").rows()), 3);
            lines.click("cmdOk");
        });
        user.click("PreisButton");
        user.click("btnAbbrechen");
    });
    host.openContract(1);
}

} // namespace
} // namespace tellurix::tests
