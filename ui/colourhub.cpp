#include "ui/colourhub.h"

#include "colorpicker/colortexts.h"
#include "colorpicker/services.h"
#include "colorpicker/validator.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPixmap>
#include <QVariant>

namespace {

/// More than any hub has, so that icons are only ever scaled down.
constexpr int discEdge = 96;

} // namespace

QColor hubColour(const QString &rgbText)
{
    const bool isColour =
        Services::checkFormat(rgbText, ColorModel::Rgb) && Validator::isValidRgb(rgbText);
    return isColour ? ColorTexts::colorFromRgbText(rgbText) : QColor();
}

QIcon hubIcon(const QColor &colour)
{
    if (!colour.isValid()) {
        return {};
    }
    QPixmap hollow(discEdge, discEdge);
    hollow.fill(Qt::transparent);
    QPixmap disc = hollow;
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(disc.rect());
    painter.end();
    QIcon icon(disc);
    icon.addPixmap(hollow, QIcon::Disabled);
    return icon;
}

void showInHub(QAbstractButton &wheel, const QString &rgbText)
{
    // Each step of the brightness comes by with the same colour.
    constexpr const char *shown = "rgbTextInHub";
    if (wheel.property(shown).toString() != rgbText) {
        wheel.setProperty(shown, rgbText);
        wheel.setIcon(hubIcon(hubColour(rgbText)));
    }
}
