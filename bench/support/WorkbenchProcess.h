#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace tellurix::bench {

/// The workbench as its users run it, in a process of its own: what it costs can be told apart from
/// what its measurement costs. Stopped with the object.
class WorkbenchProcess {
public:
    /// Starts it on a database and waits for the address.
    /// @throws std::exception when it does not come up
    explicit WorkbenchProcess(const std::filesystem::path& database);
    ~WorkbenchProcess();
    WorkbenchProcess(const WorkbenchProcess&) = delete;
    WorkbenchProcess& operator=(const WorkbenchProcess&) = delete;

    std::uint16_t port() const { return port_; }
    const std::string& key() const { return key_; }

    /// The memory that it has in use, in kilobytes.
    std::int64_t memory() const;
    /// The processor time that it has used, in seconds.
    double processorSeconds() const;

private:
    void readAddress(int output);

    pid_t process_ = -1;
    std::uint16_t port_ = 0;
    std::string key_;
};

} // namespace tellurix::bench
