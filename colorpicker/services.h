#pragma once

#include "colorpicker/colormodel.h"

#include <QColor>
#include <QObject>
#include <QString>

/// Stateless operations on colour texts and colours.
class Services : public QObject
{
    Q_OBJECT

public:
    explicit Services(QObject *parent = nullptr);

    /// Whether @p text is as many decimal numbers as @p model has components, one blank between
    /// each two. HEX text never is. Limits are not checked here.
    static bool checkFormat(const QString &text, ColorModel model);

    /// Typed text made uniform: ends trimmed, commas taken as blanks, runs of blanks made one.
    static QString normalize(QString text);

    /// Rebuilds @p color as RGB with each channel in 0..255 and alpha 255.
    static void clampColor(QColor &color);
};
