#include "module/host/contract_type.h"

#include "module/base/text.h"

namespace tellurix::host {

int contractTypeNumber(std::string_view code) {
    if (code == "R") return 0;
    if (code.size() == 2 && code[0] == 'A' && code[1] >= '1' && code[1] <= '8') return code[1] - '0';
    return -1;
}

std::string contractTypeOf(std::string_view code) {
    const int number = contractTypeNumber(base::toUpper(code));
    if (number < 0) return {};
    return number == 0 ? "V" : "V" + std::to_string(number);
}

} // namespace tellurix::host
