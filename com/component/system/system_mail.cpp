#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "com/component/system/system_services.h"
#include "display/win32/native/endings.h"
#include "module/base/text.h"

#include <windows.h>

#include <mapi.h>

#include <stdexcept>
#include <type_traits>
#include <vector>

namespace tellurix::windows {

namespace {

/// The wide forms of mapi.h's structures, which the compiler's own header lacks.
struct WideRecipient {
    ULONG reserved;
    ULONG kind;
    PWSTR name;
    PWSTR address;
    ULONG idSize;
    PVOID id;
};
struct WideMessage {
    ULONG reserved;
    PWSTR subject;
    PWSTR text;
    PWSTR type;
    PWSTR received;
    PWSTR conversation;
    FLAGS flags;
    WideRecipient* originator;
    ULONG recipientCount;
    WideRecipient* recipients;
    ULONG fileCount;
    PVOID files;
};
static_assert(sizeof(WideMessage) == sizeof(MapiMessage) && sizeof(WideRecipient) == sizeof(MapiRecipDesc));

using SendWide = ULONG(WINAPI*)(LHANDLE, ULONG_PTR, WideMessage*, FLAGS, ULONG);

/// The system's mail interface, as long as this lives.
class MailInterface {
public:
    MailInterface() : library_(LoadLibraryW(L"mapi32.dll")) {
        if (library_ == nullptr) check(HRESULT_FROM_WIN32(GetLastError()), "mapi32.dll");
    }
    ~MailInterface() { FreeLibrary(library_); }
    MailInterface(const MailInterface&) = delete;
    MailInterface& operator=(const MailInterface&) = delete;

    SendWide send() const {
        const FARPROC function = GetProcAddress(library_, "MAPISendMailW");
        if (function == nullptr) check(HRESULT_FROM_WIN32(GetLastError()), "MAPISendMailW");
        return reinterpret_cast<SendWide>(reinterpret_cast<void*>(function));
    }

private:
    HMODULE library_;
};

/// What the mail program says, which it does by numbers.
std::string wordsOf(ULONG code) {
    switch (code) {
    case MAPI_E_LOGON_FAILURE:
        return "MAPI 3: logon failure";
    case MAPI_E_DISK_FULL:
        return "MAPI 4: disk full";
    case MAPI_E_INSUFFICIENT_MEMORY:
        return "MAPI 5: insufficient memory";
    case MAPI_E_TOO_MANY_RECIPIENTS:
        return "MAPI 10: too many recipients";
    case MAPI_E_UNKNOWN_RECIPIENT:
        return "MAPI 14: unknown recipient";
    case MAPI_E_TEXT_TOO_LARGE:
        return "MAPI 18: text too large";
    case MAPI_E_AMBIGUOUS_RECIPIENT:
        return "MAPI 21: ambiguous recipient";
    case MAPI_E_NETWORK_FAILURE:
        return "MAPI 23: network failure";
    case MAPI_E_INVALID_RECIPS:
        return "MAPI 25: invalid recipients";
    default:
        return "MAPI " + std::to_string(code);
    }
}

class WindowsMail final : public host::MailSession {
public:
    explicit WindowsMail(host::NamedSettings& settings) : settings_(settings) {}

    void signOn(const host::TlxVar& session) override {
        const std::string kind = base::toUpper(base::trim(settings_.text(session, "MAILRECIPIENTS")));
        if (kind.empty() || kind == "BCC")
            kind_ = MAPI_BCC;
        else if (kind == "TO")
            kind_ = MAPI_TO;
        else if (kind == "CC")
            kind_ = MAPI_CC;
        else
            throw std::runtime_error{"MAILRECIPIENTS = " + kind};
    }
    void compose() override {
        recipients_.clear();
        subject_.clear();
        text_.clear();
    }
    void addRecipient(const std::string& address) override { recipients_.push_back(widen(address)); }
    void setSubject(const std::string& subject) override { subject_ = widen(subject); }
    void setText(const std::string& text) override { text_ = widen(text); }

    bool send() override {
        const MailInterface mail;
        std::vector<std::wstring> names;
        for (const std::wstring& address : recipients_)
            names.push_back(nameOf(address));
        std::vector<WideRecipient> recipients;
        for (std::size_t i = 0; i < recipients_.size(); ++i) {
            // One that can be no address has a name alone, which the mail program marks as unknown.
            PWSTR address = names[i].find(L'@') == std::wstring::npos ? nullptr : recipients_[i].data();
            recipients.push_back({0, kind_, names[i].data(), address, 0, nullptr});
        }
        WideMessage message{};
        message.subject = subject_.data();
        message.text = text_.data();
        message.recipientCount = static_cast<ULONG>(recipients.size());
        message.recipients = recipients.data();
        HWND owner = GetActiveWindow();
        const ULONG result =
            mail.send()(0, reinterpret_cast<ULONG_PTR>(owner), &message, MAPI_LOGON_UI | MAPI_DIALOG, 0);
        // The window of the mail program lets messages through: the screen may have gone meanwhile.
        throwIfEnded(owner);
        if (result == MAPI_E_USER_ABORT) return false;
        if (result != SUCCESS_SUCCESS) throw std::runtime_error{wordsOf(result)};
        return true;
    }

private:
    static std::wstring nameOf(const std::wstring& address) {
        const std::size_t colon = address.find(L':');
        return address.substr(colon == std::wstring::npos ? 0 : colon + 1);
    }

    host::NamedSettings& settings_;
    ULONG kind_ = MAPI_BCC;
    std::vector<std::wstring> recipients_;
    std::wstring subject_;
    std::wstring text_;
};

} // namespace

std::unique_ptr<host::MailSession> systemMail(host::NamedSettings& settings) {
    return std::make_unique<WindowsMail>(settings);
}

} // namespace tellurix::windows
