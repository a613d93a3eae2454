#include "display/browser/network/Site.h"

#include "display/browser/network/secrets.h"
#include "display/browser/session/key_uses.h"
#include "module/base/text.h"
#include "page.h"

#include <array>
#include <cctype>
#include <charconv>
#include <stdexcept>

namespace tellurix::browser {

namespace {

constexpr const char* connectionName = "session";
constexpr const char* refusal = "unknown_address.html";

SiteReply plain(int status, std::string body) {
    return {status, "text/plain; charset=utf-8", std::move(body), {}};
}

std::string contentTypeOf(std::string_view name) {
    struct Type {
        std::string_view ending;
        const char* contentType;
    };
    constexpr std::array<Type, 5> types{
        {{".xlsx", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"},
         {".html", "text/html; charset=utf-8"},
         {".css", "text/css; charset=utf-8"},
         {".js", "text/javascript; charset=utf-8"},
         {".svg", "image/svg+xml"}}};
    for (const Type& type : types) {
        if (name.ends_with(type.ending)) return type.contentType;
    }
    return "application/octet-stream";
}

/// As a header can say any text.
std::string percentEncoded(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80 && (std::isalnum(byte) != 0 || byte == '.' || byte == '-' || byte == '_')) {
            encoded += character;
        } else {
            encoded += {'%', digits[byte >> 4], digits[byte & 15]};
        }
    }
    return encoded;
}

void protect(SiteReply& reply, const std::string& host) {
    // The connection is named as well: not every browser counts ws: as the page's own origin.
    reply.headers = {
        {"Content-Security-Policy",
         "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src 'self' ws://" +
             host + "; base-uri 'none'; frame-ancestors 'none'; form-action 'none'"},
        {"X-Content-Type-Options", "nosniff"},
        {"X-Frame-Options", "DENY"},
        {"Referrer-Policy", "no-referrer"},
        {"Cross-Origin-Opener-Policy", "same-origin"},
        {"Cross-Origin-Resource-Policy", "same-origin"},
        {"Cache-Control", "no-store"},
    };
}

} // namespace

Site::Site(std::uint16_t port, std::string key)
    : key_(std::move(key)),
      byNumber_("127.0.0.1:" + std::to_string(port)),
      byName_("localhost:" + std::to_string(port)) {}

std::string Site::address() const {
    return "http://" + byNumber_ + "/?key=" + key_;
}

bool Site::ownHost(std::string_view host) const {
    return host == byNumber_ || host == byName_;
}

bool Site::fromOwnPage(const SiteRequest& request) const {
    // The origin is the page's own address, by the same name as the request's.
    return request.origin == "http://" + request.host;
}

std::optional<std::string> Site::keyedName(std::string_view target) const {
    constexpr std::string_view front = "/?key=";
    if (target.starts_with(front)) {
        if (!equalInConstantTime(target.substr(front.size()), key_)) return std::nullopt;
        return "index.html";
    }
    const std::size_t slash = target.find('/', 1);
    if (!target.starts_with('/') || slash == std::string_view::npos) return std::nullopt;
    if (!equalInConstantTime(target.substr(1, slash - 1), key_)) return std::nullopt;
    return std::string{target.substr(slash + 1)};
}

SiteReply Site::answer(const SiteRequest& request) const {
    SiteReply reply = page(request);
    protect(reply, ownHost(request.host) ? request.host : byNumber_);
    return reply;
}

SiteReply Site::page(const SiteRequest& request) const {
    const auto name = keyedName(request.target);
    if (!ownHost(request.host)) return plain(403, "403\n");
    // Most likely the address of an earlier start: its user is told where to find the new one.
    if (!name) return {403, contentTypeOf(refusal), std::string{page::file(refusal)}, {}};
    if (request.method != "GET" && request.method != "HEAD") return plain(405, "405\n");
    if (*name == connectionName) return plain(403, "403\n");
    if (*name == "key_uses.js") return {200, contentTypeOf(*name), keyUsesModule(), {}};
    try {
        std::string body{page::file(*name)};
        if (*name == "index.html") body = base::replaceAll(std::move(body), "KEY", key_);
        return {200, contentTypeOf(*name), std::move(body), {}};
    } catch (const std::out_of_range&) {
        return plain(404, "404\n");
    }
}

std::optional<Site::FileName> Site::fileAsked(const SiteRequest& request) const {
    const bool sends = request.method == "POST";
    if (!ownHost(request.host) || (sends ? !fromOwnPage(request) : request.method != "GET"))
        return std::nullopt;
    const auto name = keyedName(request.target);
    constexpr std::string_view folder = "file/";
    if (!name || !name->starts_with(folder)) return std::nullopt;
    const std::size_t slash = name->find('/', folder.size());
    if (slash == std::string::npos) return std::nullopt;
    FileName asked{.session = name->substr(folder.size(), slash - folder.size())};
    const char* end = name->data() + name->size();
    const auto [read, failure] = std::from_chars(name->data() + slash + 1, end, asked.number);
    if (failure != std::errc{} || read != end) return std::nullopt;
    return asked;
}

SiteReply Site::file(const std::string& name, std::string content) const {
    SiteReply reply{200, contentTypeOf(name), std::move(content), {}};
    protect(reply, byNumber_);
    reply.headers.emplace_back("Content-Disposition", "attachment; filename*=UTF-8''" + percentEncoded(name));
    return reply;
}

SiteReply Site::protectedReply(int status) const {
    SiteReply reply{status, {}, {}, {}};
    protect(reply, byNumber_);
    return reply;
}

bool Site::knows(const SiteRequest& request) const {
    return ownHost(request.host) && keyedName(request.target).has_value();
}

bool Site::admitsConnection(const SiteRequest& request) const {
    return request.upgrade && ownHost(request.host) && fromOwnPage(request) &&
           keyedName(request.target) == connectionName;
}

} // namespace tellurix::browser
