#pragma once

#include "database/embedded/Database.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <thread>

namespace tellurix::tests {

/// Lets the driver for T-SQL servers meet T-SQL where no such server can be installed: the embedded database
/// behind that protocol, on a free port of this machine. It knows as much of a server as the adapter asks
/// for.
class TdsServer {
public:
    TdsServer(std::filesystem::path file, const base::Clock& clock, embedded::Database::Options options);
    ~TdsServer();
    TdsServer(const TdsServer&) = delete;
    TdsServer& operator=(const TdsServer&) = delete;

    std::uint16_t port() const { return port_; }

private:
    void accept();

    embedded::Database database_;
    int listener_ = -1;
    std::uint16_t port_ = 0;
    std::atomic<bool> ended_ = false;
    std::thread thread_;
};

} // namespace tellurix::tests
