#pragma once

#include "bench/generate_logistics.h"

#include <cstdint>
#include <filesystem>

namespace tellurix::bench {

/// A folder of its own with a large database file, made by generate_database; gone with the object.
class GeneratedFile {
public:
    struct Sizes {
        std::int64_t contracts = 1;
        std::int64_t lines = 0; ///< price lines and as many quantity lines of each contract
        std::int64_t logs = 0;
        std::int64_t booked = 0; ///< logs that are booked, to the contracts in turn
        LogisticsSizes logistics = {};
    };

    /// @throws std::exception when it could not be made; what is wrong has been told on standard error
    explicit GeneratedFile(const Sizes& sizes);
    ~GeneratedFile();
    GeneratedFile(const GeneratedFile&) = delete;
    GeneratedFile& operator=(const GeneratedFile&) = delete;

    const std::filesystem::path& path() const { return file_; }

private:
    void generate(const Sizes& sizes) const;

    std::filesystem::path folder_;
    std::filesystem::path file_;
};

} // namespace tellurix::bench
