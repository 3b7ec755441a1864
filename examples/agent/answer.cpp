#include "examples/agent/answer.h"

#include <QStringList>
#include <QVector>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace agent {

namespace {

constexpr int outerSize = 2;
constexpr int innerSize = 4;
constexpr int fieldCount = zoneCount + 1;
constexpr quint32 nullTextMarker = 0xFFFFFFFFU;

/// Quotes wire text for an error line. What came may hold control characters, and the line may end
/// up on a terminal, so everything but printable ASCII is escaped.
QString quoted(const QStringRef &text)
{
    constexpr int longest = 24;
    QString result = QStringLiteral("\"");
    for (const QChar c : text.left(longest)) {
        if (c.unicode() >= 0x20 && c.unicode() < 0x7F) {
            result += c;
        } else {
            result += QStringLiteral("\\u%1").arg(uint(c.unicode()), 4, 16, QLatin1Char('0'));
        }
    }
    result += QLatin1Char('"');
    if (text.size() > longest) {
        result += QStringLiteral("...");
    }
    return result;
}

bool isDigit(QChar c)
{
    // QChar::isDigit() would let the digits of every script through.
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

std::variant<quint32, Malformed> decodeField(int number, const QStringRef &field)
{
    const auto bad = [&](const QString &what) {
        return Malformed{QStringLiteral("field %1 %2").arg(number).arg(what)};
    };
    if (field.isEmpty()) {
        return bad(QStringLiteral("is empty"));
    }
    if (!std::all_of(field.begin(), field.end(), isDigit)) {
        return bad(QStringLiteral("is not a plain decimal number: ") + quoted(field));
    }
    if (field.size() > 1 && field.front() == QLatin1Char('0')) {
        return bad(QStringLiteral("is padded with a zero: ") + quoted(field));
    }
    quint64 value = 0;
    for (const QChar c : field) {
        value = value * 10 + (c.unicode() - u'0');
        if (value > std::numeric_limits<quint32>::max()) {
            return bad(QStringLiteral("does not fit 32 bits: ") + quoted(field));
        }
    }
    return static_cast<quint32>(value);
}

Decoded decodeLine(const QString &line)
{
    const QVector<QStringRef> fields = line.splitRef(QLatin1Char(','));
    if (fields.size() != fieldCount) {
        return Malformed{QStringLiteral("the line has %1 field(s) instead of %2")
                             .arg(fields.size())
                             .arg(fieldCount)};
    }
    std::array<quint32, fieldCount> words{};
    for (int i = 0; i < fieldCount; ++i) {
        const auto field = decodeField(i + 1, fields.at(i));
        if (const auto *malformed = std::get_if<Malformed>(&field)) {
            return *malformed;
        }
        words.at(size_t(i)) = std::get<quint32>(field);
    }
    Answer answer;
    std::copy_n(words.begin(), zoneCount, answer.zoneWords.begin());
    answer.effectWord = words.back();
    return answer;
}

} // namespace

Decoded decode(const QByteArray &bytes)
{
    if (bytes.size() < outerSize) {
        return Malformed{QStringLiteral("%1 byte(s) of the %2 of the first length are missing")
                             .arg(outerSize - bytes.size())
                             .arg(outerSize)};
    }
    const int outer = qFromBigEndian<quint16>(bytes.constData());
    if (outer < innerSize) {
        return Malformed{
            QStringLiteral("the first length is %1, too short for the second length").arg(outer)};
    }
    const int came = bytes.size() - outerSize;
    if (came < outer) {
        return Malformed{
            QStringLiteral("%1 of the %2 bytes that the first length announces are missing")
                .arg(outer - came)
                .arg(outer)};
    }
    const auto inner = qFromBigEndian<quint32>(bytes.constData() + outerSize);
    if (inner == nullTextMarker) {
        return Malformed{QStringLiteral("the second length marks a null text")};
    }
    if (inner % 2 != 0) {
        return Malformed{QStringLiteral("the second length is odd: %1").arg(inner)};
    }
    if (inner != quint32(outer - innerSize)) {
        return Malformed{
            QStringLiteral("the lengths disagree: the first is %1, the second %2 instead of %3")
                .arg(outer)
                .arg(inner)
                .arg(outer - innerSize)};
    }
    if (came > outer) {
        return Malformed{QStringLiteral("%1 byte(s) follow the text").arg(came - outer)};
    }

    QString line;
    const char *const text = bytes.constData() + outerSize + innerSize;
    for (quint32 at = 0; at < inner; at += 2) {
        line += QChar(qFromBigEndian<quint16>(text + at));
    }
    return decodeLine(line);
}

LineKind lineKind(const Answer &answer)
{
    const auto all = [&](quint32 word) {
        return std::all_of(answer.zoneWords.begin(), answer.zoneWords.end(),
                           [word](quint32 zoneWord) { return zoneWord == word; });
    };
    if (all(offWord)) {
        return LineKind::Off;
    }
    if (all(wakeWord) && answer.effectWord == 0) {
        return LineKind::Wake;
    }
    return LineKind::Normal;
}

QString lineKindName(LineKind kind)
{
    switch (kind) {
    case LineKind::Off:
        return QStringLiteral("off");
    case LineKind::Wake:
        return QStringLiteral("wake");
    case LineKind::Normal:
        break;
    }
    return QStringLiteral("normal");
}

std::optional<Rgb> zoneColour(int zone, quint32 word)
{
    if (word >> 24U != 0xF0U + quint32(zone)) {
        return std::nullopt;
    }
    // Green lies lowest, red above it, blue above that.
    return Rgb{int(word >> 8U & 0xFFU), int(word & 0xFFU), int(word >> 16U & 0xFFU)};
}

QString effectName(quint32 word)
{
    const auto *found = std::find_if(effects.begin(), effects.end(),
                                     [word](const Effect &effect) { return effect.word == word; });
    return found == effects.end() ? QString() : QString::fromLatin1(found->name);
}

} // namespace agent
