#pragma once

/// Colour models a text can be written in. The numbers are those stored in the text fields; an
/// operation given any other number answers "not valid".
enum class ColorModel : int {
    Hsv = 0,  ///< "hue saturation value", three decimal numbers
    Rgb = 1,  ///< "red green blue", three decimal numbers
    Cmyk = 2, ///< "cyan magenta yellow black", four decimal numbers
    Hex = 3,  ///< one run of three or six hexadecimal digits, no "#"
};
