#include "tests/database/embedded/StatementFile.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tellurix::embedded {

namespace {

constexpr const char* schemaSetup =
    "schema.sql, sample_reference.sql, sample_contracts.sql, sample_logistics.sql";

std::string trimmed(const std::string& text) {
    const std::size_t start = text.find_first_not_of(" \t\r");
    return start == std::string::npos ? "" : text.substr(start, text.find_last_not_of(" \t\r") - start + 1);
}

std::vector<std::string> listed(const std::string& text, const std::filesystem::path& folder) {
    std::vector<std::string> files;
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, ',');)
        files.push_back((folder / trimmed(part)).string());
    return files;
}

std::vector<std::string> words(const std::string& text) {
    std::vector<std::string> found;
    std::istringstream parts(text);
    for (std::string word; parts >> word;)
        found.push_back(word);
    return found;
}

class Reader {
public:
    explicit Reader(const std::filesystem::path& file) : file_(file) {
        std::istringstream text(readFile(file));
        for (std::string line; std::getline(text, line);)
            lines_.push_back(line);
    }

    StatementFile run() {
        readHead();
        while (next_ < lines_.size())
            readBlock();
        return std::move(result_);
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw std::runtime_error(file_.string() + ":" + std::to_string(next_ + 1) + ": " + what);
    }

    bool at(const std::string& line) const { return next_ < lines_.size() && lines_[next_] == line; }

    bool accept(const std::string& prefix, std::string& rest) {
        if (next_ == lines_.size() || !lines_[next_].starts_with(prefix)) return false;
        rest = trimmed(lines_[next_++].substr(prefix.size()));
        return true;
    }

    void readHead() {
        for (; next_ < lines_.size() && !at("----"); ++next_) {
            const std::string& line = lines_[next_];
            if (!trimmed(line).empty() && !line.starts_with("--"))
                fail("expected ---- before the first block");
            if (line == "-- shared") result_.isShared = true;
            if (line == "-- setup: schema")
                result_.setup = listed(schemaSetup, "../../../standin/data");
            else if (line.starts_with("-- setup: "))
                result_.setup = listed(line.substr(10), "");
        }
        ++next_;
    }

    void readBlock() {
        StatementBlock block;
        while (next_ < lines_.size() && trimmed(lines_[next_]).empty())
            ++next_;
        if (next_ == lines_.size()) return;
        block.line = static_cast<int>(next_) + 1;
        if (!accept("-- name: ", block.name)) fail("expected -- name:");
        std::string ignored;
        std::string databases;
        if (accept("-- only on ", databases)) block.onlyOn = words(databases);
        if (accept("-- not on ", databases)) block.notOn = words(databases.substr(0, databases.find(':')));
        std::string lineBreak = "\n";
        if (accept("-- crlf", ignored)) lineBreak = "\r\n";
        block.edits = accept("-- edit: ", block.edit);
        block.removes = accept("-- remove", ignored);
        for (bool first = true; !at("=>"); ++next_, first = false) {
            if (next_ == lines_.size() || at("----")) fail("expected =>");
            block.statement += (first ? "" : lineBreak) + lines_[next_];
        }
        auto* expected = &block.expected;
        for (++next_; next_ < lines_.size() && !at("----"); ++next_) {
            if (lines_[next_].starts_with("=> "))
                expected = &block.deviations[trimmed(lines_[next_].substr(3))];
            else if (!trimmed(lines_[next_]).empty())
                expected->push_back(lines_[next_]);
        }
        ++next_;
        if (block.expected.empty()) fail("nothing stands after =>");
        result_.blocks.push_back(std::move(block));
    }

    std::filesystem::path file_;
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    StatementFile result_;
};

} // namespace

StatementFile StatementFile::read(const std::filesystem::path& file) {
    return Reader(file).run();
}

std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

} // namespace tellurix::embedded
