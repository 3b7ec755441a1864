#include "lighting/companion.h"

#include "fuzz/input.h"
#include "fuzz/require.h"

#include <QDataStream>
#include <QIODevice>
#include <QStringList>

namespace {

/// The text as the companion's own stream writes it.
QByteArray streamed(const QString &text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes;
}

void checkBrightness(const QString &text, qint32 last)
{
    const auto published = newCompanionBrightness(text, last);
    if (!published) {
        return;
    }
    require(*published != last, "what was published before is not new");
    require(!newCompanionBrightness(text, *published), "the same text is new once");
    const QString field = text.split(QLatin1Char(',')).value(1);
    require(field.toInt() == *published, "the second field is the number");
    require(field != QStringLiteral("none"), "\"none\" is no number");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const auto last = static_cast<qint32>(input.takeNumber());
    const QByteArray segment = input.takePart();
    const QString text = companionText(segment);
    require(4 + 2 * text.size() <= qMax(4, segment.size()), "no text is read behind the segment");
    if (!text.isEmpty()) {
        require(segment.startsWith(streamed(text)), "the text is what the segment holds");
    }
    checkBrightness(text, last);

    const QString whole = QString::fromUtf8(segment);
    require(companionText(streamed(whole) + segment) == whole, "what is published is read");
    checkBrightness(whole, last);
    return 0;
}
