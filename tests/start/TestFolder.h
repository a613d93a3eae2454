#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace tellurix::tests {

/// A folder of its own for one test, removed with everything in it.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// The path of a file in it.
    std::string operator/(const std::string& name) const { return (path_ / name).string(); }
    /// Writes a file.
    void write(const std::string& name, const std::string& text) const;
    std::string read(const std::string& name) const;
    /// Names of the files in it.
    std::set<std::string> files() const;

private:
    std::filesystem::path path_;
};

} // namespace tellurix::tests
