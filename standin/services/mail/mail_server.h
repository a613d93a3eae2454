#pragma once

#include "standin/services/mail/MailMessage.h"

#include <chrono>
#include <stdexcept>

namespace tellurix::standin {

struct MailServer {
    enum class Security {
        none,
        startTls, ///< the connection is made secure before anything is said
        tls       ///< it is secure from its beginning
    };

    std::string host = {};
    int port = 0; ///< 0 for the usual one
    Security security = Security::startTls;
    std::string user = {}; ///< empty for none
    std::string password = {};
    std::string certificates = {}; ///< a file with those that are trusted besides the system's; may be empty
    std::chrono::milliseconds patience = std::chrono::seconds{30};
};

/// The server did not take the message.
class NotSent : public std::runtime_error {
public:
    /// @param refused the recipient that the server does not take, or empty
    /// @param uncertain the message was on its way: it may have been taken all the same
    NotSent(const std::string& reason, std::string refused, bool uncertain)
        : runtime_error(reason), refused_(std::move(refused)), uncertain_(uncertain) {}

    const std::string& refused() const { return refused_; }
    bool uncertain() const { return uncertain_; }

private:
    std::string refused_;
    bool uncertain_;
};

/// Sends a message to all of its recipients in one transaction: either the server takes it for all of
/// them, or for none.
/// @param text what `internetMessage` made of it
/// @throws NotSent
void sendByServer(const MailServer& server, const MailMessage& message, const std::string& text);

} // namespace tellurix::standin
