#include "colorpicker/services.h"

#include <QRegExp>
#include <QStringList>

#include <algorithm>

namespace {

// 0 for a model without decimal components, which no text splits into.
int componentCount(ColorModel model)
{
    switch (model) {
    case ColorModel::Hsv:
    case ColorModel::Rgb:
        return 3;
    case ColorModel::Cmyk:
        return 4;
    case ColorModel::Hex:
        break;
    }
    return 0;
}

bool isDecimal(const QString &part)
{
    bool ok = false;
    part.toInt(&ok, 10);
    return ok;
}

} // namespace

Services::Services(QObject *parent)
    : QObject(parent)
{}

bool Services::checkFormat(const QString &text, ColorModel model)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::KeepEmptyParts, Qt::CaseSensitive);
    return parts.size() == componentCount(model)
           && std::all_of(parts.cbegin(), parts.cend(), isDecimal);
}

QString Services::normalize(QString text)
{
    if (text.isEmpty()) {
        return text;
    }
    text = text.trimmed();
    text.replace(QLatin1Char(','), QLatin1Char(' '), Qt::CaseSensitive);
    text.replace(QRegExp(QStringLiteral("\\s+"), Qt::CaseSensitive), QStringLiteral(" "));
    return text;
}

void Services::clampColor(QColor &color)
{
    const int red = std::clamp(color.red(), 0, 255);
    const int green = std::clamp(color.green(), 0, 255);
    const int blue = std::clamp(color.blue(), 0, 255);
    color.setRgb(red, green, blue, 255);
}
