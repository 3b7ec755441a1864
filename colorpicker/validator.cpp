#include "colorpicker/validator.h"

#include <QStringList>

namespace {

constexpr quint32 channelLimit = 255;
constexpr quint32 hueLimit = 359;
constexpr quint32 hexDigitLimit = 15;

// The first `count` numbers of the text, compared unsigned so that a negative one never passes.
bool allAtMost(const QString &text, int count, quint32 limit)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    for (int i = 0; i < count; ++i) {
        if (static_cast<quint32>(parts.value(i).toInt(nullptr, 10)) > limit) {
            return false;
        }
    }
    return true;
}

} // namespace

Validator::Validator(QObject *parent)
    : QObject(parent)
{}

bool Validator::isInRange(quint32 value, ColorModel model, int component, int length)
{
    switch (model) {
    case ColorModel::Hsv:
        if (component == 0) {
            return value <= hueLimit;
        }
        return (component == 1 || component == 2) && value <= channelLimit;
    case ColorModel::Rgb:
        return value <= channelLimit;
    case ColorModel::Cmyk:
        return component >= 0 && component <= 3 && value <= channelLimit;
    case ColorModel::Hex:
        return (length == 3 && value <= hexDigitLimit) || (length == 6 && value <= channelLimit);
    }
    return false;
}

bool Validator::validate(const QString &text, ColorModel model)
{
    switch (model) {
    case ColorModel::Hsv:
        return isValidHsv(text);
    case ColorModel::Rgb:
        return isValidRgb(text);
    case ColorModel::Cmyk:
        return isValidCmyk(text);
    case ColorModel::Hex:
        return isValidHex(text);
    }
    return false;
}

bool Validator::isValidHsv(const QString &text)
{
    return allAtMost(text, 3, hueLimit);
}

bool Validator::isValidRgb(const QString &text)
{
    return allAtMost(text, 3, channelLimit);
}

bool Validator::isValidCmyk(const QString &text)
{
    return allAtMost(text, 4, channelLimit);
}

bool Validator::isValidHex(const QString &text)
{
    const int length = text.size(); // none but 3 and 6 is in range, whatever the pieces hold
    const int pieceLength = length / 3;
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        const int piece = text.midRef(i * pieceLength, pieceLength).toInt(&ok, 16);
        if (!ok || !isInRange(static_cast<quint32>(piece), ColorModel::Hex, i, length)) {
            return false;
        }
    }
    return true;
}
