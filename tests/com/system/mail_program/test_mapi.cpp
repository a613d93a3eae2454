// A mail program for tests: keeps what it is given, and answers as it was told.

#include <windows.h>

#include <string>

namespace {

struct Recipient {
    ULONG reserved;
    ULONG kind;
    PWSTR name;
    PWSTR address;
    ULONG idSize;
    PVOID id;
};
struct Message {
    ULONG reserved;
    PWSTR subject;
    PWSTR text;
    PWSTR type;
    PWSTR received;
    PWSTR conversation;
    ULONG flags;
    Recipient* originator;
    ULONG recipientCount;
    Recipient* recipients;
    ULONG fileCount;
    PVOID files;
};

std::wstring kept;
ULONG answer = 0;

} // namespace

extern "C" __declspec(dllexport) ULONG WINAPI
    MAPISendMailW(ULONG_PTR, ULONG_PTR, Message* message, ULONG flags, ULONG) {
    kept = std::to_wstring(flags) + L"|" + message->subject + L"|" + message->text;
    for (ULONG i = 0; i < message->recipientCount; ++i) {
        const Recipient& recipient = message->recipients[i];
        kept += L"|" + std::to_wstring(recipient.kind) + L" " + recipient.name + L" " +
                (recipient.address == nullptr ? L"-" : recipient.address);
    }
    return answer;
}

extern "C" __declspec(dllexport) const wchar_t* keptMail() {
    return kept.c_str();
}

extern "C" __declspec(dllexport) void answerNext(ULONG code) {
    answer = code;
}
