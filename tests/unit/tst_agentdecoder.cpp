#include "examples/agent/answer.h"
#include "lighting/effects.h"

#include <QtEndian>
#include <QtTest>

#include <array>

using agent::Answer;
using agent::decode;
using agent::Decoded;
using agent::Malformed;

Q_DECLARE_METATYPE(agent::LineKind)

namespace {

QByteArray number16(quint16 value)
{
    QByteArray bytes(2, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray number32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        bytes += number16(c.unicode());
    }
    return bytes;
}

/// A frame with freely chosen lengths.
QByteArray frame(quint16 outer, quint32 inner, const QByteArray &payload)
{
    return number16(outer) + number32(inner) + payload;
}

QByteArray frame(const QString &text)
{
    const QByteArray payload = utf16(text);
    return frame(quint16(4 + payload.size()), quint32(payload.size()), payload);
}

QString errorOf(const Decoded &decoded)
{
    const auto *malformed = std::get_if<Malformed>(&decoded);
    return malformed != nullptr ? malformed->why : QString();
}

/// The five words as they stood on the wire.
QVector<quint32> wordsOf(const Answer &answer)
{
    QVector<quint32> words(answer.zoneWords.begin(), answer.zoneWords.end());
    words.append(answer.effectWord);
    return words;
}

} // namespace

class TestAgentDecoder : public QObject
{
    Q_OBJECT

private slots:
    void workedDumps_data();
    void workedDumps();
    void wellFormed_data();
    void wellFormed();
    void badFrame_data();
    void badFrame();
    void badText_data();
    void badText();
    void everyCutIsRefused();
    void everyChangedLengthByteIsRefused();
    void longestText();
    void lineKinds_data();
    void lineKinds();
    void colours_data();
    void colours();
    void effectNames_data();
    void effectNames();
    void effectsOfTheProgram();
    void noBytesCrashIt();
};

void TestAgentDecoder::workedDumps_data()
{
    QTest::addColumn<QByteArray>("dump");
    QTest::addColumn<quint32>("word");
    QTest::addColumn<agent::LineKind>("kind");

    QTest::newRow("off line") << QByteArray::fromHex("005e0000005a"
                                                     "0033003700350038003100300038003600370032002c"
                                                     "0033003700350038003100300038003600370032002c"
                                                     "0033003700350038003100300038003600370032002c"
                                                     "0033003700350038003100300038003600370032002c"
                                                     "0030")
                              << 3758108672U << agent::LineKind::Off;
    QTest::newRow("wake line") << QByteArray::fromHex("005e0000005a"
                                                      "0033003700350038003600310036003500380033002c"
                                                      "0033003700350038003600310036003500380033002c"
                                                      "0033003700350038003600310036003500380033002c"
                                                      "0033003700350038003600310036003500380033002c"
                                                      "0030")
                               << 3758616583U << agent::LineKind::Wake;
}

void TestAgentDecoder::workedDumps()
{
    QFETCH(QByteArray, dump);
    QFETCH(quint32, word);
    QFETCH(agent::LineKind, kind);

    QCOMPARE(dump.size(), 96);
    const Decoded decoded = decode(dump);
    QCOMPARE(errorOf(decoded), QString());
    const auto answer = std::get<Answer>(decoded);
    QCOMPARE(wordsOf(answer), (QVector<quint32>{word, word, word, word, 0}));
    QCOMPARE(agent::lineKind(answer), kind);
}

void TestAgentDecoder::wellFormed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<quint32>>("words");

    QTest::newRow("normal") << QStringLiteral("4026597120,4043309056,4060086272,4076863488,0")
                            << QVector<quint32>{0xF000FF00U, 0xF1000000U, 0xF2000000U, 0xF3000000U,
                                                0};
    QTest::newRow("effect") << QStringLiteral(
        "4026597120,4093640959,4060086272,4076863488,2952790016")
                            << QVector<quint32>{0xF000FF00U, 0xF40000FFU, 0xF2000000U, 0xF3000000U,
                                                0xB0000000U};
    QTest::newRow("smallest") << QStringLiteral("0,0,0,0,0") << QVector<quint32>{0, 0, 0, 0, 0};
    QTest::newRow("largest") << QStringLiteral(
        "4294967295,4294967295,4294967295,4294967295,4294967295")
                             << QVector<quint32>(5, 0xFFFFFFFFU);
    QTest::newRow("each at its place")
        << QStringLiteral("1,2,3,4,5") << QVector<quint32>{1, 2, 3, 4, 5};
}

