#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <stdexcept>
#include <string>

namespace tellurix::tests {

/// A folder of its own for one test, removed with everything in it. Tests that run at once do not meet.
class TestFolder {
public:
    TestFolder() {
        if (!std::filesystem::create_directory(path_))
            throw std::runtime_error{"no folder for the test: " + path_.string()};
    }
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// The path of a file in it.
    std::string operator/(const std::string& name) const { return (path_ / name).string(); }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream{path_ / name, std::ios::binary} << text;
    }
    std::string read(const std::string& name) const {
        std::ifstream file{path_ / name, std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    /// Names of the files in it.
    std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator{path_})
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("tellurix-test-" + std::to_string(std::random_device{}()));
};

} // namespace tellurix::tests
