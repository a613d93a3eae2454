#pragma once

#include "tests/support/StandingClock.h"

#include <filesystem>

namespace tellurix::bench {

/// It is always 5 June 2025, ten o'clock, so that every run sends the same statements.
inline const tests::StandingClock standingClock{base::startOf(std::chrono::year{2025} / 6 / 5) +
                                                std::chrono::hours{10}};

/// A folder of its own with a database file of the workbench's sample trade; gone with the object.
class SampleFile {
public:
    SampleFile();
    ~SampleFile();
    SampleFile(const SampleFile&) = delete;
    SampleFile& operator=(const SampleFile&) = delete;

    const std::filesystem::path& path() const { return file_; }

private:
    std::filesystem::path folder_;
    std::filesystem::path file_;
};

} // namespace tellurix::bench
