#pragma once

#include <QImage>

/// Picture of the saturation/value square: 256 x 256 pixels in QImage::Format_RGB32, pixel
/// (s, 255 - v) being the RGB that QColor gives for HSV (hue, s, v).
/// @param hue 0..360 (360 is red again), or -1 for the greys.
QImage svPicture(int hue);
