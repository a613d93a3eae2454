#pragma once

#include <stdexcept>

namespace tellurix::common {

/// What was asked for is not done, for a reason that lies with the input or with what somebody else has
/// done meanwhile. The message is for the user, who reads it as it stands and can act on it.
class Refused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tellurix::common
