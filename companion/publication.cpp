#include "companion/publication.h"

#include <QDataStream>
#include <QIODevice>
#include <QStringList>

namespace companion {

namespace {

constexpr int brightnessField = 1;

} // namespace

QVector<int> publications(int brightness)
{
    return {brightness < 100 ? brightness + 1 : brightness - 1, brightness};
}

QString withBrightness(const QString &text, int brightness)
{
    QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() <= brightnessField) {
        fields.append(QString());
    }
    fields[brightnessField] = QString::number(brightness);
    return fields.join(QLatin1Char(','));
}

QByteArray segmentBytes(const QString &text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes;
}

} // namespace companion
