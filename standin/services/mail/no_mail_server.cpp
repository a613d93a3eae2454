#include "standin/services/mail/mail_server.h"

namespace tellurix::standin {

void sendByServer(const MailServer& server, const MailMessage&, const std::string&) {
    throw NotSent{"Windows sends mails by its own mail program, not by " + server.host, "", false};
}

} // namespace tellurix::standin
