#include "com/server/ServedClass.h"

#include "com/component/VersionObject.h"
#include "com/component/VertragObject.h"

#include <array>

namespace tellurix::windows {

std::span<const ServedClass> servedClasses() {
    static constexpr auto vertrag = [] { return ComPtr<IUnknown>::adopt(new VertragObject); };
    static constexpr auto version = [] { return ComPtr<IUnknown>::adopt(new VersionObject); };
    static const std::array classes{ServedClass{__uuidof(clsVertrag), vertrag},
                                    ServedClass{__uuidof(C_Version), version}};
    return classes;
}

} // namespace tellurix::windows
