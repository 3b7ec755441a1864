#pragma once

#include <QColor>
#include <QImage>
#include <QLabel>
#include <QPixmap>

/// A picture whose left half is opaque and whose right half is transparent.
inline void writePicture(const QString &path)
{
    QImage image(8, 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            image.setPixelColor(x, y, Qt::white);
        }
    }
    if (!image.save(path)) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

/// The colour that a label's picture has where the shape is opaque.
inline QColor shownColour(const QLabel &label)
{
    return label.pixmap(Qt::ReturnByValue).toImage().pixelColor(1, 1);
}

/// Writes all five preview pictures into the branding folder of the current directory.
inline void writePictures()
{
    for (const char *name :
         {"keyboard_left", "keyboard_center", "keyboard_right", "keyboard_full", "stripe_lidled"}) {
        writePicture(QStringLiteral("branding/%1.png").arg(QLatin1String(name)));
    }
}
