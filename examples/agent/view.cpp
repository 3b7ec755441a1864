#include "examples/agent/view.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

namespace agent {

namespace {

constexpr int margin = 2;
constexpr int blockWidth = 18;
constexpr int blockHeight = 3;

const QLatin1String resetAll("\x1b[0m");
const QLatin1String bold("\x1b[1m");
const QLatin1String faint("\x1b[2m");

quint32 wordOf(const Answer &answer, int zone)
{
    return answer.zoneWords.at(size_t(zone));
}

QString zoneName(int zone)
{
    return QString::fromLatin1(zoneNames.at(size_t(zone)));
}

QString hexColour(const Rgb &rgb)
{
    const int value = rgb.red << 16 | rgb.green << 8 | rgb.blue;
    return QStringLiteral("#%1").arg(value, 6, 16, QLatin1Char('0'));
}

QString hexWord(quint32 word)
{
    return QStringLiteral("0x%1").arg(QString::number(word, 16).toUpper(), 8, QLatin1Char('0'));
}

QString effectText(quint32 word)
{
    const QString name = effectName(word);
    return name.isEmpty() ? QStringLiteral("unknown, ") + hexWord(word) : name;
}

/// A row with one cell a zone; `cell` gives the cell's visible text.
QString row(const std::function<QString(int)> &cell)
{
    QString line(margin, QLatin1Char(' '));
    for (int zone = 0; zone < zoneCount; ++zone) {
        line += cell(zone).leftJustified(blockWidth + 1);
    }
    return line;
}

/// One row of the colour blocks. The faint edges keep a black block visible on a black terminal; a
/// word without a colour is hatched.
QString blockRow(const Answer &answer)
{
    QString line(margin, QLatin1Char(' '));
    for (int zone = 0; zone < zoneCount; ++zone) {
        const QString edge = faint + QLatin1Char('|') + resetAll;
        line += zone > 0 ? QStringLiteral(" ") + edge : edge;
        const int inside = blockWidth - 2;
        if (const auto rgb = zoneColour(zone, wordOf(answer, zone))) {
            line +=
                QStringLiteral("\x1b[48;2;%1;%2;%3m").arg(rgb->red).arg(rgb->green).arg(rgb->blue)
                + QString(inside, QLatin1Char(' '));
        } else {
            line += faint + QString(inside, QLatin1Char('/'));
        }
        line += resetAll + edge;
    }
    return line;
}

} // namespace

QString plainLine(const Answer &answer)
{
    QString line = lineKindName(lineKind(answer)) + QStringLiteral(": ");
    for (int zone = 0; zone < zoneCount; ++zone) {
        const quint32 word = wordOf(answer, zone);
        const auto rgb = zoneColour(zone, word);
        line += QStringLiteral("%1 %2 %3, ")
                    .arg(zoneName(zone), rgb ? hexColour(*rgb) : QStringLiteral("raw"))
                    .arg(word);
    }
    return line + QStringLiteral("effect ") + effectText(answer.effectWord);
}

QByteArray jsonLine(const Answer &answer)
{
    QJsonArray words;
    QJsonObject zones;
    for (int zone = 0; zone < zoneCount; ++zone) {
        const quint32 word = wordOf(answer, zone);
        words.append(qint64(word));
        QJsonValue colour;
        if (const auto rgb = zoneColour(zone, word)) {
            colour = QJsonObject{{QStringLiteral("r"), rgb->red},
                                 {QStringLiteral("g"), rgb->green},
                                 {QStringLiteral("b"), rgb->blue}};
        }
        zones.insert(zoneName(zone), colour);
    }
    const QString name = effectName(answer.effectWord);
    const QJsonObject effect{
        {QStringLiteral("word"), qint64(answer.effectWord)},
        {QStringLiteral("name"), name.isEmpty() ? QJsonValue() : QJsonValue(name)}};
    const QJsonObject object{{QStringLiteral("kind"), lineKindName(lineKind(answer))},
                             {QStringLiteral("words"), words},
                             {QStringLiteral("zones"), zones},
                             {QStringLiteral("effect"), effect}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QStringList panel(const Answer &answer, const QString &title, const QString &footer, bool colours)
{
    const QString indent(margin, QLatin1Char(' '));
    const auto strong = [colours](const QString &text) {
        return colours ? bold + text + resetAll : text;
    };

    QStringList lines{indent + title, QString(), row(zoneName)};
    if (colours) {
        for (int i = 0; i < blockHeight; ++i) {
            lines += blockRow(answer);
        }
    }
    lines += row([&](int zone) {
        const auto rgb = zoneColour(zone, wordOf(answer, zone));
        return rgb ? hexColour(*rgb) : QStringLiteral("raw word");
    });
    lines += row([&](int zone) { return QString::number(wordOf(answer, zone)); });
    lines += row([&](int zone) { return hexWord(wordOf(answer, zone)); });
    lines += QString();
    lines += indent + QStringLiteral("line    ") + strong(lineKindName(lineKind(answer)));
    lines += indent + QStringLiteral("effect  ") + strong(effectText(answer.effectWord));
    if (!footer.isEmpty()) {
        lines += indent + QStringLiteral("so far  ") + footer;
    }
    return lines;
}

QByteArray drawInPlace(const QStringList &lines, int linesAbove)
{
    // Automatic wrapping is off for just as long as this one write: a narrow terminal then cuts the
    // lines instead of breaking them, and the count of lines above stays true.
    QByteArray out = QByteArrayLiteral("\x1b[?7l");
    if (linesAbove > 0) {
        out += "\x1b[" + QByteArray::number(linesAbove) + "A\r";
    }
    for (const QString &line : lines) {
        out += line.toUtf8() + "\x1b[K\n";
    }
    return out + QByteArrayLiteral("\x1b[?7h");
}

} // namespace agent
