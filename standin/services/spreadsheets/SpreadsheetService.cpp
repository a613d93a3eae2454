#include "standin/services/spreadsheets/SpreadsheetService.h"

#include "standin/services/spreadsheets/Workbook.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace tellurix::standin {

namespace {

/// A file of its own, which goes with this object.
class PassingFile {
public:
    ~PassingFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    const std::filesystem::path& path() const { return path_; }
    std::string content() const {
        std::ifstream file{path_, std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("tellurix-" + std::to_string(std::random_device{}()) +
                                                  std::to_string(std::random_device{}()) + ".xlsx");
};

} // namespace

void SpreadsheetService::exportTable(const host::TlxVar& session, const std::string& parameters,
                                     const std::string& title) {
    const ui::BusyPointer busy{display_};
    const PassingFile file;
    writeWorkbook(file.path(), TableText::read(parameters), title, session.user, locale_);
    display_.presentFile(sheetName(title) + ".xlsx", file.content());
}

} // namespace tellurix::standin
