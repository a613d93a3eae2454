#include "services/SampleDatabase.h"

#include "embedded/script.h"

#include <unistd.h>

#include <fstream>
#include <iterator>
#include <system_error>

namespace tellurix::tests {

namespace fs = std::filesystem;

namespace {

fs::path newFolder() {
    std::string name = (fs::temp_directory_path() / "tellurix-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr)
        throw std::system_error{errno, std::generic_category(), "no folder for a test database"};
    return name;
}

std::string contentOf(const fs::path& file) {
    std::ifstream stream{file, std::ios::binary};
    if (!stream) throw std::runtime_error{"cannot read " + file.string()};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

/// The file that all databases of this process are copied from.
class Original {
public:
    explicit Original(const common::Clock& clock) : folder_(newFolder()) {
        const embedded::Database database{file(), clock, {.create = true}};
        const auto connection = database.connect();
        const fs::path data = fs::path{TELLURIX_TEST_FOLDER}.parent_path().parent_path() / "workbench/data";
        for (const char* name :
             {"schema.sql", "sample_reference.sql", "sample_contracts.sql", "sample_logistics.sql"}) {
            embedded::runScript(*connection, contentOf(data / name));
        }
    }
    ~Original() { fs::remove_all(folder_); }
    Original(const Original&) = delete;
    Original& operator=(const Original&) = delete;

    fs::path file() const { return folder_ / "sample.db"; }

private:
    fs::path folder_;
};

fs::path copiedInto(const fs::path& folder, const common::Clock& clock) {
    static const Original original{clock};
    fs::copy_file(original.file(), folder / "sample.db");
    return folder / "sample.db";
}

} // namespace

SampleDatabase::SampleDatabase(const common::Clock& clock)
    : folder_(newFolder()), database_(copiedInto(folder_, clock), clock) {}

SampleDatabase::~SampleDatabase() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

} // namespace tellurix::tests
