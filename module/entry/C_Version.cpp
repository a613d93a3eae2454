#include "module/entry/C_Version.h"

namespace tellurix::host {

namespace {

constexpr int majorVersion = 2;
constexpr int revision = 0;

} // namespace

std::string C_Version::DLL_Version() const {
    return std::to_string(majorVersion) + "." + std::to_string(revision);
}

} // namespace tellurix::host
