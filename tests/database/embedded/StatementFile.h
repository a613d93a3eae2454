#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tellurix::embedded {

/// One statement text of a `.test` file with what it has to answer.
struct StatementBlock {
    std::string name;
    std::string statement;
    std::string edit; ///< of `-- edit:`
    bool edits = false;
    bool removes = false;
    std::vector<std::string> onlyOn; ///< of `-- only on`; empty for all
    std::vector<std::string> notOn;  ///< of `-- not on`
    std::vector<std::string> expected;
    std::map<std::string, std::vector<std::string>>
        deviations; ///< what a database answers instead, by its name
    int line = 0;   ///< where the block starts
};

/// A `.test` file; README.md says how it is written.
struct StatementFile {
    bool isShared = false;          ///< not of T-SQL alone
    std::vector<std::string> setup; ///< files to load first, seen from the folder of the tests
    std::vector<StatementBlock> blocks;

    /// @throws std::runtime_error naming the line that breaks the format
    static StatementFile read(const std::filesystem::path& file);
};

std::string readFile(const std::filesystem::path& file);

} // namespace tellurix::embedded