void TestAgentDecoder::wellFormed()
{
    QFETCH(QString, text);
    QFETCH(QVector<quint32>, words);

    const Decoded decoded = decode(frame(text));
    QCOMPARE(errorOf(decoded), QString());
    QCOMPARE(wordsOf(std::get<Answer>(decoded)), words);
}

void TestAgentDecoder::badFrame_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");

    const QByteArray text = utf16(QStringLiteral("1,2,3,4,5"));
    const auto row = [](const char *name, const QByteArray &bytes, const char *error) {
        QTest::newRow(name) << bytes << QString::fromLatin1(error);
    };
    row("nothing", QByteArray(), "2 byte(s) of the 2 of the first length are missing");
    row("one byte", QByteArray(1, '\0'), "1 byte(s) of the 2 of the first length are missing");
    row("first length 0", number16(0), "the first length is 0, too short for the second length");
    row("first length 3", number16(3) + QByteArray(3, '\0'),
        "the first length is 3, too short for the second length");
    row("only the first length", number16(22),
        "22 of the 22 bytes that the first length announces are missing");
    row("inside the second length", number16(22) + QByteArray(3, '\0'),
        "19 of the 22 bytes that the first length announces are missing");
    row("no text", number16(22) + number32(18),
        "18 of the 22 bytes that the first length announces are missing");
    row("last byte missing", frame(22, 18, text.left(17)),
        "1 of the 22 bytes that the first length announces are missing");
    row("first length too long", frame(24, 18, text),
        "2 of the 24 bytes that the first length announces are missing");
    row("odd", frame(21, 17, text.left(17)), "the second length is odd: 17");
    row("odd and disagreeing", frame(22, 17, text), "the second length is odd: 17");
    row("second length too long", frame(22, 20, text),
        "the lengths disagree: the first is 22, the second 20 instead of 18");
    row("second length too short", frame(22, 16, text),
        "the lengths disagree: the first is 22, the second 16 instead of 18");
    row("second length huge", frame(22, 0xFFFFFFFEU, text),
        "the lengths disagree: the first is 22, the second 4294967294 instead of 18");
    row("units instead of bytes", frame(22, 8, text),
        "the lengths disagree: the first is 22, the second 8 instead of 18");
    row("little-endian second length", frame(22, 0x12000000U, text),
        "the lengths disagree: the first is 22, the second 301989888 instead of 18");
    row("first length counts itself", frame(24, 18, text + QByteArray(2, '\0')),
        "the lengths disagree: the first is 24, the second 18 instead of 20");
    row("first length too short", frame(20, 18, text),
        "the lengths disagree: the first is 20, the second 18 instead of 16");
    row("null text", frame(4, 0xFFFFFFFFU, QByteArray()), "the second length marks a null text");
    row("null marker before a text", frame(22, 0xFFFFFFFFU, text),
        "the second length marks a null text");
    row("one byte after the text", frame(22, 18, text + '\n'), "1 byte(s) follow the text");
    row("two frames", frame(22, 18, text) + frame(22, 18, text), "24 byte(s) follow the text");
}

void TestAgentDecoder::badFrame()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);

    QCOMPARE(errorOf(decode(bytes)), error);
}

