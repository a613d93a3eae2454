#include "display/browser/session/SessionFiles.h"

#include "display/browser/network/Server.h"
#include "tests/display/browser/RawPage.h"
#include "tests/support/DemoForm.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace tellurix::browser {
namespace {

using nlohmann::json;

TEST(SessionFiles, NamesAreCleaned) {
    const std::pair<std::string, std::string> names[] = {
        {"Vertrag ä.pdf", "Vertrag ä.pdf"},
        {"../../etc/passwd", "passwd"},
        {"C:\\Users\\anna\\a.doc", "a.doc"},
        {"a<b>:\"|?*.pdf", "a_b______.pdf"},
        {std::string{"a\nb\0c\x7f", 6}, "a_b_c_"},
        {"..", "Datei"},
        {"", "Datei"},
        {"folder/", "Datei"},
        {"name. . ", "name"},
        {std::string(300, 'x') + ".pdf", std::string(196, 'x') + ".pdf"},
        {std::string(300, 'x'), std::string(200, 'x')},
    };
    for (const auto& [name, cleaned] : names)
        EXPECT_EQ(cleanedName(name), cleaned);
    std::string umlauts;
    for (int i = 0; i < 150; ++i)
        umlauts += "ä";
    EXPECT_EQ(cleanedName(umlauts + ".pdf").size(), 200U) << "counted in bytes, and no half character";
}

TEST(SessionFiles, GoWithTheirSession) {
    std::filesystem::path folder;
    {
        SessionFiles files;
        EXPECT_EQ(files.begin(1), nullptr) << "nothing is awaited";
        files.await(1);
        auto upload = files.begin(1);
        EXPECT_EQ(files.begin(1), nullptr) << "one is on its way already";
        std::ofstream{upload->path()} << "half";
        EXPECT_EQ(files.take(1, "a.pdf"), std::nullopt);
        upload.reset();
        EXPECT_EQ(files.take(1, "a.pdf"), std::nullopt) << "half a file is none";
        upload = files.begin(1);
        std::ofstream{upload->path()} << "whole";
        upload->finish();
        const std::filesystem::path taken{files.take(1, "../a.pdf").value()};
        folder = taken.parent_path().parent_path();
        EXPECT_EQ(taken.filename(), "a.pdf");
        EXPECT_EQ(std::filesystem::file_size(taken), 5U);
        EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
        EXPECT_EQ(files.take(1, "a.pdf"), std::nullopt) << "it has been taken";

        for (int i = 1; i <= 20; ++i)
            EXPECT_EQ(files.offer("a/b.xlsx", std::to_string(i)), i);
        EXPECT_FALSE(files.fetch(4)) << "old ones go";
        EXPECT_EQ(files.fetch(5).value().name + files.fetch(20).value().content, "b.xlsx20");
        EXPECT_EQ(files.waiting().begin()->first, 6);
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(SessionFiles, OfAKilledProcessGoWithTheNextStart) {
    const tests::TestFolder temporary;
    ASSERT_EQ(::setenv("TMPDIR", (temporary / "").c_str(), 1), 0);
    SessionFiles present;
    present.offer("a.xlsx", "present");
    std::filesystem::create_directory(temporary / "tellurix-session-of-somebody-else");
    const pid_t other = ::fork();
    if (other == 0) {
        SessionFiles().offer("b.xlsx", "gone with its process");
        // Its destructor is never run, as that of a killed program.
        SessionFiles killed;
        killed.offer("c.xlsx", "left behind");
        ::_exit(0);
    }
    ::waitpid(other, nullptr, 0);
    EXPECT_EQ(temporary.files().size(), 3U);
    const Server server{[](BrowserDisplay&) {}};
    EXPECT_EQ(temporary.files().size(), 2U);
    EXPECT_EQ(present.fetch(1).value().content, "present");
    EXPECT_TRUE(temporary.files().contains("tellurix-session-of-somebody-else"));
    ::unsetenv("TMPDIR");
}

/// The demo form, whose button asks for a document and gives it back.
class FilesOfAPage : public testing::Test {
protected:
    void SetUp() override {
        page.greet();
        for (const json& control : page.drawing["opened"].front()["controls"]) {
            if (control["name"] == "btnDocument") button = control["id"];
        }
    }

    json ask() { return page.say({{"type", "click"}, {"window", 1}, {"control", button}}); }
    json say(const std::string& type, int window, const std::string& text) {
        return page.say({{"type", type}, {"window", window}, {"text", text}, {"answer", 2}});
    }
    std::string host() const { return "127.0.0.1:" + std::to_string(server.port()); }
    std::string key() const { return server.address().substr(server.address().find('=') + 1); }
    std::string target(int number) const {
        return "/" + key() + "/file/" + page.session + "/" + std::to_string(number);
    }
    int post(const std::string& where, const std::string& content, std::size_t length,
             std::string origin = {}) {
        if (origin.empty()) origin = "http://" + host();
        return request(server.port(),
                       "POST " + where + " HTTP/1.1\r\nHost: " + host() + "\r\nOrigin: " + origin +
                           "\r\nContent-Length: " + std::to_string(length) + "\r\n\r\n" + content)
            .status;
    }
    int post(const std::string& where, const std::string& content) {
        return post(where, content, content.size());
    }
    PlainReply get(const std::string& where) {
        return request(server.port(),
                       "GET " + where + " HTTP/1.1\r\nHost: " + host() + "\r\nConnection: close\r\n\r\n");
    }

    Server server{[](BrowserDisplay& display) {
                      tests::DemoForm form{display};
                      display.showModal(form);
                  },
                  {.patience = std::chrono::milliseconds{500}}};
    RawPage page{server.address()};
    int button = 0;
};

std::string stateIn(const json& drawing) {
    for (const json& window : drawing.value("changed", json::array()))
        for (const json& control : window.value("controls", json::array()))
            if (control.contains("text")) return control["text"];
    return {};
}

TEST_F(FilesOfAPage, AreSentUnderTheSessionsKeyAndGivenBack) {
    const json box = ask()["box"];
    EXPECT_EQ(box["title"], "Dokument wählen");
    EXPECT_EQ(box["file"], (json{{"endings", {".pdf"}}, {"bytes", 32 * 1024 * 1024}}));
    const int id = box["id"];
    const std::string content(100000, 'p');

    const std::string foreign = "/" + std::string(32, '0') + target(id).substr(33);
    EXPECT_EQ(post(foreign, "x"), 403) << "another key";
    EXPECT_EQ(post(target(id), "x", 1, "http://evil.example"), 405) << "another page";
    EXPECT_EQ(post(target(id + 1), "x"), 405) << "another question";
    EXPECT_EQ(post("/" + key() + "/file/" + std::string(32, '0') + "/" + std::to_string(id), "x"), 405)
        << "another session";
    EXPECT_EQ(post(target(id), "x", SessionFiles::mostBytes + 1), 413) << "too large";
    EXPECT_EQ(stateIn(say("file", id, "a.pdf")), "") << "nothing has been sent yet";
    EXPECT_EQ(post(target(id), "half", 8), 0) << "the page stops in the middle";
    EXPECT_EQ(stateIn(say("file", id, "a.pdf")), "") << "half a file is none";

    EXPECT_EQ(post(target(id), "first"), 204);
    EXPECT_EQ(post(target(id), content), 204) << "another try replaces the first";
    const json answer = say("file", id, "..\\geheim/Vertrag ä.pdf");
    EXPECT_EQ(stateIn(answer), "Vertrag ä.pdf: 100000");
    EXPECT_EQ(post(target(id), "x"), 405) << "the question has been answered";

    const json offered = answer["files"].front();
    EXPECT_EQ(offered["name"], "Kopie von Vertrag ä.pdf");
    const int file = offered["id"];
    EXPECT_EQ(get("/" + std::string(32, '0') + target(file).substr(33)).status, 403);
    EXPECT_EQ(get(target(file + 1)).status, 404);
    page.redraw();
    EXPECT_EQ(page.drawing["files"].size(), 1U) << "a page that was away is told again";
    const PlainReply reply = get(target(file));
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, content);
    EXPECT_NE(reply.headers.find("attachment; filename*=UTF-8''Kopie%20von%20Vertrag%20%C3%A4.pdf"),
              std::string::npos)
        << reply.headers;
    EXPECT_NE(reply.headers.find("no-store"), std::string::npos);
    page.redraw();
    EXPECT_FALSE(page.drawing.contains("files")) << "it has been fetched";
}

TEST_F(FilesOfAPage, ACancelledQuestionTakesNoFile) {
    for (int i = 0; i < 2; ++i) {
        const int id = ask()["box"]["id"];
        EXPECT_EQ(post(target(id), "content"), 204);
        EXPECT_EQ(stateIn(say("answer", id, "")), i == 0 ? "keine Datei" : "") << "as before the second time";
        EXPECT_EQ(post(target(id), "content"), 405);
    }
}

} // namespace
} // namespace tellurix::browser
