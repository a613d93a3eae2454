#include "database/embedded/translation/call_arguments.h"

#include "database/embedded/values/Fault.h"

namespace tellurix::embedded {

void requireArguments(const Expression& call, std::size_t fewest, std::size_t most) {
    if (call.operands.size() >= fewest && call.operands.size() <= most) return;
    std::string count = std::to_string(fewest);
    if (most != fewest) count += " or " + std::to_string(most);
    failSyntax("The function " + std::string(call.name.written) + " takes " + count + " arguments here",
               call.position);
}

} // namespace tellurix::embedded
