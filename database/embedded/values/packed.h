#pragma once

#include "database/embedded/values/types.h"

#include <cstdint>

namespace tellurix::embedded {

/// Small facts about types that are handed to a function inside SQLite as one integer argument,
/// because every argument costs time on every row.

struct PackedScales {
    int left;
    int right;
    int result;

    std::int64_t pack() const { return left | right << 8 | result << 16; }
    static PackedScales unpack(std::int64_t packed) {
        return {static_cast<int>(packed & 0xff), static_cast<int>(packed >> 8 & 0xff),
                static_cast<int>(packed >> 16 & 0xff)};
    }
};

/// What a conversion needs to know of its target: the kind, and precision and scale or the length.
inline std::int64_t packType(const Type& type) {
    return static_cast<int>(type.kind) | type.precision << 8 | type.scale << 16 |
           (type.padded ? 1 << 24 : 0) | (type.dayOnly ? 1 << 25 : 0) |
           static_cast<std::int64_t>(type.length) << 32;
}

inline Type unpackType(std::int64_t packed) {
    return {.kind = static_cast<TypeKind>(packed & 0xff),
            .precision = static_cast<std::uint8_t>(packed >> 8 & 0xff),
            .scale = static_cast<std::uint8_t>(packed >> 16 & 0xff),
            .padded = (packed >> 24 & 1) != 0,
            .dayOnly = (packed >> 25 & 1) != 0,
            .length = static_cast<std::int32_t>(packed >> 32)};
}

/// The same for a conversion from a decimal, whose own scale takes the place of the length.
inline std::int64_t packType(const Type& target, int sourceScale) {
    Type withScale = target;
    withScale.length = sourceScale;
    return packType(withScale);
}

inline int unpackSourceScale(std::int64_t packed) {
    return unpackType(packed).length;
}

} // namespace tellurix::embedded
