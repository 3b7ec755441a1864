#include "examples/agent/view.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <array>

using agent::Answer;

namespace {

constexpr std::array<quint32, 4> colourWords{0xF000FF00U, 0xF1030102U, 0xF2FF0000U, 0xF3000000U};

Answer answerOf(const std::array<quint32, 4> &zones, quint32 effect)
{
    Answer answer;
    answer.zoneWords = zones;
    answer.effectWord = effect;
    return answer;
}

Answer filledWith(quint32 word, quint32 effect)
{
    return answerOf({word, word, word, word}, effect);
}

QString withoutSequences(QString line)
{
    return line.remove(QRegularExpression(QStringLiteral("\x1b\\[[0-9;]*m")));
}

QJsonObject jsonOf(const Answer &answer)
{
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(agent::jsonLine(answer), &error);
    return error.error == QJsonParseError::NoError ? document.object() : QJsonObject();
}

/// Just enough of a terminal: rows of text, a cursor, the sequences the picture uses.
struct TinyTerminal
{
    QStringList rows{QString()};
    int y = 0;
    int x = 0;
    bool wrap = true;
    QString unknown;

    void feed(const QString &text)
    {
        static const QRegularExpression sequence(QStringLiteral("^\x1b\\[[?]?([0-9;]*)([A-Za-z])"));
        for (int i = 0; i < text.size();) {
            const auto match = sequence.match(text.mid(i));
            if (match.hasMatch()) {
                obey(match);
                i += match.capturedLength();
                continue;
            }
            put(text.at(i++));
        }
    }

    void obey(const QRegularExpressionMatch &match)
    {
        const QString all = match.captured().mid(2);
        if (all == QLatin1String("?7l") || all == QLatin1String("?7h")) {
            wrap = all.endsWith(QLatin1Char('h'));
        } else if (all == QLatin1String("K")) {
            rows[y].truncate(x);
        } else if (match.captured(2) == QLatin1String("A")) {
            y = qMax(0, y - match.captured(1).toInt());
        } else if (match.captured(2) != QLatin1String("m")) {
            unknown += all;
        }
    }

    void put(QChar c)
    {
        if (c == QLatin1Char('\n')) {
            x = 0;
            if (++y == rows.size()) {
                rows += QString();
            }
        } else if (c == QLatin1Char('\r')) {
            x = 0;
        } else {
            rows[y] = rows.at(y).leftJustified(x);
            rows[y].replace(x++, 1, c);
        }
    }
};

} // namespace

class TestAgentView : public QObject
{
    Q_OBJECT

private slots:
    void plainLines_data();
    void plainLines();
    void jsonOfColours();
    void jsonOfRawWords();
    void jsonKinds_data();
    void jsonKinds();
    void jsonIsOneLine();
    void panelText();
    void panelInColours();
    void panelFitsEightyColumns_data();
    void panelFitsEightyColumns();
    void panelWithoutColoursHasNoSequences();
    void panelHeightNeverDependsOnTheAnswer();
    void drawsInPlace();
    void bytesOfADrawing();
};

