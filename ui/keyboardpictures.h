#pragma once

#include "lighting/devicewords.h"

#include <QColor>
#include <QPixmap>
#include <QString>

/// The preview pictures of the window.
enum class KeyboardPicture { Left = 1, Centre = 2, Right = 3, Full = 4, Stripe = 5 };

/// File of a picture, relative to the current directory; empty for an unknown number.
QString pictureFile(KeyboardPicture picture);

/// The colour that a picture is filled with. Components outside 0..255, which a stored text like
/// "300 0 0" can hold, are no colour: the shape is then shown in solid black, so that the preview
/// does not pretend to know what the keyboard makes of them.
QColor tintColour(const ColourComponents &components, int alpha);

/// @p picture with its shape kept and all its own colours replaced by @p colour. A null picture
/// stays null.
QPixmap tinted(const QPixmap &picture, const QColor &colour);
