#include "lighting/devicewords.h"
#include "lighting/effects.h"
#include "lighting/idletimes.h"
#include "lighting/lightingstate.h"

#include <QTest>

namespace {

QString textOf(const ColourComponents &colour)
{
    return QStringLiteral("%1 %2 %3").arg(colour.red).arg(colour.green).arg(colour.blue);
}

} // namespace

class TestDeviceWords : public QObject
{
    Q_OBJECT

private slots:
    void words_data();
    void words();
    void coloursOfWords_data();
    void coloursOfWords();
    void everyChannelAtEveryBrightness();
    void pictureComponents_data();
    void pictureComponents();
    void fixedWords_data();
    void fixedWords();
    void effectWords_data();
    void effectWords();
    void effectIndices();
    void idleTimes();
    void startState();
    void wordOfAZone();
    void blacken();
};

void TestDeviceWords::words_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, Zone zone, const char *colour, int brightness,
                        const char *word) {
        QTest::newRow(name) << static_cast<int>(zone) << QString::fromLatin1(colour) << brightness
                            << QString::fromLatin1(word);
    };
    row("red, left", Zone::Left, "255 0 0", 100, "4026597120");
    row("half white, centre", Zone::Centre, "255 255 255", 50, "4051664767");
    row("green is lowest", Zone::Left, "0 255 0", 100, "4026532095");
    row("blue is above red", Zone::Right, "0 0 255", 100, "4076797952");
    row("stripe", Zone::Stripe, "1 2 3", 100, "4077060354");
    row("brightness 0, left", Zone::Left, "255 255 255", 0, "4026531840");
    row("brightness 0, centre", Zone::Centre, "255 255 255", 0, "4043309056");
    row("brightness 0, right", Zone::Right, "255 255 255", 0, "4060086272");
    row("brightness 0, stripe", Zone::Stripe, "255 255 255", 0, "4076863488");
    row("empty text", Zone::Left, "", 100, "4026531840");
    row("300 is masked to 44", Zone::Left, "300 0 0", 100, "4026543104");
    row("300 is scaled before it is masked", Zone::Left, "0 300 0", 50, "4026531990");
    row("missing parts", Zone::Left, "7", 100, "4026533632");
    row("two blanks make an empty part", Zone::Left, "7  9", 100, "4027123456");
    row("fourth part is ignored", Zone::Left, "1 2 3 4", 100, "4026728706");
    row("not a number", Zone::Left, "red 2 0x3", 100, "4026531842");
    row("negative is no unsigned number", Zone::Left, "-1 5 0", 100, "4026531845");
    row("commas are no separator", Zone::Left, "255,0,0", 100, "4026531840");
    row("largest number", Zone::Left, "4294967295 0 0", 100, "4026597120");
    row("largest number scaled", Zone::Left, "0 4294967295 0", 50, "4026532095");
    row("too large for a number", Zone::Left, "4294967296 0 0", 100, "4026531840");
}

void TestDeviceWords::words()
{
    QFETCH(int, zone);
    QFETCH(QString, colour);
    QFETCH(int, brightness);
    QTEST(wordText(deviceWord(static_cast<Zone>(zone), colour, brightness)), "word");
}

void TestDeviceWords::coloursOfWords_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<QString>("colour");
    QTest::newRow("each channel another") << 0xF0030102U << QStringLiteral("1 2 3");
    QTest::newRow("nothing but blue") << 0x00FF0000U << QStringLiteral("0 0 255");
    QTest::newRow("nothing but red") << 0x0000FF00U << QStringLiteral("255 0 0");
    QTest::newRow("nothing but green") << 0x000000FFU << QStringLiteral("0 255 0");
    QTest::newRow("no colour") << 0xFF000000U << QStringLiteral("0 0 0");
    QTest::newRow("white") << 0xFFFFFFFFU << QStringLiteral("255 255 255");
}

void TestDeviceWords::coloursOfWords()
{
    QFETCH(quint32, word);
    QTEST(textOf(wordColour(word)), "colour");
    QCOMPARE(textOf(ColourComponents()), QStringLiteral("0 0 0"));
}

void TestDeviceWords::everyChannelAtEveryBrightness()
{
    for (int brightness = 0; brightness <= 100; ++brightness) {
        for (int value = 0; value <= 255; ++value) {
            const auto scaled = static_cast<quint32>(value * brightness / 100);
            const quint32 word = deviceWord(
                Zone::Right, QStringLiteral("%1 0 %2").arg(value).arg(255 - value), brightness);
            const auto other = static_cast<quint32>((255 - value) * brightness / 100);
            QCOMPARE(word, 0xF2000000U + (other << 16) + (scaled << 8));
        }
    }
}

