#pragma once

#include <QColor>
#include <QString>

/// Colours to texts and back.
namespace ColorTexts {

/// "red green blue" of @p color in decimal, after clamping; an invalid colour gives "0 0 0".
QString rgbTextFromColor(QColor color);

/// Colour of the first three blank-separated numbers of @p text; a part that is missing or not a
/// number is 0. A channel outside 0..255 gives an invalid colour.
QColor colorFromRgbText(const QString &text);

/// Six lower-case hexadecimal digits of @p color, without "#".
QString hexFromColor(const QColor &color);

/// @p text without any "#" when that is 3 or 6 characters forming one base-16 number, letter case
/// kept; otherwise an empty string.
QString hexFromPastedText(QString text);

} // namespace ColorTexts
