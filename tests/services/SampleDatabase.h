#pragma once

#include "embedded/Database.h"

#include <filesystem>

namespace tellurix::tests {

/// A database file with the sample trade in it, for one test alone. The first of a process loads
/// schema and sample data; the others are copies of that file. Removed with the object.
class SampleDatabase {
public:
    explicit SampleDatabase(const common::Clock& clock);
    ~SampleDatabase();
    SampleDatabase(const SampleDatabase&) = delete;
    SampleDatabase& operator=(const SampleDatabase&) = delete;

    std::unique_ptr<common::Connection> connect() const { return database_.connect(); }

private:
    std::filesystem::path folder_;
    embedded::Database database_;
};

} // namespace tellurix::tests
