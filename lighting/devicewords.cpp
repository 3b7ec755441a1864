#include "lighting/devicewords.h"

#include <QStringList>

namespace {

QStringList partsOf(const QString &colour)
{
    return colour.split(QLatin1Char(' '), Qt::KeepEmptyParts);
}

} // namespace

quint32 deviceWord(Zone zone, const QString &colour, int brightness)
{
    const QStringList parts = partsOf(colour);
    const auto channel = [&](int index) {
        // 64 bits hold every product, so that the quotient is exact before it is masked.
        const quint64 component = parts.value(index).toUInt();
        return static_cast<quint8>(component * static_cast<quint64>(brightness) / 100);
    };
    return packWord(channel(0), channel(1), channel(2), zone);
}

ColourComponents scaledComponents(const QString &colour, int brightness)
{
    const QStringList parts = partsOf(colour);
    const auto channel = [&](int index) {
        const qint64 component = parts.value(index).toInt();
        return static_cast<int>(component * brightness / 100);
    };
    return {channel(0), channel(1), channel(2)};
}

QString wordText(quint32 word)
{
    return QString::number(word);
}
