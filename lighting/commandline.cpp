#include "lighting/commandline.h"

#include <QDataStream>
#include <QIODevice>
#include <QStringBuilder>

namespace {

/// Left, centre, right and stripe, then the effect word.
QString lineOf(const QString &left, const QString &centre, const QString &right,
               const QString &stripe, const QString &effect)
{
    constexpr QLatin1Char comma(',');
    return left % comma % centre % comma % right % comma % stripe % comma % effect;
}

/// Four times the same zone word, then the effect word.
QString uniformLine(quint32 word, const QString &effectWord)
{
    const QString zone = wordText(word);
    return lineOf(zone, zone, zone, zone, effectWord);
}

QString normalLine(const LightingState &state)
{
    return lineOf(state.leftWord, state.centreWord, state.rightWord, state.stripeWord,
                  state.effectWord);
}

/// A wake is sent twice: once the first has gone out, with any kind of line, the second is due.
WakeSequence afterSending(WakeSequence wake)
{
    if (wake.wakeSent) {
        wake = {false, false, true};
    }
    return wake;
}

} // namespace

LineChoice chooseLine(const LightingState &state, const LineInputs &inputs)
{
    WakeSequence wake = inputs.wake;
    QString line;
    if (inputs.backlightOff) {
        line = uniformLine(DeviceWords::lightingOff, QStringLiteral("0"));
    } else if (inputs.brightness == 0) {
        line = uniformLine(DeviceWords::lightingOff, state.effectWord);
    } else if (wake.wakePending) {
        line = uniformLine(DeviceWords::wake, QStringLiteral("0"));
        wake.wakePending = false;
        wake.wakeSent = true;
    } else if (wake.wakeRepeat) {
        line = uniformLine(DeviceWords::wake, QStringLiteral("0"));
        wake.wakeSent = false;
        wake.wakeRepeat = false;
    } else {
        line = normalLine(state);
    }
    return {line, afterSending(wake)};
}

QByteArray frameLine(const QString &line)
{
    const auto following = sizeof(quint32) + sizeof(QChar) * static_cast<std::size_t>(line.size());
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << static_cast<quint16>(following) << line;
    return block;
}
