#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace tellurix::standin {

/// How the recipients of a mail are named in it.
enum class RecipientKind { to, copy, blindCopy };

/// @param setting "TO", "CC" or "BCC"; empty for blind copies, which show nobody the others' addresses
/// @throws std::runtime_error for any other
RecipientKind recipientKindOf(const std::string& setting);

struct MailMessage {
    std::string id; ///< of the message alone, "…@…"
    std::string from;
    RecipientKind kind = RecipientKind::blindCopy;
    std::vector<std::string> recipients;
    std::string subject;
    std::string text; ///< lines end with CR LF or LF
};

/// Whether the text can be an address that a mail server takes.
bool canBeAddress(const std::string& text);

/// An identification that no other message has.
std::string newMessageId();

/// The message as it travels (RFC 5322), in ASCII.
/// @param now in universal time
/// @param withBlindCopies names them too: for a program that has yet to send it
std::string internetMessage(const MailMessage& message, std::chrono::sys_seconds now, bool withBlindCopies);

} // namespace tellurix::standin
