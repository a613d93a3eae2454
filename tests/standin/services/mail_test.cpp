#include "standin/services/mail/MailMessage.h"
#include "standin/services/mail/mail_server.h"
#include "tests/standin/services/ServicesTest.h"
#include "tests/support/TestFolder.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <thread>

namespace tellurix::tests {
namespace {

using namespace std::chrono_literals;
using ui::Key;

/// A real mail server of its own, which takes mails until its end.
class TestServer {
public:
    explicit TestServer(const std::string& options = {})
        : input_(popen(
              ("/usr/bin/python3 " TELLURIX_TEST_FOLDER "/mail_server.py " + (folder / "") + " " + options)
                  .c_str(),
              "w")) {
        for (int i = 0; i < 1500 && folder.read("port").empty(); ++i)
            std::this_thread::sleep_for(10ms);
    }
    ~TestServer() { pclose(input_); }
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;

    std::string port() const { return folder.read("port"); }
    std::string mail(int number) const { return folder.read(std::to_string(number) + ".mail"); }

    TestFolder folder;

private:
    FILE* input_;
};

class Mail : public ServicesTest {
protected:
    void set(const std::string& name, const std::string& value) { services.settings().replace(name, value); }
    void sendBy(const TestServer& server, const std::string& security = "NONE") {
        set("MAILSERVER", "127.0.0.1");
        set("MAILPORT", server.port());
        set("MAILSECURITY", security);
        set("MAILFROM", "handel@example.com");
        set("MAILCERTIFICATES", server.folder / "cert.pem");
    }
    /// What the module does; answers what sending answered, or its error.
    std::string send(const std::vector<std::string>& recipients, const ScriptedDisplay::Script& script) {
        try {
            host.mail.signOn(session);
            host.mail.compose();
            for (const std::string& recipient : recipients)
                host.mail.addRecipient("SMTP:" + recipient);
            host.mail.setSubject("Information zum Vertrag Fichte für Müller");
            host.mail.setText("Sehr geehrter Waldhelfer,\r\n" + std::string(26, ' '));
            if (script) display.onWindow("F_Mail", script);
            return host.mail.send() ? "sent" : "not sent";
        } catch (const std::exception& error) {
            return error.what();
        }
    }
    static void pressSend(User& user) { user.click("btnSend"); }

