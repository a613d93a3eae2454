#pragma once

namespace tellurix::ui {

/// How a message box looks, as the platform's flags: buttons, icon and default button added up.
/// The numbers are part of the interface that the screens were written against.
namespace box {
inline constexpr int ok = 0;
inline constexpr int okCancel = 1;
inline constexpr int yesNoCancel = 3;
inline constexpr int yesNo = 4;

inline constexpr int critical = 16;
inline constexpr int question = 32;
inline constexpr int exclamation = 48;
inline constexpr int information = 64;

inline constexpr int defaultButton1 = 0;
inline constexpr int defaultButton2 = 256;
inline constexpr int defaultButton3 = 512;

constexpr int buttonsOf(int flags) {
    return flags & 0xF;
}
constexpr int iconOf(int flags) {
    return flags & 0xF0;
}
/// Index of the default button, from 0.
constexpr int defaultOf(int flags) {
    return (flags & 0xF00) / 256;
}
} // namespace box

/// The button that was pressed, by the platform's numbers.
enum class Answer { ok = 1, cancel = 2, yes = 6, no = 7 };

} // namespace tellurix::ui
