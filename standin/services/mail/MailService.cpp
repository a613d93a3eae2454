#include "standin/services/mail/MailService.h"

#include "module/base/text.h"
#include "module/parts/contract_title.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tellurix::standin {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view scheme = "SMTP:";

MailServer::Security securityOf(const std::string& setting) {
    const std::string security = base::toUpper(base::trim(setting));
    if (security.empty() || security == "STARTTLS") return MailServer::Security::startTls;
    if (security == "TLS") return MailServer::Security::tls;
    if (security == "NONE") return MailServer::Security::none;
    throw std::runtime_error{"MAILSECURITY = " + setting};
}

int portOf(const std::string& setting) {
    int port = 0;
    const auto [end, failure] = std::from_chars(setting.data(), setting.data() + setting.size(), port);
    if (!setting.empty() && (failure != std::errc{} || *end != '\0' || port < 1 || port > 65535))
        throw std::runtime_error{"MAILPORT = " + setting};
    return port;
}

/// The subject as far as a file system takes it, and a sign that parts messages of the same subject.
std::string fileNameOf(const MailMessage& message) {
    constexpr std::size_t longest = 80;
    constexpr std::size_t sign = 8;
    constexpr std::u32string_view refused = U"<>:\"/\\|?*'";
    std::u32string name;
    for (const char32_t character : base::decodeUtf8(message.subject)) {
        if (name.size() == longest) break;
        name += character < 32 || refused.find(character) != refused.npos ? U'_' : character;
    }
    const std::string subject{base::trim(base::encodeUtf8(name))};
    return subject + (subject.empty() ? "" : " ") + message.id.substr(0, sign) + ".eml";
}

/// Whether somebody who has the one would take the other for the same once more.
bool repeats(const MailMessage& one, const MailMessage& other) {
    return one.subject == other.subject &&
           std::ranges::any_of(one.recipients, [&](const std::string& address) {
               return std::ranges::find(other.recipients, address) != other.recipients.end();
           });
}

} // namespace

MailServer MailService::server() {
    MailServer server{.host = setting("MAILSERVER"),
                      .port = portOf(setting("MAILPORT")),
                      .security = securityOf(setting("MAILSECURITY")),
                      .user = setting("MAILUSER"),
                      .certificates = setting("MAILCERTIFICATES")};
    if (server.user.empty()) return server;
    const fs::path file = setting("MAILPASSWORDFILE");
    std::error_code failure;
    const fs::perms others =
        fs::status(file, failure).permissions() & (fs::perms::group_all | fs::perms::others_all);
    if (failure) throw std::runtime_error{file.string() + ": " + failure.message()};
    if (others != fs::perms::none)
        throw std::runtime_error{base::filled(words("mail.passwordOpen"), {file.string()})};
    std::ifstream read{file};
    std::getline(read, server.password);
    return server;
}

void MailService::signOn(const host::TlxVar& session) {
    session_ = session;
    recipientKindOf(setting("MAILRECIPIENTS"));
    if (setting("MAILSERVER").empty()) return;
    server();
    if (!canBeAddress(setting("MAILFROM"))) throw std::runtime_error{words("mail.noSender")};
}

void MailService::compose() {
    recipients_.clear();
    subject_.clear();
    text_.clear();
}

void MailService::addRecipient(const std::string& address) {
    const bool named = base::toUpper(address).starts_with(scheme);
    std::string recipient{base::trim(std::string_view{address}.substr(named ? scheme.size() : 0))};
    // One mailbox in two spellings would get the mail twice.
    const auto same = [&](const std::string& other) {
        return base::toUpper(other) == base::toUpper(recipient);
    };
    if (std::ranges::none_of(recipients_, same)) recipients_.push_back(std::move(recipient));
}

F_Mail::Draft MailService::draft() const {
    F_Mail::Draft draft{{}, subject_, text_};
    for (const std::string& address : recipients_) {
        const bool reachable = canBeAddress(address);
        const bool refused = refused_.contains(address);
        draft.recipients.push_back({.address = address,
                                    .note = !reachable ? words("mail.noAddress")
                                            : refused  ? words("mail.refused")
                                                       : "",
                                    .reachable = reachable,
                                    .gets = reachable && !refused});
    }
    // Those who do not get the mail are seen at once.
    std::ranges::stable_partition(draft.recipients, [](const auto& recipient) { return !recipient.gets; });
    return draft;
}

bool MailService::send() {
    const RecipientKind kind = recipientKindOf(setting("MAILRECIPIENTS"));
    const char* kindWords = kind == RecipientKind::blindCopy ? "mail.bcc"
                            : kind == RecipientKind::copy    ? "mail.cc"
                                                             : "mail.to";
    F_Mail form{dialogs_.display(),
                draft(),
                // The subject says what it is about: it names the contract.
                {.title = parts::titleWith(words("mail.title"), base::trim(subject_).empty() ? "" : subject_),
                 .kind = words(kindWords) + (setting("MAILSERVER").empty() ? " " + words("mail.asFile") : ""),
                 .count = words("mail.count")}};
    dialogs_.show(session_, form);
    if (!form.sent()) return false;
    MailMessage message{newMessageId(),       setting("MAILFROM"), kind, {},
                        form.sent()->subject, form.sent()->text};
    for (const F_Mail::Recipient& recipient : form.sent()->recipients)
        message.recipients.push_back(recipient.address);
    const auto before =
        std::ranges::find_if(maybeSent_, [&](const MailMessage& sent) { return repeats(sent, message); });
    if (before != maybeSent_.end()) {
        if (dialogs_.display().messageBox(words("mail.again"),
                                          ui::box::yesNo | ui::box::exclamation | ui::box::defaultButton2,
                                          words("mail.title")) != ui::Answer::yes)
            return false;
        // Under the same identification, by which a mailbox that has it already can tell.
        if (before->text == message.text) message.id = before->id;
    }
    const ui::BusyPointer busy{dialogs_.display()};
    try {
        deliver(message);
    } catch (const NotSent& failure) {
        if (!failure.refused().empty()) refused_.insert(failure.refused());
        if (!failure.uncertain()) throw;
        maybeSent_.push_back(message);
        throw std::runtime_error{std::string{failure.what()} + "\r\n" + words("mail.maybeSent")};
    }
    std::erase_if(maybeSent_, [&](const MailMessage& sent) { return repeats(sent, message); });
    return true;
}

void MailService::deliver(const MailMessage& message) {
    if (setting("MAILSERVER").empty()) {
        leaveAsFile(message);
        return;
    }
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    sendByServer(server(), message, internetMessage(message, now, false));
}

void MailService::leaveAsFile(const MailMessage& message) {
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    // Mail programs open it as a message that has yet to be sent.
    const std::string text = "X-Unsent: 1\r\n" + internetMessage(message, now, true);
    const std::string name = fileNameOf(message);
    const std::string outbox = setting("MAILOUTBOX");
    if (outbox.empty()) {
        dialogs_.display().presentFile(name, text);
        return;
    }
    const fs::path file = fs::path{outbox} / name;
    fs::path beside = file;
    beside += ".tmp";
    std::error_code failure;
    std::ofstream written{beside, std::ios::binary};
    if (!written) failure = {errno, std::generic_category()};
    written << text;
    written.close();
    if (!written && !failure) failure = {errno, std::generic_category()};
    if (!failure) fs::rename(beside, file, failure);
    if (!failure) return;
    std::error_code ignored;
    fs::remove(beside, ignored);
    throw NotSent{file.string() + ": " + failure.message(), "", false};
}

} // namespace tellurix::standin
