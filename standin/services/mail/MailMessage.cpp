#include "standin/services/mail/MailMessage.h"

#include "module/base/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <string_view>

namespace tellurix::standin {

namespace {

constexpr const char* lineEnd = "\r\n";

std::string base64(std::string_view bytes) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string encoded;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            encoded += k <= count ? digits[group >> (18 - 6 * k) & 63] : '=';
    }
    return encoded;
}

/// A header's text in words that all mail programs read; each one short enough for its line.
std::string headerText(const std::string& text) {
    const bool plain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c < 127; });
    if (plain && text.size() <= 60) return text;
    std::string words;
    std::string part;
    const auto finish = [&] {
        words += (words.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + base64(part) + "?=";
        part.clear();
    };
    for (const char32_t character : base::decodeUtf8(text)) {
        // A line end in a header would begin another one.
        const std::string encoded = base::encodeUtf8(character < U' ' ? U' ' : character);
        if (part.size() + encoded.size() > 42) finish();
        part += encoded;
    }
    if (!part.empty()) finish();
    return words;
}

/// Addresses one a line, so that no line is too long.
std::string addressLines(const std::vector<std::string>& addresses) {
    std::string lines;
    for (const std::string& address : addresses)
        lines += (lines.empty() ? "" : ",\r\n ") + address;
    return lines;
}

std::string dateText(std::chrono::sys_seconds now) {
    constexpr std::array<const char*, 7> days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    using namespace std::chrono;
    const auto day = floor<std::chrono::days>(now);
    const year_month_day date{day};
    const hh_mm_ss time{now - day};
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s, %u %s %d %02d:%02d:%02d +0000",
                  days.at(weekday{day}.c_encoding()), unsigned{date.day()},
                  months.at(unsigned{date.month()} - 1), int{date.year()},
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text.data();
}

} // namespace

RecipientKind recipientKindOf(const std::string& setting) {
    const std::string kind = base::toUpper(base::trim(setting));
    if (kind.empty() || kind == "BCC") return RecipientKind::blindCopy;
    if (kind == "TO") return RecipientKind::to;
    if (kind == "CC") return RecipientKind::copy;
    throw std::runtime_error{"MAILRECIPIENTS = " + setting};
}

bool canBeAddress(const std::string& text) {
    const std::size_t at = text.find('@');
    if (at == std::string::npos || at == 0 || at > 64 || text.size() > 254) return false;
    const std::string_view domain = std::string_view{text}.substr(at + 1);
    const auto isWord = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 ||
               std::string_view{"!#$%&'*+-/=?^_`{|}~."}.find(c) != std::string_view::npos;
    };
    const auto isHost = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '.';
    };
    const auto dotted = [](std::string_view part) {
        return !part.starts_with('.') && !part.ends_with('.') && part.find("..") == std::string_view::npos;
    };
    const std::string_view name = std::string_view{text}.substr(0, at);
    return !domain.empty() && std::ranges::all_of(name, isWord) && std::ranges::all_of(domain, isHost) &&
           dotted(name) && dotted(domain);
}

std::string newMessageId() {
    std::random_device random;
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%08x%08x%08x", random(), random(), random());
    return std::string{text.data()} + "@tellurix.invalid";
}

std::string internetMessage(const MailMessage& message, std::chrono::sys_seconds now, bool withBlindCopies) {
    std::string text;
    const auto header = [&text](const char* name, const std::string& value) {
        text += std::string{name} + ": " + value + lineEnd;
    };
    header("Date", dateText(now));
    if (!message.from.empty()) header("From", message.from);
    const std::string recipients = addressLines(message.recipients);
    if (message.kind == RecipientKind::to)
        header("To", recipients);
    else
        header("To", "undisclosed-recipients:;");
    if (message.kind == RecipientKind::copy) header("Cc", recipients);
    if (message.kind == RecipientKind::blindCopy && withBlindCopies) header("Bcc", recipients);
    header("Subject", headerText(message.subject));
    header("Message-ID", "<" + message.id + ">");
    header("MIME-Version", "1.0");
    header("Content-Type", "text/plain; charset=utf-8");
    header("Content-Transfer-Encoding", "base64");
    text += lineEnd;
    const std::string body =
        base64(base::replaceAll(base::replaceAll(message.text, lineEnd, "\n"), "\n", lineEnd));
    constexpr std::size_t lineLength = 76;
    for (std::size_t i = 0; i < body.size(); i += lineLength)
        text += body.substr(i, lineLength) + lineEnd;
    return text;
}

} // namespace tellurix::standin
