#include "com/component/host_variant.h"

namespace tellurix::windows {

host::Variant hostVariant(const VARIANT& value) {
    const Variant copy = Variant::copyOf(value);
    switch (copy.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return std::monostate{};
    case VT_BOOL:
        return copy.flag();
    case VT_BSTR:
        return copy.text();
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_I8:
    case VT_INT:
    case VT_UINT:
        return static_cast<std::int64_t>(copy.as(VT_I8).llVal);
    default:
        return copy.number();
    }
}

Variant comVariant(const host::Variant& value) {
    return std::visit(
        [](const auto& held) -> Variant {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>)
                return {};
            else
                return Variant(held);
        },
        value);
}

} // namespace tellurix::windows
