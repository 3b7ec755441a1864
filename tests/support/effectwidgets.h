#pragma once

#include <array>

/// What of the window an effect changes, by object names.
namespace EffectWidgets {

inline constexpr std::array hidden{
    "label_13",      "keyboard_full",   "colorpick4",     "label_9",    "label_10",   "label_11",
    "keyboard_left", "keyboard_center", "keyboard_right", "colorpick1", "colorpick2", "colorpick3"};
/// Shown in their place.
inline constexpr std::array notes{"label_14", "label_16"};

} // namespace EffectWidgets
