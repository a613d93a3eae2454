#include "database/servers/server_values.h"

#include <array>
#include <charconv>

namespace tellurix::servers {

using base::FieldType;

bool isIntegral(FieldType type) {
    return type == FieldType::tinyInteger || type == FieldType::smallInteger || type == FieldType::integer ||
           type == FieldType::bigInteger;
}

double doubleFrom(float number) {
    std::array<char, 32> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    double value = number;
    std::from_chars(text.data(), end, value);
    return value;
}

} // namespace tellurix::servers
