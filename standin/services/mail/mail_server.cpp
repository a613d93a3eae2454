#include "standin/services/mail/mail_server.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>

namespace tellurix::standin {

namespace {

struct FreeHandle {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
struct FreeList {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

/// What is still to be sent.
struct Outgoing {
    const std::string& text;
    std::size_t at = 0;
    bool done = false; ///< all of it has been handed over
};

std::size_t readMail(char* buffer, std::size_t size, std::size_t count, void* user) {
    Outgoing& outgoing = *static_cast<Outgoing*>(user);
    const std::size_t length = std::min(size * count, outgoing.text.size() - outgoing.at);
    outgoing.text.copy(buffer, length, outgoing.at);
    outgoing.at += length;
    outgoing.done = outgoing.at == outgoing.text.size();
    return length;
}

/// What the two sides have said, as far as an error is to be explained by it.
struct Talk {
    std::string recipient; ///< that the server was asked for last, if that was the last question
    std::string refusal;   ///< the last answer that was none
    std::string refused;   ///< the recipient that it was about
};

int overhear(CURL*, curl_infotype kind, char* data, std::size_t size, void* user) {
    Talk& talk = *static_cast<Talk*>(user);
    std::string line{data, size};
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
        line.pop_back();
    constexpr std::string_view recipient = "RCPT TO:<";
    if (kind == CURLINFO_HEADER_OUT) {
        const bool asks = line.starts_with(recipient) && line.find('>') != std::string::npos;
        talk.recipient = asks ? line.substr(recipient.size(), line.find('>') - recipient.size()) : "";
    } else if (kind == CURLINFO_HEADER_IN) {
        // The first digit says how it went; what comes behind a refusal is the farewell, or an answer to
        // the same asked in another way.
        constexpr std::string_view farewell = "221";
        if (line.starts_with('4') || line.starts_with('5')) {
            talk.refusal = line;
            talk.refused = talk.recipient;
        } else if (!line.starts_with(farewell)) {
            talk.refusal.clear();
            talk.refused.clear();
        }
    }
    return 0;
}

std::string urlOf(const MailServer& server) {
    std::string url = server.security == MailServer::Security::tls ? "smtps://" : "smtp://";
    url += server.host;
    if (server.port != 0) url += ":" + std::to_string(server.port);
    return url;
}

template <typename Value>
void set(CURL* handle, CURLoption option, Value value) {
    if (curl_easy_setopt(handle, option, value) != CURLE_OK) throw NotSent{"curl", "", false};
}

} // namespace

void sendByServer(const MailServer& server, const MailMessage& message, const std::string& text) {
    static std::once_flag begun;
    std::call_once(begun, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    const std::unique_ptr<CURL, FreeHandle> handle{curl_easy_init()};
    if (!handle) throw NotSent{"curl", "", false};
    CURL* curl = handle.get();

    std::unique_ptr<curl_slist, FreeList> recipients;
    for (const std::string& address : message.recipients) {
        curl_slist* longer = curl_slist_append(recipients.get(), ("<" + address + ">").c_str());
        if (longer == nullptr) throw NotSent{"curl", "", false};
        static_cast<void>(recipients.release()); // it is the end of the longer list now
        recipients.reset(longer);
    }
    Outgoing outgoing{text};
    Talk talk;
    std::array<char, CURL_ERROR_SIZE> words{};
    set(curl, CURLOPT_URL, urlOf(server).c_str());
    set(curl, CURLOPT_PROXY, "");
    set(curl, CURLOPT_USE_SSL,
        server.security == MailServer::Security::none ? long{CURLUSESSL_NONE} : long{CURLUSESSL_ALL});
    if (!server.certificates.empty()) set(curl, CURLOPT_CAINFO, server.certificates.c_str());
    if (!server.user.empty()) {
        set(curl, CURLOPT_USERNAME, server.user.c_str());
        set(curl, CURLOPT_PASSWORD, server.password.c_str());
    }
    set(curl, CURLOPT_MAIL_FROM, ("<" + message.from + ">").c_str());
    set(curl, CURLOPT_MAIL_RCPT, recipients.get());
    set(curl, CURLOPT_UPLOAD, 1L);
    set(curl, CURLOPT_READFUNCTION, &readMail);
    set(curl, CURLOPT_READDATA, static_cast<void*>(&outgoing));
    set(curl, CURLOPT_VERBOSE, 1L);
    set(curl, CURLOPT_DEBUGFUNCTION, &overhear);
    set(curl, CURLOPT_DEBUGDATA, static_cast<void*>(&talk));
    set(curl, CURLOPT_ERRORBUFFER, words.data());
    // Signals belong to the program, which has other threads.
    set(curl, CURLOPT_NOSIGNAL, 1L);
    set(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(server.patience.count()));

    const CURLcode result = curl_easy_perform(curl);
    if (result == CURLE_OK) return;
    std::string reason = words[0] != '\0' ? words.data() : curl_easy_strerror(result);
    if (!talk.refusal.empty()) reason += " (" + talk.refusal + ")";
    if (!talk.refused.empty()) reason = talk.refused + ": " + reason;
    throw NotSent{reason, talk.refused, outgoing.done && talk.refusal.empty()};
}

} // namespace tellurix::standin
