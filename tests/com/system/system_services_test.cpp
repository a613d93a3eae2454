// What the component takes from Windows itself: files and mails.
#include "com/automation/wide.h"
#include "com/component/system/system_services.h"
#include "module/host/value_services.h"
#include "tests/support/TestFolder.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace tellurix::tests {
namespace {

using Present = host::DocumentFiles::Present;

class SystemFiles : public testing::Test {
protected:
    TestFolder from;
    TestFolder office;
    std::unique_ptr<host::DocumentFiles> files = windows::systemFiles();
};

TEST_F(SystemFiles, CopyUnderTheirOwnNameAndReplace) {
    EXPECT_EQ(files->fileName("\\\\server\\share\\a/b.pdf"), "b.pdf");
    from.write("a.pdf", "new");
    const std::string source = from / "a.pdf";
    std::string folder = office / "";
    EXPECT_EQ(files->find(source, folder), Present::no);
    files->copy(source, folder);
    EXPECT_EQ(files->find(source, folder), Present::same);
    from.write("a.pdf", "old");
    EXPECT_EQ(files->find(source, folder), Present::different);
    std::ranges::replace(folder, '\\', '/');
    while (folder.ends_with('/'))
        folder.pop_back();
    files->copy(source, folder);
    EXPECT_EQ(office.read("a.pdf"), "old");
    EXPECT_EQ(office.files(), std::set<std::string>{"a.pdf"}) << "nothing beside it";
}

TEST_F(SystemFiles, AFailureIsToldInTheSystemsWordsAndLeavesNothing) {
    from.write("a.pdf", "content");
    const std::pair<std::string, std::string> cases[] = {{from / "a.pdf", office / "missing"},
                                                         {from / "b.pdf", office / ""},
                                                         {from / "a.pdf", "\\\\no.such.server\\share"}};
    for (const auto& [source, folder] : cases) {
        try {
            files->copy(source, folder);
            ADD_FAILURE() << folder;
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string{error.what()}.find("(0x8007"), std::string::npos) << error.what();
        }
    }
    EXPECT_TRUE(office.files().empty());
}

class Settings final : public host::NamedSettings {
public:
    std::string kind;

private:
    std::string text(const host::TlxVar&, const std::string& name) override {
        return name == "MAILRECIPIENTS" ? kind : "";
    }
};

/// Has the system's mail interface hand everything to the mail program beside this one, while this lives.
class RegisteredMailProgram {
public:
    RegisteredMailProgram() {
        wchar_t program[MAX_PATH] = L"";
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        path_ = program;
        path_.resize(path_.find_last_of(L'\\') + 1);
        path_ += L"test_mapi.dll";
        DWORD size = sizeof before_;
        RegGetValueW(HKEY_LOCAL_MACHINE, clients, nullptr, RRF_RT_REG_SZ, nullptr, before_, &size);
        write(std::wstring{clients} + L"\\Tellurix.Test", L"DLLPath", path_);
        write(clients, nullptr, L"Tellurix.Test");
    }
    ~RegisteredMailProgram() {
        write(clients, nullptr, before_);
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, (std::wstring{clients} + L"\\Tellurix.Test").c_str());
    }
    RegisteredMailProgram(const RegisteredMailProgram&) = delete;
    RegisteredMailProgram& operator=(const RegisteredMailProgram&) = delete;

    const std::wstring& path() const { return path_; }

private:
    static constexpr const wchar_t* clients = L"Software\\Clients\\Mail";

    static void write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
        const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(), bytes);
    }

    std::wstring path_;
    wchar_t before_[MAX_PATH] = L"";
};

class SystemMail : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(GetProcAddress(library, "keptMail"), nullptr) << "the test's own library";
    }

    bool send() {
        mail->signOn({});
        mail->compose();
        mail->addRecipient("SMTP:a@example.com");
        mail->addRecipient("SMTP:3001");
        mail->setSubject("Fichte für Müller");
        mail->setText("Sehr geehrter Waldhelfer,\r\n   ");
        return mail->send();
    }
    template <typename Function>
    Function function(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }
    std::string kept() const { return windows::narrow(function<const wchar_t* (*)()>("keptMail")()); }
    void answer(ULONG code) const { function<void (*)(ULONG)>("answerNext")(code); }

    RegisteredMailProgram program;
    Settings settings;
    std::unique_ptr<host::MailSession> mail = windows::systemMail(settings);
    HMODULE library = LoadLibraryW(program.path().c_str()); ///< stays, with what it keeps
};

TEST_F(SystemMail, IsShownByTheMailProgram) {
    const std::pair<const char*, const char*> kinds[] = {{"", "3"}, {"BCC", "3"}, {"TO", "1"}, {"CC", "2"}};
    for (const auto& [kind, number] : kinds) {
        settings.kind = kind;
        EXPECT_TRUE(send());
        EXPECT_EQ(kept(), std::string{"9|Fichte für Müller|Sehr geehrter Waldhelfer,\r\n   |"} + number +
                              " a@example.com SMTP:a@example.com|" + number + " 3001 -");
    }
    settings.kind = "ALL";
    EXPECT_THROW(send(), std::runtime_error);
}

TEST_F(SystemMail, ThatTheUserDoesNotSendIsNoFailure) {
    answer(1);
    EXPECT_FALSE(send());
    answer(23);
    try {
        send();
        ADD_FAILURE();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "MAPI 23: network failure");
    }
    answer(0);
}

} // namespace
} // namespace tellurix::tests
