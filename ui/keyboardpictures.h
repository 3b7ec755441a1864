#pragma once

#include "lighting/devicewords.h"

#include <QColor>
#include <QPixmap>
#include <QString>

#include <map>

/// The preview pictures of the window.
enum class KeyboardPicture { Left, Centre, Right, Full, Stripe };

/// File of a picture, relative to the current directory.
QString pictureFile(KeyboardPicture picture);

/// The pictures as their files have them. Each is decoded once, when first asked for, and kept:
/// Qt's own cache lets a picture go after half a minute, and the next one would then be a second
/// copy beside that of the style sheet.
class KeyboardPictures
{
public:
    /// Null where the file is missing or no picture; it is looked for again the next time.
    const QPixmap &of(KeyboardPicture picture);

private:
    std::map<KeyboardPicture, QPixmap> decoded;
};

/// The colour that a picture is filled with. Components outside 0..255, which a stored text like
/// "300 0 0" can hold, are no colour: the shape is then shown in solid black, so that the preview
/// does not pretend to know what the keyboard makes of them.
QColor tintColour(const ColourComponents &components, int alpha);

/// @p picture with its shape kept and all its own colours replaced by @p colour. A null picture
/// stays null.
QPixmap tinted(const QPixmap &picture, const QColor &colour);
