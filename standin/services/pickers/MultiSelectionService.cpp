#include "standin/services/pickers/MultiSelectionService.h"

#include <stdexcept>

namespace tellurix::standin {

std::optional<std::vector<std::int64_t>> MultiSelectionService::choose(const host::TlxVar&,
                                                                       const std::string& list,
                                                                       const std::string&,
                                                                       const std::vector<std::int64_t>&) {
    throw std::runtime_error{"The list is not available yet: " + list};
}

} // namespace tellurix::standin
