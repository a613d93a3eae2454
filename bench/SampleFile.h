#pragma once

#include "common/Clock.h"

#include <filesystem>

namespace tellurix::bench {

/// A clock that stands still, so that every run sends the same statements.
class StandingClock final : public common::Clock {
public:
    common::DateTime now() const override {
        using namespace std::chrono_literals;
        return common::DateTime{std::chrono::local_days{2025y / 6 / 5}} + 10h;
    }
};

/// A folder of its own with a database file of the workbench's sample trade; gone with the object.
class SampleFile {
public:
    SampleFile();
    ~SampleFile();
    SampleFile(const SampleFile&) = delete;
    SampleFile& operator=(const SampleFile&) = delete;

    const std::filesystem::path& path() const { return file_; }
    const common::Clock& clock() const { return clock_; }

private:
    StandingClock clock_;
    std::filesystem::path folder_;
    std::filesystem::path file_;
};

} // namespace tellurix::bench
