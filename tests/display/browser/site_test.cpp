#include "display/browser/network/Site.h"
#include "display/browser/network/secrets.h"

#include <gtest/gtest.h>

#include <set>

namespace tellurix::browser {
namespace {

const std::string key = "0123456789abcdef0123456789abcdef";
const std::string wrong = "0123456789abcdef0123456789abcdee";

TEST(Site, AnswersNobodyWithoutTheKey) {
    const Site site{8080, key};
    struct Row {
        const char* rule;
        SiteRequest request;
        int status;
    };
    const std::string own = "127.0.0.1:8080";
    for (const auto& row : std::vector<Row>{
             {"the address with its key", {"GET", "/?key=" + key, own, "", false}, 200},
             {"by the machine's other name", {"GET", "/?key=" + key, "localhost:8080", "", false}, 200},
             {"a file under the key", {"GET", "/" + key + "/main.js", own, "", false}, 200},
             {"a file in a folder", {"GET", "/" + key + "/controls/grid.js", own, "", false}, 200},
             {"a file that is not there", {"GET", "/" + key + "/none.js", own, "", false}, 404},
             {"no way up", {"GET", "/" + key + "/../page/main.js", own, "", false}, 404},
             {"no other method", {"POST", "/?key=" + key, own, "", false}, 405},
             {"no key", {"GET", "/", own, "", false}, 403},
             {"an empty key", {"GET", "/?key=", own, "", false}, 403},
             {"another key", {"GET", "/?key=" + wrong, own, "", false}, 403},
             {"only the key's beginning", {"GET", "/?key=" + key.substr(0, 31), own, "", false}, 403},
             {"more than the key", {"GET", "/?key=" + key + "0", own, "", false}, 403},
             {"a file without key", {"GET", "/main.js", own, "", false}, 403},
             {"a file under another key", {"GET", "/" + wrong + "/main.js", own, "", false}, 403},
             {"a browser's own wish", {"GET", "/favicon.ico", own, "", false}, 403},
             {"another host that leads here", {"GET", "/?key=" + key, "evil.example:8080", "", false}, 403},
             {"another port", {"GET", "/?key=" + key, "127.0.0.1:80", "", false}, 403},
             {"no host", {"GET", "/?key=" + key, "", "", false}, 403},
             {"the connection without an upgrade", {"GET", "/" + key + "/session", own, "", false}, 403},
         }) {
        EXPECT_EQ(site.answer(row.request).status, row.status) << row.rule;
        EXPECT_FALSE(site.admitsConnection(row.request)) << row.rule;
    }
}

TEST(Site, AdmitsOnlyItsOwnPageToTheConnection) {
    const Site site{8080, key};
    struct Row {
        const char* rule;
        const char* host;
        const char* origin;
        std::string target;
        bool admitted;
    };
    const std::string target = "/" + key + "/session";
    for (const auto& row : std::vector<Row>{
             {"its own page", "127.0.0.1:8080", "http://127.0.0.1:8080", target, true},
             {"by the other name", "localhost:8080", "http://localhost:8080", target, true},
             {"under two names at once", "localhost:8080", "http://127.0.0.1:8080", target, false},
             {"another page", "127.0.0.1:8080", "http://evil.example", target, false},
             {"another port's page", "127.0.0.1:8080", "http://127.0.0.1:8081", target, false},
             {"a page from a file", "127.0.0.1:8080", "null", target, false},
             {"no page", "127.0.0.1:8080", "", target, false},
             {"another host", "evil.example:8080", "http://evil.example:8080", target, false},
             {"another key", "127.0.0.1:8080", "http://127.0.0.1:8080", "/" + wrong + "/session", false},
             {"a file", "127.0.0.1:8080", "http://127.0.0.1:8080", "/" + key + "/main.js", false},
         }) {
        EXPECT_EQ(site.admitsConnection({"GET", row.target, row.host, row.origin, true}), row.admitted)
            << row.rule;
    }
}

TEST(Site, EveryAnswerIsProtected) {
    const Site site{8080, key};
    for (const std::string& target : {"/?key=" + key, std::string{"/"}, "/" + key + "/main.js"}) {
        std::string all;
        for (const auto& [name, value] : site.answer({"GET", target, "127.0.0.1:8080", "", false}).headers)
            all += name + ": " + value + "\n";
        for (const char* part :
             {"default-src 'none'", "script-src 'self';", "style-src 'self';", "base-uri 'none'",
              "frame-ancestors 'none'", "nosniff", "no-referrer", "no-store"}) {
            EXPECT_NE(all.find(part), std::string::npos) << part << " for " << target;
        }
        EXPECT_EQ(all.find("Set-Cookie"), std::string::npos) << target;
    }
    const std::string page = site.answer({"GET", "/?key=" + key, "127.0.0.1:8080", "", false}).body;
    EXPECT_NE(page.find("/" + key + "/main.js"), std::string::npos);
    EXPECT_EQ(page.find("style="), std::string::npos) << "the policy forbids inline styles";
}

TEST(Secrets, KeysAreLongAndNeverTheSame) {
    std::set<std::string> keys;
    for (int i = 0; i < 1000; ++i)
        keys.insert(randomKey());
    EXPECT_EQ(keys.size(), 1000U);
    EXPECT_EQ(keys.begin()->size(), 32U);
    EXPECT_TRUE(equalInConstantTime("abc", "abc"));
    EXPECT_FALSE(equalInConstantTime("abc", "abd"));
    EXPECT_FALSE(equalInConstantTime("", "abd"));
}

} // namespace
} // namespace tellurix::browser
