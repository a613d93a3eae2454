#include "bench/support/process_memory.h"

#include <fstream>
#include <stdexcept>

namespace tellurix::bench {

std::int64_t residentKilobytes(const std::string& process) {
    std::ifstream status{"/proc/" + process + "/status"};
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) return std::stoll(line.substr(6));
    }
    throw std::runtime_error{"the process " + process + " is not running any more"};
}

} // namespace tellurix::bench
