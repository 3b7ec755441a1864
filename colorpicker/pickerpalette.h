#pragma once

#include <QColor>

/// Greys of the picker.
namespace PickerPalette {

constexpr QColor outline{0xdd, 0xdd, 0xdd}; ///< "#ddd", around the ring
constexpr QColor marker{0x33, 0x33, 0x33};  ///< "#333", inside arrow and ring
constexpr QColor middle{0x55, 0x55, 0x55};  ///< "#555"
constexpr QColor focus{0xff, 0xff, 0xff};   ///< frame of what the keys act on
constexpr QColor restingFrame{80, 80, 80, 200};
constexpr QColor hoveredFrame{30, 30, 30, 220}; ///< of the sample under the pointer

} // namespace PickerPalette
