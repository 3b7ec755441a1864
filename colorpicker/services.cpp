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
        return 0;
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
    const QStringList parts = text.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    return parts.size() == componentCount(model)
           && std::all_of(parts.cbegin(), parts.cend(), isDecimal);
}

QString Services::normalize(QString text)
{
    text = text.trimmed();
    text.replace(QLatin1Char(','), QLatin1Char(' '));
    text.replace(QRegExp(QStringLiteral("\\s+")), QStringLiteral(" "));
    return text;
}

void Services::clampColor(QColor &color)
{
    // Whatever a colour was made of, its 8-bit channels are read as 0..255.
    color.setRgb(color.red(), color.green(), color.blue(), 255);
}