    const std::vector<std::string> two{"a@example.com", "b@example.com"};
};

std::string recipientsIn(User& user) {
    std::string text;
    for (const ui::Grid::Row& row : user.grid("grdRecipients").rows())
        text += row[0] + row[1] + (row[2].empty() ? "" : "(" + row[2] + ")") + " ";
    return text;
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(Mail, IsShownAndGoesAsABlindCopy) {
    const TestServer server;
    sendBy(server);
    EXPECT_EQ(send({"a@example.com", "3001", "A@EXAMPLE.COM", "b@example.com"},
                   [](User& user) {
                       EXPECT_EQ(user.window().title(),
                                 "Nachricht senden – Information zum Vertrag Fichte für Müller");
                       EXPECT_EQ(recipientsIn(user), "3001(keine Adresse) ☑a@example.com ☑b@example.com ");
                       EXPECT_EQ(user.caption("lblCount"), "2 von 3 Empfängern");
                       EXPECT_EQ(user.text("txtText"),
                                 "Sehr geehrter Waldhelfer,\r\n" + std::string(26, ' '));
                       user.focus("grdRecipients");
                       user.key(Key::space);
                       EXPECT_EQ(user.caption("lblCount"), "2 von 3 Empfängern") << "no address gets nothing";
                       user.type("txtSubject", "Neuer Betreff");
                       user.click("btnSend");
                   }),
              "sent");
    const std::string mail = server.mail(1);
    EXPECT_TRUE(mail.starts_with("a@example.com\nb@example.com\n\n")) << mail;
    const std::string message = mail.substr(mail.find("\n\n") + 2);
    EXPECT_FALSE(contains(message, "b@example.com")) << "nobody sees the others";
    EXPECT_TRUE(contains(message, "To: undisclosed-recipients:;\r\n"));
    EXPECT_TRUE(contains(message, "Subject: Neuer Betreff\r\n"));
    // Base64 of the greeting, the line break and all 26 blanks.
    EXPECT_TRUE(contains(
        message, "\r\n\r\nU2VociBnZWVocnRlciBXYWxkaGVsZmVyLA0KICAgICAgICAgICAgICAgICAgICAgICAgICA=\r\n"))
        << message;
}

TEST_F(Mail, TheUserDecidesWhoGetsIt) {
    const TestServer server;
    sendBy(server);
    set("MAILRECIPIENTS", "to");
    EXPECT_EQ(send(two,
                   [](User& user) {
                       user.focus("grdRecipients");
                       user.key(Key::space);
                       EXPECT_EQ(recipientsIn(user), "☐a@example.com ☑b@example.com ");
                       user.click("btnSend");
                   }),
              "sent");
    EXPECT_TRUE(server.mail(1).starts_with("b@example.com\n\n")) << server.mail(1);
    EXPECT_TRUE(contains(server.mail(1), "To: b@example.com\r\n"));
    EXPECT_EQ(send(two, [](User& user) { user.key(Key::escape); }), "not sent");
    EXPECT_EQ(send({"3001"},
                   [](User& user) {
                       EXPECT_FALSE(user.usable("btnSend"));
                       user.key(Key::escape);
                   }),
              "not sent");
    EXPECT_EQ(server.mail(2), "");
}

TEST_F(Mail, IsSentForAllOrForNobodyAndNotTwice) {
    const TestServer server{"refuse=b@example.com"};
    sendBy(server);
    const std::string failure = send(two, pressSend);
    EXPECT_TRUE(contains(failure, "b@example.com: ") && contains(failure, "kennt hier niemand")) << failure;
    EXPECT_EQ(server.mail(1), "") << "not for the first one either";
    EXPECT_EQ(send(two,
                   [](User& user) {
                       EXPECT_EQ(recipientsIn(user), "☐b@example.com(vom Server abgelehnt) ☑a@example.com ");
                       user.click("btnSend");
                   }),
              "sent");
    EXPECT_TRUE(server.mail(1).starts_with("a@example.com\n\n"));

    const TestServer losing{"lose"};
    sendBy(losing);
    EXPECT_PRED2(contains, send({"a@example.com"}, pressSend), std::string{"nicht bekannt"});
    display.onMessage("möglicherweise schon verschickt", ui::Answer::no, "Nachricht senden");
    EXPECT_EQ(send({"a@example.com"}, pressSend), "not sent");
    EXPECT_EQ(losing.mail(2), "");
    display.onMessage("möglicherweise schon verschickt", ui::Answer::yes, "Nachricht senden");
    send({"a@example.com"}, pressSend);
    const auto idOf = [&](int number) {
        const std::string mail = losing.mail(number);
        return mail.substr(mail.find("Message-ID"), 60);
    };
    EXPECT_EQ(idOf(1), idOf(2)) << "the same message";

    // Neither a failure that is certain nor another mail makes it forgotten, and whoever may have it is
    // asked about, though not all get it now.
    const auto sendAgain = [&](const std::vector<std::string>& recipients, ui::Answer answer) {
        display.onMessage("möglicherweise schon verschickt", answer, "Nachricht senden");
        return send(recipients, pressSend);
    };
    set("MAILPORT", "1");
    EXPECT_PRED2(contains, sendAgain({"a@example.com"}, ui::Answer::yes), std::string{"connect"});
    const TestServer taking;
    sendBy(taking);
    EXPECT_EQ(send({"c@example.com"}, pressSend), "sent");
    EXPECT_EQ(sendAgain(two, ui::Answer::no), "not sent");
    EXPECT_EQ(sendAgain(two, ui::Answer::yes), "sent");
    EXPECT_EQ(send(two, pressSend), "sent") << "it is known now";
}

TEST_F(Mail, GoesOverASecureConnection) {
    const TestServer server{"starttls signon"};
    sendBy(server, "STARTTLS");
    TestFolder keys;
    keys.write("password", "geheim\n");
    set("MAILUSER", "anna");
    set("MAILPASSWORDFILE", keys / "password");
    std::filesystem::permissions(keys / "password", std::filesystem::perms{0640});
    EXPECT_PRED2(contains, send(two, {}), std::string{"0600"});
    std::filesystem::permissions(keys / "password", std::filesystem::perms{0600});
    EXPECT_EQ(send(two, pressSend), "sent");
    EXPECT_TRUE(server.mail(1).starts_with("a@example.com\nb@example.com\n\n"));

    keys.write("password", "falsch\n");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"Authentication credentials invalid"});
    set("MAILUSER", "");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"530"}) << "it wants to know who sends";
    set("MAILCERTIFICATES", "");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"certificate"})
        << "nobody vouches for the server";
    EXPECT_EQ(server.mail(2), "");
}

