#pragma once

#include "module/host/document_services.h"
#include "standin/services/Dialogs.h"
#include "standin/services/mail/F_Mail.h"
#include "standin/services/mail/mail_server.h"
#include "standin/services/texts/Localizer.h"

#include <set>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Sends mails by a server, or leaves them as files for a mail program to send. The named settings say how:
///
/// | setting | meaning |
/// | --- | --- |
/// | MAILSERVER, MAILPORT | the server that takes mails; without one they are left as files |
/// | MAILSECURITY | STARTTLS (the default), TLS or NONE |
/// | MAILCERTIFICATES | a file with certificates that are trusted besides the system's |
/// | MAILUSER, MAILPASSWORDFILE | who signs on; a file with the password that only its owner can read |
/// | MAILFROM | the sender's address |
/// | MAILOUTBOX | the folder for files; without one they are handed to the user |
/// | MAILRECIPIENTS | BCC (the default), TO or CC |
class MailService final : public host::MailSession {
public:
    MailService(Dialogs& dialogs, Localizer& localizer, host::NamedSettings& settings)
        : dialogs_(dialogs), localizer_(localizer), settings_(settings) {}

    void signOn(const host::TlxVar& session) override;
    void compose() override;
    void addRecipient(const std::string& address) override;
    void setSubject(const std::string& subject) override { subject_ = subject; }
    void setText(const std::string& text) override { text_ = text; }
    bool send() override;

private:
    std::string setting(const char* name) { return settings_.text(session_, name); }
    std::string words(std::string_view key) const { return localizer_.named(key, session_); }
    MailServer server();
    F_Mail::Draft draft() const;
    void deliver(const MailMessage& message);
    void leaveAsFile(const MailMessage& message);

    Dialogs& dialogs_;
    Localizer& localizer_;
    host::NamedSettings& settings_;
    host::TlxVar session_;
    std::vector<std::string> recipients_;
    std::string subject_;
    std::string text_;
    std::set<std::string> refused_;      ///< addresses that the server has not taken
    std::vector<MailMessage> maybeSent_; ///< messages of which nobody knows whether they were taken
};

} // namespace tellurix::standin