void TestAgentDecoder::badText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QString &text, const char *error) {
        QTest::newRow(name) << text << QString::fromLatin1(error);
    };
    row("empty", QString(), "the line has 1 field(s) instead of 5");
    row("one field", QStringLiteral("1"), "the line has 1 field(s) instead of 5");
    row("four fields", QStringLiteral("1,2,3,4"), "the line has 4 field(s) instead of 5");
    row("six fields", QStringLiteral("1,2,3,4,5,6"), "the line has 6 field(s) instead of 5");
    row("comma at the end", QStringLiteral("1,2,3,4,5,"), "the line has 6 field(s) instead of 5");
    row("semicolons", QStringLiteral("1;2;3;4;5"), "the line has 1 field(s) instead of 5");
    row("first empty", QStringLiteral(",2,3,4,5"), "field 1 is empty");
    row("middle empty", QStringLiteral("1,2,,4,5"), "field 3 is empty");
    row("last empty", QStringLiteral("1,2,3,4,"), "field 5 is empty");
    row("all empty", QStringLiteral(",,,,"), "field 1 is empty");
    row("plus", QStringLiteral("+1,2,3,4,5"), R"(field 1 is not a plain decimal number: "+1")");
    row("minus", QStringLiteral("1,-2,3,4,5"), R"(field 2 is not a plain decimal number: "-2")");
    row("blank before", QStringLiteral("1, 2,3,4,5"),
        R"(field 2 is not a plain decimal number: " 2")");
    row("blank after", QStringLiteral("1,2,3 ,4,5"),
        R"(field 3 is not a plain decimal number: "3 ")");
    row("only a blank", QStringLiteral("1,2,3, ,5"),
        R"(field 4 is not a plain decimal number: " ")");
    row("line end", QStringLiteral("1,2,3,4,5\n"),
        R"(field 5 is not a plain decimal number: "5\u000a")");
    row("letters", QStringLiteral("1,2,x3,4,5"), R"(field 3 is not a plain decimal number: "x3")");
    row("hexadecimal", QStringLiteral("0xF0,2,3,4,5"),
        R"(field 1 is not a plain decimal number: "0xF0")");
    row("fraction", QStringLiteral("1.0,2,3,4,5"),
        R"(field 1 is not a plain decimal number: "1.0")");
    row("exponent", QStringLiteral("1e3,2,3,4,5"),
        R"(field 1 is not a plain decimal number: "1e3")");
    row("Arabic-Indic digit", QStringLiteral("1,2,3,4,") + QChar(0x0661),
        R"(field 5 is not a plain decimal number: "\u0661")");
    row("fullwidth digit", QChar(0xFF11) + QStringLiteral(",2,3,4,5"),
        R"(field 1 is not a plain decimal number: "\uff11")");
    row("digit with a high byte", QChar(0x0131) + QStringLiteral(",2,3,4,5"),
        R"(field 1 is not a plain decimal number: "\u0131")");
    row("half a surrogate pair", QChar(0xD835) + QStringLiteral(",2,3,4,5"),
        R"(field 1 is not a plain decimal number: "\ud835")");
    row("NUL inside", QStringLiteral("1,2,3,4,5") + QChar(0),
        R"(field 5 is not a plain decimal number: "5\u0000")");
    row("byte order mark", QChar(0xFEFF) + QStringLiteral("1,2,3,4,5"),
        R"(field 1 is not a plain decimal number: "\ufeff1")");
    row("beside the digits", QStringLiteral("1,2,3,4/,5"),
        R"(field 4 is not a plain decimal number: "4/")");
    row("on their other side", QStringLiteral("1,2,3,4:,5"),
        R"(field 4 is not a plain decimal number: "4:")");
    row("both sides of what can be printed", QStringLiteral("1,2,\x1f ~\x7f\x80\u00fd\u00fe,4,5"),
        R"(field 3 is not a plain decimal number: "\u001f ~\u007f\u0080\u00fd\u00fe")");
    row("terminal sequence", QStringLiteral("\x1b[2J,2,3,4,5"),
        R"(field 1 is not a plain decimal number: "\u001b[2J")");
    row("padded", QStringLiteral("1,2,3,4,00"), R"(field 5 is padded with a zero: "00")");
    row("one too many", QStringLiteral("4294967296,2,3,4,5"),
        R"(field 1 does not fit 32 bits: "4294967296")");
    row("eleven digits", QStringLiteral("1,2,3,4,10000000000"),
        R"(field 5 does not fit 32 bits: "10000000000")");
    row("past 64 bits", QStringLiteral("1,2,3,18446744073709551617,5"),
        R"(field 4 does not fit 32 bits: "18446744073709551617")");
    row("as long as is quoted", QStringLiteral("1,2,3,4,") + QString(24, QLatin1Char('7')),
        R"(field 5 does not fit 32 bits: "777777777777777777777777")");
    row("endless", QStringLiteral("1,2,3,4,") + QString(1000, QLatin1Char('7')),
        R"(field 5 does not fit 32 bits: "777777777777777777777777"...)");
}

