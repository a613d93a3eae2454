#include "start/TestFolder.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

namespace tellurix::tests {

namespace fs = std::filesystem;

TestFolder::TestFolder() {
    static int number = 0;
    path_ = fs::temp_directory_path() /
            ("tellurix-start-" + std::to_string(::getpid()) + "-" + std::to_string(++number));
    fs::create_directories(path_);
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void TestFolder::write(const std::string& name, const std::string& text) const {
    std::ofstream{path_ / name, std::ios::binary} << text;
}

std::string TestFolder::read(const std::string& name) const {
    std::ifstream file{path_ / name, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::set<std::string> TestFolder::files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator{path_})
        names.insert(entry.path().filename().string());
    return names;
}

} // namespace tellurix::tests