TEST_F(Mail, WhatCannotGoIsToldWithTheReason) {
    const TestServer plain;
    sendBy(plain, "STARTTLS");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"STARTTLS"})
        << "never in the clear when it is to be secure";
    EXPECT_EQ(plain.mail(1), "");
    sendBy(plain);
    set("MAILPORT", "1");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"connect"});
    const std::pair<const char*, const char*> faults[] = {
        {"MAILPORT", "70000"}, {"MAILSECURITY", "SSH"}, {"MAILFROM", "3001"}, {"MAILRECIPIENTS", "ALL"}};
    for (const auto& [name, value] : faults) {
        sendBy(plain);
        set("MAILRECIPIENTS", "");
        set(name, value);
        EXPECT_PRED2(contains, send(two, {}), std::string{name});
    }
}

TEST(MailServer, IsNotWaitedForEndlessly) {
    // Takes connections and says nothing.
    TestFolder folder;
    const std::string script = "import socket,sys;s=socket.create_server(('127.0.0.1',0));"
                               "open('" +
                               (folder / "port") + "','w').write(str(s.getsockname()[1]));sys.stdin.read()";
    FILE* silent = popen(("/usr/bin/python3 -c \"" + script + "\"").c_str(), "w");
    for (int i = 0; i < 1500 && folder.read("port").empty(); ++i)
        std::this_thread::sleep_for(10ms);
    const standin::MailServer server{.host = "127.0.0.1",
                                     .port = std::stoi(folder.read("port")),
                                     .security = standin::MailServer::Security::none,
                                     .patience = 300ms};
    try {
        standin::sendByServer(
            server, {.id = "1@x", .from = "a@x", .recipients = {"b@x"}, .subject = "", .text = ""}, "");
        ADD_FAILURE();
    } catch (const standin::NotSent& failure) {
        EXPECT_FALSE(failure.uncertain());
        EXPECT_TRUE(contains(failure.what(), "timed out") || contains(failure.what(), "timeout"))
            << failure.what();
    }
    pclose(silent);
}

TEST_F(Mail, WithoutAServerItIsAFileForAMailProgram) {
    TestFolder outbox;
    set("MAILOUTBOX", outbox / "");
    EXPECT_EQ(send(two,
                   [](User& user) {
                       EXPECT_TRUE(contains(user.caption("lblKind"), "Gesendet wird nicht von hier"));
                       user.type("txtText", "Guten Tag");
                       user.key(Key::enter);
                       EXPECT_EQ(user.focused(), "txtText")
                           << "Enter begins a line and does not go to what sends";
                       user.type("txtSubject", "Vertrag \"Müller/2\"");
                       user.click("btnSend");
                   }),
              "sent");
    ASSERT_EQ(outbox.files().size(), 1U);
    const std::string mail = outbox.read(*outbox.files().begin());
    EXPECT_TRUE(outbox.files().begin()->starts_with("Vertrag _Müller_2_ ")) << *outbox.files().begin();
    EXPECT_TRUE(outbox.files().begin()->ends_with(".eml"));
    EXPECT_TRUE(mail.starts_with("X-Unsent: 1\r\n"));
    EXPECT_TRUE(contains(mail, "Bcc: a@example.com,\r\n b@example.com\r\n"));
    EXPECT_TRUE(contains(mail, "Subject: ") && contains(mail, "=?UTF-8?B?"));
    set("MAILOUTBOX", outbox / "missing");
    EXPECT_PRED2(contains, send(two, pressSend), std::string{"No such file or directory"});
    set("MAILOUTBOX", "");
    EXPECT_EQ(send(two,
                   [](User& user) {
                       user.type("txtSubject", "");
                       user.click("btnSend");
                   }),
              "sent");
    EXPECT_NE(display.files().back().name.front(), ' ') << "without a subject";
    EXPECT_EQ(send(two, pressSend), "sent");
    EXPECT_TRUE(display.files().back().name.ends_with(".eml"));
}

TEST(MailAddress, IsTold) {
    for (const char* address : {"a@b.at", "first.last+x@sub.example.com", "o'brien@x.ie", "a@localhost"})
        EXPECT_TRUE(standin::canBeAddress(address)) << address;
    for (const char* address : {"", "3001", "@b.at", "a@", "a b@c.at", "a@b.at,c@d.at", "a@b@c.at",
                                "<a@b.at>", "a@b..at", ".a@b.at", "a@b.at\r\nBcc: c@d.at", "ä@b.at"})
        EXPECT_FALSE(standin::canBeAddress(address)) << address;
}

TEST(MailText, ASubjectCannotBeginAHeader) {
    const standin::MailMessage message{
        .id = "1@x", .from = "a@x", .recipients = {"b@x"}, .subject = "x\r\nBcc: c@d.at ä", .text = ""};
    EXPECT_FALSE(contains(standin::internetMessage(message, {}, false), "\nBcc"));
}

} // namespace
} // namespace tellurix::tests
