#pragma once

#include "tests/support/TestFolder.h"

#include <sys/types.h>

#include <string>
#include <vector>

namespace tellurix::tests {

/// The workbench's program, started as a user starts it. Its home and its working folder are a test
/// folder.
class Program {
public:
    Program(const TestFolder& folder, const std::vector<std::string>& arguments,
            const std::string& input = {});
    /// Ends it when it still runs.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void signal(int number) const;
    /// Waits for its end.
    /// @return the exit status; -1 when a signal ended it
    int wait();
    /// Waits until it has printed a line; empty when it ends without one.
    std::string firstLine();

    std::string output() const;
    std::string errors() const;

private:
    const TestFolder& folder_;
    std::string name_;
    pid_t process_ = -1;
    int status_ = -1;
};

} // namespace tellurix::tests