void TestDeviceWords::pictureComponents_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<QString>("components");
    const auto row = [](const char *colour, int brightness, const char *components) {
        QTest::newRow(colour) << QString::fromLatin1(colour) << brightness
                              << QString::fromLatin1(components);
    };
    row("255 128 1", 50, "127 64 0");
    row("300 0 0", 100, "300 0 0");
    row("-5 -150 0", 50, "-2 -75 0");
    row("x 1", 100, "0 1 0");
    row("", 100, "0 0 0");
    row("2147483647 2147483648 0", 100, "2147483647 0 0");
}

void TestDeviceWords::pictureComponents()
{
    QFETCH(QString, colour);
    QFETCH(int, brightness);
    QTEST(textOf(scaledComponents(colour, brightness)), "components");
}

void TestDeviceWords::fixedWords_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<QString>("text");
    QTest::newRow("off") << DeviceWords::lightingOff << QStringLiteral("3758108672");
    QTest::newRow("wake") << DeviceWords::wake << QStringLiteral("3758616583");
    QTest::newRow("loading") << DeviceWords::loading << QStringLiteral("4093640951");
    QTest::newRow("applying") << DeviceWords::applying << QStringLiteral("4093640959");
    QTest::newRow("black left") << blackWord(Zone::Left) << QStringLiteral("4026531840");
    QTest::newRow("black centre") << blackWord(Zone::Centre) << QStringLiteral("4043309056");
    QTest::newRow("black right") << blackWord(Zone::Right) << QStringLiteral("4060086272");
    QTest::newRow("black stripe") << blackWord(Zone::Stripe) << QStringLiteral("4076863488");
}

void TestDeviceWords::fixedWords()
{
    QFETCH(quint32, word);
    QTEST(wordText(word), "text");
}

void TestDeviceWords::effectWords_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("word");
    QTest::newRow("None") << 0 << QStringLiteral("0");
    QTest::newRow("Breath") << 1 << QStringLiteral("268607488");
    QTest::newRow("Cycle") << 2 << QStringLiteral("855703552");
    QTest::newRow("Dance") << 3 << QStringLiteral("2147483648");
    QTest::newRow("Flash") << 4 << QStringLiteral("2684354560");
    QTest::newRow("Random Color") << 5 << QStringLiteral("1879048192");
    QTest::newRow("Tempo") << 6 << QStringLiteral("2415919104");
    QTest::newRow("Wave") << 7 << QStringLiteral("2952790016");
}

void TestDeviceWords::effectWords()
{
    QFETCH(int, index);
    const Effect &effect = effects.at(static_cast<std::size_t>(index));
    QCOMPARE(effect.name, QTest::currentDataTag());
    QTEST(wordText(effect.word), "word");
}

void TestDeviceWords::effectIndices()
{
    QVERIFY(!isEffectIndex(-1));
    QVERIFY(isEffectIndex(0));
    QVERIFY(isEffectIndex(7));
    QVERIFY(!isEffectIndex(8));
}

void TestDeviceWords::idleTimes()
{
    const std::array<int, 9> seconds{5, 10, 30, 60, 300, 600, 900, 1800, 3600};
    for (std::size_t i = 0; i < seconds.size(); ++i) {
        QCOMPARE(idleTimesMs.at(i), seconds.at(i) * 1000);
    }
}

void TestDeviceWords::startState()
{
    const LightingState state;
    for (const QString &word :
         {state.leftWord, state.centreWord, state.rightWord, state.stripeWord}) {
        QCOMPARE(word, QStringLiteral("3758616583"));
    }
    QCOMPARE(state.effectWord, QStringLiteral("0"));
    QVERIFY(state.leftZoneColor.isEmpty() && state.centerZoneColor.isEmpty()
            && state.rightZoneColor.isEmpty() && state.singleZoneColor.isEmpty()
            && state.stripeLidColor.isEmpty());
    QVERIFY(!state.singleColorSelected);
}

void TestDeviceWords::wordOfAZone()
{
    LightingState state;
    state.wordOf(Zone::Left) = QStringLiteral("1");
    state.wordOf(Zone::Centre) = QStringLiteral("2");
    state.wordOf(Zone::Right) = QStringLiteral("3");
    state.wordOf(Zone::Stripe) = QStringLiteral("4");
    QCOMPARE((QStringList{state.leftWord, state.centreWord, state.rightWord, state.stripeWord}),
             (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                          QStringLiteral("4")}));
}

void TestDeviceWords::blacken()
{
    LightingState state;
    state.effectWord = QStringLiteral("268607488");
    state.blacken();
    QCOMPARE(state.leftWord, QStringLiteral("4026531840"));
    QCOMPARE(state.centreWord, QStringLiteral("4043309056"));
    QCOMPARE(state.rightWord, QStringLiteral("4060086272"));
    QCOMPARE(state.stripeWord, QStringLiteral("4076863488"));
    QCOMPARE(state.effectWord, QStringLiteral("268607488"));
}

QTEST_GUILESS_MAIN(TestDeviceWords)
#include "tst_devicewords.moc"
