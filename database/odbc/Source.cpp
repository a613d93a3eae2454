#include "database/odbc/Source.h"

#include "module/base/text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace tellurix::odbc {

namespace {

constexpr const char* hidden = "***";

struct Entry {
    std::string key; ///< in capital letters
    std::string value;
    std::string written; ///< the value as it stands there, with its braces
};

class OpenFile {
public:
    explicit OpenFile(const std::string& path) : number_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (number_ < 0) throw std::system_error{errno, std::generic_category(), path};
    }
    ~OpenFile() { ::close(number_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    int number() const { return number_; }

private:
    int number_;
};

/// The rights are those of the file that is read, not of one that had its name a moment ago.
std::string contentsOf(const std::string& path) {
    const OpenFile file{path};
    struct stat state {};
    if (::fstat(file.number(), &state) != 0) throw std::system_error{errno, std::generic_category(), path};
    if (!S_ISREG(state.st_mode)) throw std::runtime_error{path + " is no file"};
    if ((state.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        throw std::runtime_error{path +
                                 " holds a password and can be read by others; it must be its owner's "
                                 "alone: chmod 600 " +
                                 path};
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = ::read(file.number(), part.data(), part.size())) != 0;) {
        if (count < 0) throw std::system_error{errno, std::generic_category(), path};
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    return std::string{base::withoutByteOrderMark(text)};
}

/// The entry is not shown: it may be the end of a password that has a semicolon.
[[noreturn]] void failEntry() {
    throw std::runtime_error{
        "The connection string has an entry that is no NAME=VALUE, or a brace that is not closed; a value with a "
        "semicolon stands in braces"};
}

/// A value ends at a semicolon, or at the brace that closes the one it begins with; two of these stand for
/// one.
std::vector<Entry> entriesOf(std::string_view text) {
    std::vector<Entry> entries;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t keyEnd = std::min(text.find_first_of("=;", at), text.size());
        Entry entry{base::toUpper(base::trim(text.substr(at, keyEnd - at))), {}, {}};
        at = keyEnd;
        if (at == text.size() || text[at] == ';') {
            if (!entry.key.empty()) failEntry();
            ++at;
            continue;
        }
        at = std::min(text.find_first_not_of(" \t", at + 1), text.size());
        const std::size_t start = at;
        if (at < text.size() && text[at] == '{') {
            bool closed = false;
            for (++at; at < text.size() && !closed; ++at) {
                closed = text[at] == '}' && (at + 1 == text.size() || text[++at] != '}');
                if (!closed) entry.value += text[at];
            }
            if (!closed) failEntry();
            at = std::min(text.find(';', at - 1), text.size());
        } else {
            at = std::min(text.find(';', at), text.size());
            entry.value = base::trim(text.substr(start, at - start));
        }
        entry.written = base::trim(text.substr(start, at - start));
        ++at;
        if (entry.key.empty()) failEntry();
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool isSecret(const Entry& entry) {
    return entry.key == "PWD" || entry.key == "PASSWORD";
}

/// What the driver for T-SQL servers needs so that texts and wide types come and go as they are.
void completeForTds(std::vector<Entry>& entries) {
    const auto has = [&](std::string_view key) {
        return std::ranges::any_of(entries, [&](const Entry& entry) { return entry.key == key; });
    };
    const auto add = [&](const char* key, const char* value) {
        if (!has(base::toUpper(key))) entries.push_back({key, value, value});
    };
    if (!has("DRIVER") && !has("DSN") && !has("FILEDSN"))
        entries.insert(entries.begin(), {"DRIVER", "FreeTDS", "{FreeTDS}"});
    const auto driver = std::ranges::find(entries, "DRIVER", &Entry::key);
    if (driver == entries.end() || base::toUpper(driver->value).find("TDS") == std::string::npos) return;
    if (has("SERVER")) add("Port", "1433");
    add("TDS_Version", "7.4");
    add("ClientCharset", "UTF-8");
}

} // namespace

Source Source::parse(std::string_view text) {
    std::string given{base::trim(text)};
    if (given.starts_with('@')) {
        if (given == "@") throw std::runtime_error{"There is no name of a file behind the @"};
        given = base::trim(contentsOf(given.substr(1)));
    }
    std::ranges::replace_if(
        given, [](char c) { return c == '\r' || c == '\n'; }, ';');
    if (given.find_first_not_of("; \t") == std::string::npos)
        throw std::runtime_error{"The connection string is empty"};
    if (given.find('=') == std::string::npos) given = "DSN=" + given;
    std::vector<Entry> entries = entriesOf(given);
    completeForTds(entries);
    Source source;
    for (const Entry& entry : entries) {
        source.connectionString_ += entry.key + "=" + entry.written + ";";
        source.description_ += entry.key + "=" + (isSecret(entry) ? hidden : entry.written) + ";";
        if (!isSecret(entry)) continue;
        for (const std::string& secret : {entry.value, entry.written})
            if (!secret.empty()) source.secrets_.push_back(secret);
    }
    return source;
}

std::string Source::withoutSecrets(std::string text) const {
    for (const std::string& secret : secrets_)
        text = base::replaceAll(std::move(text), secret, hidden);
    return text;
}

} // namespace tellurix::odbc
