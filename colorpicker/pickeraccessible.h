#pragma once

class ColorWidget;

/// How screen readers see the picker widgets: the strip as a slider of 0 to 360 degrees, the square
/// as a colour chooser described by its two values, the sample as a button described by its colour.
namespace PickerAccessible {

/// Makes the toolkit ask here for these widgets; further calls do nothing.
void install();

/// Tells screen readers that the widget's value or description is another now.
void announceChange(ColorWidget &widget);

} // namespace PickerAccessible