void TestAgentView::plainLines_data()
{
    QTest::addColumn<QVector<quint32>>("words");
    QTest::addColumn<QString>("line");

    QTest::newRow("colours") << QVector<quint32>{0xF000FF00U, 0xF1030102U, 0xF2FF0000U, 0xF3000000U,
                                                 0}
                             << QStringLiteral("normal: left #ff0000 4026597120, "
                                               "centre #010203 4043505922, "
                                               "right #0000ff 4076797952, "
                                               "stripe #000000 4076863488, effect None");
    QTest::newRow("off") << QVector<quint32>{agent::offWord, agent::offWord, agent::offWord,
                                             agent::offWord, 0}
                         << QStringLiteral("off: left raw 3758108672, centre raw 3758108672, "
                                           "right raw 3758108672, stripe raw 3758108672, "
                                           "effect None");
    QTest::newRow("brightness zero with an effect")
        << QVector<quint32>{agent::offWord, agent::offWord, agent::offWord, agent::offWord,
                            0x1002A000U}
        << QStringLiteral("off: left raw 3758108672, centre raw 3758108672, "
                          "right raw 3758108672, stripe raw 3758108672, effect Breath");
    QTest::newRow("wake") << QVector<quint32>{agent::wakeWord, agent::wakeWord, agent::wakeWord,
                                              agent::wakeWord, 0}
                          << QStringLiteral("wake: left raw 3758616583, centre raw 3758616583, "
                                            "right raw 3758616583, stripe raw 3758616583, "
                                            "effect None");
    QTest::newRow("a raw word and an unknown effect")
        << QVector<quint32>{0xF000FF00U, 4093640951U, 0xF2000000U, 0xF3000000U, 10}
        << QStringLiteral("normal: left #ff0000 4026597120, centre raw 4093640951, "
                          "right #000000 4060086272, stripe #000000 4076863488, "
                          "effect unknown, 0x0000000A");
}

void TestAgentView::plainLines()
{
    QFETCH(QVector<quint32>, words);
    QFETCH(QString, line);

    QCOMPARE(agent::plainLine(answerOf({words[0], words[1], words[2], words[3]}, words[4])), line);
}

void TestAgentView::jsonOfColours()
{
    const QJsonObject object = jsonOf(answerOf(colourWords, 0xB0000000U));
    QCOMPARE(object.keys(), (QStringList{QStringLiteral("effect"), QStringLiteral("kind"),
                                         QStringLiteral("words"), QStringLiteral("zones")}));
    QCOMPARE(object.value(QStringLiteral("kind")).toString(), QStringLiteral("normal"));
    QCOMPARE(object.value(QStringLiteral("words")).toArray(),
             (QJsonArray{4026597120LL, 4043505922LL, 4076797952LL, 4076863488LL}));

    const QJsonObject effect = object.value(QStringLiteral("effect")).toObject();
    QCOMPARE(effect, (QJsonObject{{QStringLiteral("word"), 2952790016LL},
                                  {QStringLiteral("name"), QStringLiteral("Wave")}}));

    const auto rgb = [](int r, int g, int b) {
        return QJsonObject{
            {QStringLiteral("r"), r}, {QStringLiteral("g"), g}, {QStringLiteral("b"), b}};
    };
    QCOMPARE(object.value(QStringLiteral("zones")).toObject(),
             (QJsonObject{{QStringLiteral("left"), rgb(255, 0, 0)},
                          {QStringLiteral("centre"), rgb(1, 2, 3)},
                          {QStringLiteral("right"), rgb(0, 0, 255)},
                          {QStringLiteral("stripe"), rgb(0, 0, 0)}}));
}

void TestAgentView::jsonOfRawWords()
{
    const QJsonObject object =
        jsonOf(answerOf({0xF000FF00U, 4093640951U, agent::offWord, 0xFFFFFFFFU}, 1));
    QCOMPARE(object.value(QStringLiteral("kind")).toString(), QStringLiteral("normal"));
    QCOMPARE(object.value(QStringLiteral("words")).toArray(),
             (QJsonArray{4026597120LL, 4093640951LL, 3758108672LL, 4294967295LL}));
    const QJsonObject zones = object.value(QStringLiteral("zones")).toObject();
    QCOMPARE(zones.size(), 4);
    QVERIFY(zones.value(QStringLiteral("left")).isObject());
    QVERIFY(zones.value(QStringLiteral("centre")).isNull());
    QVERIFY(zones.value(QStringLiteral("right")).isNull());
    QVERIFY(zones.value(QStringLiteral("stripe")).isNull());
    QCOMPARE(object.value(QStringLiteral("effect")).toObject(),
             (QJsonObject{{QStringLiteral("word"), 1}, {QStringLiteral("name"), QJsonValue()}}));
}

