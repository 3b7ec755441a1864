#include "colorpicker/colortexts.h"

#include "colorpicker/services.h"

#include <QStringList>

QString ColorTexts::rgbTextFromColor(QColor color)
{
    Services::clampColor(color);
    return QStringLiteral("%1 %2 %3").arg(color.red()).arg(color.green()).arg(color.blue());
}

QColor ColorTexts::colorFromRgbText(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    QColor color;
    color.setRgb(parts.value(0).toInt(nullptr, 10), parts.value(1).toInt(nullptr, 10),
                 parts.value(2).toInt(nullptr, 10), 255);
    return color;
}

QString ColorTexts::hexFromColor(const QColor &color)
{
    return color.name().remove(QLatin1Char('#'));
}

QString ColorTexts::hexFromPastedText(QString text)
{
    text.remove(QLatin1Char('#'));
    bool ok = false;
    text.toInt(&ok, 16);
    const bool fits = text.size() == 6 || text.size() == 3;
    return fits && ok ? text : QString();
}
