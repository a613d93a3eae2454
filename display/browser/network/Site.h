#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::browser {

/// A request, as far as it matters here.
struct SiteRequest {
    std::string method;
    std::string target; ///< path and query as they came
    std::string host;
    std::string origin; ///< empty when there is none
    bool upgrade = false;
};

struct SiteReply {
    int status = 200;
    std::string contentType;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;
};

/// Decides who is answered, and what: the rules of access, the static page and its headers.
///
/// The page stands at "/?key=KEY", its files at "/KEY/name" and its connection at "/KEY/session".
/// So every request carries the key, and nothing has to be remembered by the browser: a cookie
/// would be sent to every other program that listens on this machine, because cookies do not tell
/// ports apart. Another key is refused with a page that says where the address is to be found.
class Site {
public:
    Site(std::uint16_t port, std::string key);

    /// Where the user goes.
    std::string address() const;
    SiteReply answer(const SiteRequest& request) const;
    /// Whether the request has the key, and so comes from the user.
    bool knows(const SiteRequest& request) const;
    /// What a page asks for or sends as a file of its session: "/KEY/file/SESSION/NUMBER".
    struct FileName {
        std::string session;
        int number = 0;
    };
    /// Nothing when the request is none for a file, or has no key. To send one, it has to come from
    /// the own page.
    std::optional<FileName> fileAsked(const SiteRequest& request) const;
    /// A file of a session, to be saved under its name.
    SiteReply file(const std::string& name, std::string content) const;
    /// An answer without content.
    SiteReply protectedReply(int status) const;
    /// Whether this asks for the page's connection and may have it. Otherwise `answer` it.
    bool admitsConnection(const SiteRequest& request) const;

private:
    /// The name of the file that the target asks for, or nothing when its key is wrong.
    std::optional<std::string> keyedName(std::string_view target) const;
    bool ownHost(std::string_view host) const;
    bool fromOwnPage(const SiteRequest& request) const;
    SiteReply page(const SiteRequest& request) const;

    const std::string key_;
    const std::string byNumber_; ///< the two names that this machine's own browser may know it by
    const std::string byName_;
};

} // namespace tellurix::browser