void TestAgentView::jsonKinds_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<quint32>("effect");
    QTest::addColumn<QString>("kind");

    QTest::newRow("off") << agent::offWord << 0U << QStringLiteral("off");
    QTest::newRow("brightness zero") << agent::offWord << 0x90000000U << QStringLiteral("off");
    QTest::newRow("wake") << agent::wakeWord << 0U << QStringLiteral("wake");
}

void TestAgentView::jsonKinds()
{
    QFETCH(quint32, word);
    QFETCH(quint32, effect);
    QFETCH(QString, kind);

    const QJsonObject object = jsonOf(filledWith(word, effect));
    QCOMPARE(object.value(QStringLiteral("kind")).toString(), kind);
    QCOMPARE(
        object.value(QStringLiteral("effect")).toObject().value(QStringLiteral("name")).toString(),
        agent::effectName(effect));
}

void TestAgentView::jsonIsOneLine()
{
    const QByteArray line = agent::jsonLine(answerOf(colourWords, 0));
    QVERIFY(line.startsWith('{'));
    QVERIFY(line.endsWith('}'));
    QVERIFY(!line.contains('\n'));
    // Whole numbers, not 4.026597120e9.
    QVERIFY(line.contains("[4026597120,4043505922,4076797952,4076863488]"));
}

void TestAgentView::panelText()
{
    const QStringList lines =
        agent::panel(answerOf(colourWords, 0x70000000U), QStringLiteral("title"),
                     QStringLiteral("footer"), false);
    const QStringList expected{
        QStringLiteral("  title"),
        QString(),
        QStringLiteral("  left               centre             right              stripe"),
        QStringLiteral("  #ff0000            #010203            #0000ff            #000000"),
        QStringLiteral("  4026597120         4043505922         4076797952         4076863488"),
        QStringLiteral("  0xF000FF00         0xF1030102         0xF2FF0000         0xF3000000"),
        QString(),
        QStringLiteral("  line    normal"),
        QStringLiteral("  effect  Random Color"),
        QStringLiteral("  so far  footer"),
    };
    QStringList trimmed;
    for (const QString &line : lines) {
        trimmed += QString(line).replace(QRegularExpression(QStringLiteral(" +$")), QString());
    }
    QCOMPARE(trimmed, expected);
    QCOMPARE(lines.at(2).size(), 2 + 4 * 19);
}

void TestAgentView::panelInColours()
{
    const QStringList lines =
        agent::panel(answerOf({0xF000FF00U, 4093640951U, 0xF2030102U, 0xF3000000U}, 0),
                     QStringLiteral("title"), QString(), true);
    // Each block between faint edges; the word without a colour is hatched.
    const QString edge = QStringLiteral("\x1b[2m|\x1b[0m");
    const auto coloured = [&edge](const char *rgb) {
        return edge + QStringLiteral("\x1b[48;2;%1m                \x1b[0m").arg(QLatin1String(rgb))
               + edge;
    };
    const QString hatched = edge + QStringLiteral("\x1b[2m////////////////\x1b[0m") + edge;
    const QString blocks =
        QStringLiteral("  ")
        + QStringList{coloured("255;0;0"), hatched, coloured("1;2;3"), coloured("0;0;0")}.join(
            QLatin1Char(' '));
    QCOMPARE(lines.size(), 12);
    QCOMPARE(lines.mid(3, 3), (QStringList{blocks, blocks, blocks}));
    QVERIFY2(lines.at(6).startsWith(QStringLiteral("  #ff0000            raw word           #01")),
             qPrintable(lines.at(6)));
    QCOMPARE(lines.at(10), QStringLiteral("  line    \x1b[1mnormal\x1b[0m"));
    QCOMPARE(lines.at(11), QStringLiteral("  effect  \x1b[1mNone\x1b[0m"));
}

void TestAgentView::panelFitsEightyColumns_data()
{
    QTest::addColumn<QVector<quint32>>("words");

    QTest::newRow("colours") << QVector<quint32>{0xF000FF00U, 0xF1FFFFFFU, 0xF2FF0000U, 0xF3FFFFFFU,
                                                 0};
    QTest::newRow("off") << QVector<quint32>(5, agent::offWord);
    QTest::newRow("longest numbers") << QVector<quint32>(5, 0xFFFFFFFFU);
}

