#include "component/services/HostClass.h"

namespace tellurix::windows {

Variant HostClass::call(const wchar_t* operation, Dispatch::Arguments arguments) {
    if (!object_) object_ = Dispatch::create(std::string("Tellurix_Loc.") + name_);
    return object_.call(operation, arguments);
}

} // namespace tellurix::windows
