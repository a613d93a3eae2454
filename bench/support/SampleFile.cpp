#include "bench/support/SampleFile.h"

#include "standin/home/database_file.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace tellurix::bench {

SampleFile::SampleFile() {
    std::string pattern = std::filesystem::temp_directory_path() / "tellurix-bench-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::system_error{errno, std::generic_category(), "making " + pattern};
    folder_ = pattern;
    file_ = folder_ / "sample.db";
    standin::createWhenMissing(file_, standin::DatabaseContents::sample, standingClock);
}

SampleFile::~SampleFile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

} // namespace tellurix::bench