void TestAgentView::panelFitsEightyColumns()
{
    QFETCH(QVector<quint32>, words);

    const QStringList lines =
        agent::panel(answerOf({words[0], words[1], words[2], words[3]}, words[4]),
                     QString(77, QLatin1Char('t')), QStringLiteral("f"), true);
    for (const QString &line : lines) {
        QVERIFY2(withoutSequences(line).size() < 80, qPrintable(line));
        // Nothing may colour what the terminal shows after the line.
        QVERIFY(!line.contains(QLatin1Char('\x1b'))
                || line.lastIndexOf(QStringLiteral("\x1b[0m"))
                       == line.lastIndexOf(QLatin1Char('\x1b')));
    }
}

void TestAgentView::panelWithoutColoursHasNoSequences()
{
    for (const Answer &answer : {answerOf(colourWords, 0), filledWith(agent::offWord, 0)}) {
        const QString all = agent::panel(answer, QStringLiteral("t"), QStringLiteral("f"), false)
                                .join(QLatin1Char('\n'));
        QVERIFY(!all.contains(QLatin1Char('\x1b')));
        QVERIFY(all.contains(QString::number(answer.zoneWords.front())));
    }
}

void TestAgentView::panelHeightNeverDependsOnTheAnswer()
{
    for (const bool colours : {false, true}) {
        const auto height = [colours](const Answer &answer) {
            return agent::panel(answer, QStringLiteral("t"), QStringLiteral("f"), colours).size();
        };
        const int usual = height(answerOf(colourWords, 0));
        QCOMPARE(usual, colours ? 13 : 10);
        QCOMPARE(height(filledWith(agent::offWord, 0)), usual);
        QCOMPARE(height(filledWith(agent::wakeWord, 0)), usual);
        QCOMPARE(height(filledWith(0, 0xFFFFFFFFU)), usual);
    }
}

void TestAgentView::drawsInPlace()
{
    const auto lines = [](const Answer &answer) {
        return agent::panel(answer, QStringLiteral("t"), QStringLiteral("f"), true);
    };
    const QStringList first = lines(filledWith(0, 0xFFFFFFFFU));
    const QStringList second = lines(answerOf(colourWords, 0));

    TinyTerminal terminal;
    terminal.feed(QStringLiteral("shell prompt\n"));
    terminal.feed(QString::fromUtf8(agent::drawInPlace(first, 0)));
    terminal.feed(QString::fromUtf8(agent::drawInPlace(second, first.size())));

    QCOMPARE(terminal.unknown, QString());
    QVERIFY(terminal.wrap);
    // The second picture stands exactly where the first one stood, with nothing left of it.
    QStringList expected{QStringLiteral("shell prompt")};
    for (const QString &line : second) {
        expected += withoutSequences(line);
    }
    expected += QString();
    QCOMPARE(terminal.rows, expected);
    QCOMPARE(terminal.y, expected.size() - 1);
    QCOMPARE(terminal.x, 0);
}

/// Lines that are too long for the terminal are cut, not wrapped, for as long as it draws; each
/// goes over all that stood in its row.
void TestAgentView::bytesOfADrawing()
{
    const QStringList lines{QStringLiteral("one"), QStringLiteral("zwei \u00fc")};
    const QByteArray drawn("one\x1b[K\nzwei \xc3\xbc\x1b[K\n");
    QCOMPARE(agent::drawInPlace(lines, 0), "\x1b[?7l" + drawn + "\x1b[?7h");
    QCOMPARE(agent::drawInPlace(lines, 1), "\x1b[?7l\x1b[1A\r" + drawn + "\x1b[?7h");
    QCOMPARE(agent::drawInPlace(lines, 12), "\x1b[?7l\x1b[12A\r" + drawn + "\x1b[?7h");
}

QTEST_GUILESS_MAIN(TestAgentView)

#include "tst_agentview.moc"