void TestAgentDecoder::badText()
{
    QFETCH(QString, text);
    QFETCH(QString, error);

    QCOMPARE(errorOf(decode(frame(text))), error);
}

void TestAgentDecoder::everyCutIsRefused()
{
    const QByteArray whole =
        frame(QStringLiteral("4026597120,4043309056,4060086272,4076863488,268607488"));
    QCOMPARE(errorOf(decode(whole)), QString());
    for (int size = 0; size < whole.size(); ++size) {
        QVERIFY2(errorOf(decode(whole.left(size))).contains(QStringLiteral("missing")),
                 qPrintable(QString::number(size)));
    }
}

void TestAgentDecoder::everyChangedLengthByteIsRefused()
{
    const QByteArray whole = frame(QStringLiteral("1,2,3,4,5"));
    for (int place = 0; place < 6; ++place) {
        for (int change = 1; change < 256; ++change) {
            QByteArray bytes = whole;
            bytes[place] = char(bytes.at(place) ^ change);
            QVERIFY2(!errorOf(decode(bytes)).isEmpty(), bytes.toHex().constData());
        }
    }
}

void TestAgentDecoder::longestText()
{
    // The first length is 16 bits wide; 65534 is the largest even one.
    const QByteArray bytes = frame(QString(32765, QLatin1Char(',')));
    QCOMPARE(bytes.size(), agent::largestAnswer - 1);
    QCOMPARE(errorOf(decode(bytes)), QStringLiteral("the line has 32766 field(s) instead of 5"));
    QCOMPARE(errorOf(decode(QByteArray(agent::largestAnswer + 1, '\xFF'))),
             QStringLiteral("the second length marks a null text"));
    QCOMPARE(errorOf(decode(bytes + QByteArray(2, '\0'))),
             QStringLiteral("2 byte(s) follow the text"));
}

void TestAgentDecoder::lineKinds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<agent::LineKind>("kind");
    QTest::addColumn<QString>("name");

    using agent::LineKind;
    const QString off = QStringLiteral("3758108672,3758108672,3758108672,3758108672,");
    const QString wake = QStringLiteral("3758616583,3758616583,3758616583,3758616583,");
    QTest::newRow("off") << off + QStringLiteral("0") << LineKind::Off << QStringLiteral("off");
    QTest::newRow("brightness zero with an effect")
        << off + QStringLiteral("268607488") << LineKind::Off << QStringLiteral("off");
    QTest::newRow("wake") << wake + QStringLiteral("0") << LineKind::Wake << QStringLiteral("wake");
    QTest::newRow("wake words with an effect")
        << wake + QStringLiteral("268607488") << LineKind::Normal << QStringLiteral("normal");
    QTest::newRow("three off words")
        << QStringLiteral("3758108672,3758108672,3758108672,4076863488,0") << LineKind::Normal
        << QStringLiteral("normal");
    QTest::newRow("left off word alone")
        << QStringLiteral("3758108672,4043309056,4060086272,4076863488,0") << LineKind::Normal
        << QStringLiteral("normal");
    QTest::newRow("three wake words")
        << QStringLiteral("4026531840,3758616583,3758616583,3758616583,0") << LineKind::Normal
        << QStringLiteral("normal");
    QTest::newRow("black") << QStringLiteral("4026531840,4043309056,4060086272,4076863488,0")
                           << LineKind::Normal << QStringLiteral("normal");
}

void TestAgentDecoder::lineKinds()
{
    QFETCH(QString, text);
    QFETCH(agent::LineKind, kind);
    QFETCH(QString, name);

    const Decoded decoded = decode(frame(text));
    QCOMPARE(errorOf(decoded), QString());
    QCOMPARE(agent::lineKind(std::get<Answer>(decoded)), kind);
    QCOMPARE(agent::lineKindName(kind), name);
}

