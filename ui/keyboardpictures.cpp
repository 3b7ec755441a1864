#include "ui/keyboardpictures.h"

#include <QPainter>

QString pictureFile(KeyboardPicture picture)
{
    switch (picture) {
    case KeyboardPicture::Left:
        return QStringLiteral("branding/keyboard_left.png");
    case KeyboardPicture::Centre:
        return QStringLiteral("branding/keyboard_center.png");
    case KeyboardPicture::Right:
        return QStringLiteral("branding/keyboard_right.png");
    case KeyboardPicture::Full:
        return QStringLiteral("branding/keyboard_full.png");
    case KeyboardPicture::Stripe:
        break;
    }
    return QStringLiteral("branding/stripe_lidled.png");
}

const QPixmap &KeyboardPictures::of(KeyboardPicture picture)
{
    QPixmap &kept = decoded[picture];
    if (kept.isNull()) {
        kept = QPixmap(pictureFile(picture));
    }
    return kept;
}

QColor tintColour(const ColourComponents &components, int alpha)
{
    const auto isChannel = [](int value) {
        return value >= 0 && value <= 255;
    };
    if (!isChannel(components.red) || !isChannel(components.green) || !isChannel(components.blue)
        || !isChannel(alpha)) {
        return Qt::black;
    }
    return {components.red, components.green, components.blue, alpha};
}

QPixmap tinted(const QPixmap &picture, const QColor &colour)
{
    if (picture.isNull()) {
        return {};
    }
    // A vendor's picture may come without an alpha channel, which the tint needs.
    QPixmap copy(picture.size());
    copy.setDevicePixelRatio(picture.devicePixelRatio());
    copy.fill(Qt::transparent);
    QPainter painter(&copy);
    painter.drawPixmap(0, 0, picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(copy.rect(), QBrush(colour));
    return copy;
}
