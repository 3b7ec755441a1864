#include "lighting/companion.h"

#include <QtEndian>

namespace {

constexpr int brightnessField = 1;
constexpr int lengthBytes = sizeof(quint32);
constexpr int unitBytes = sizeof(char16_t);

} // namespace

QString companionText(const QByteArray &segment)
{
    if (segment.size() < lengthBytes) {
        return {};
    }
    const auto length = qFromBigEndian<quint32>(segment.constData());
    // A null text is stored as a length that no segment has.
    if (length > static_cast<quint32>(segment.size() - lengthBytes) || length % unitBytes != 0) {
        return {};
    }
    QString text(static_cast<int>(length / unitBytes), Qt::Uninitialized);
    qFromBigEndian<char16_t>(segment.constData() + lengthBytes, text.size(), text.data());
    return text;
}

std::optional<qint32> newCompanionBrightness(const QString &text, qint32 last)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    const QString field = text.section(QLatin1Char(','), brightnessField, brightnessField);
    const qint32 brightness = field.toInt();
    if (brightness == last || field == QLatin1String("none")) {
        return std::nullopt;
    }
    return brightness;
}