void TestAgentDecoder::colours_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<quint32>("word");
    QTest::addColumn<QString>("rgb");

    QTest::newRow("left red") << 0 << 4026597120U << QStringLiteral("255 0 0");
    QTest::newRow("left green") << 0 << 0xF00000FFU << QStringLiteral("0 255 0");
    QTest::newRow("left blue") << 0 << 0xF0FF0000U << QStringLiteral("0 0 255");
    QTest::newRow("centre grey") << 1 << 4051664767U << QStringLiteral("127 127 127");
    QTest::newRow("right, all channels differ") << 2 << 0xF2030102U << QStringLiteral("1 2 3");
    QTest::newRow("stripe black") << 3 << 4076863488U << QStringLiteral("0 0 0");
    QTest::newRow("the neighbour's code") << 0 << 0xF1000000U << QString();
    QTest::newRow("left code on the stripe") << 3 << 0xF0000000U << QString();
    QTest::newRow("a code past the stripe's") << 1 << 4093640951U << QString();
    QTest::newRow("off word") << 0 << agent::offWord << QString();
    QTest::newRow("wake word") << 0 << agent::wakeWord << QString();
    QTest::newRow("zero") << 0 << 0U << QString();
}

void TestAgentDecoder::colours()
{
    QFETCH(int, zone);
    QFETCH(quint32, word);
    QFETCH(QString, rgb);

    const auto colour = agent::zoneColour(zone, word);
    QCOMPARE(colour
                 ? QStringLiteral("%1 %2 %3").arg(colour->red).arg(colour->green).arg(colour->blue)
                 : QString(),
             rgb);
}

void TestAgentDecoder::effectNames_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *word, const char *name) {
        QTest::newRow(word) << QString::fromLatin1(word) << QString::fromLatin1(name);
    };
    row("0", "None");
    row("268607488", "Breath");
    row("855703552", "Cycle");
    row("2147483648", "Dance");
    row("2684354560", "Flash");
    row("1879048192", "Random Color");
    row("2415919104", "Tempo");
    row("2952790016", "Wave");
    row("1", "");
    row("4294967295", "");
}

void TestAgentDecoder::effectNames()
{
    QFETCH(QString, word);
    QFETCH(QString, name);

    const Decoded decoded = decode(frame(QStringLiteral("1,2,3,4,") + word));
    QCOMPARE(errorOf(decoded), QString());
    QCOMPARE(agent::effectName(std::get<Answer>(decoded).effectWord), name);
}

/// The table is the program's list, in its order and as long.
void TestAgentDecoder::effectsOfTheProgram()
{
    QCOMPARE(agent::effects.size(), ::effects.size());
    for (std::size_t i = 0; i < ::effects.size(); ++i) {
        QCOMPARE(agent::effects.at(i).word, ::effects.at(i).word);
        QCOMPARE(QLatin1String(agent::effects.at(i).name), QLatin1String(::effects.at(i).name));
    }
}

void TestAgentDecoder::noBytesCrashIt()
{
    // A fixed generator: the same inputs on every run and every system.
    quint32 state = 1;
    const auto next = [&state] {
        state = state * 1664525U + 1013904223U;
        return state >> 16U;
    };
    const QByteArray whole = frame(QStringLiteral("4026597120,4043309056,4060086272,4076863488,0"));
    int accepted = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes = whole;
        for (quint32 changes = 1 + next() % 3; changes > 0; --changes) {
            bytes[int(next() % quint32(bytes.size()))] = char(next());
        }
        bytes.resize(int(next() % 4 == 0 ? next() % quint32(bytes.size()) : quint32(bytes.size())));
        const Decoded decoded = decode(bytes);
        if (std::holds_alternative<Answer>(decoded)) {
            // Only a changed digit can leave the answer well formed.
            QCOMPARE(bytes.left(6), whole.left(6));
            ++accepted;
        } else {
            QVERIFY(!errorOf(decoded).isEmpty());
        }
    }
    QVERIFY(accepted > 0);
}

QTEST_GUILESS_MAIN(TestAgentDecoder)

#include "tst_agentdecoder.moc"
