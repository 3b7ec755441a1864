#include "lighting/companion.h"

#include <QDataStream>
#include <QIODevice>
#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr qint32 nothingYet = 9999;

/// The text as the companion's own stream writes it.
QByteArray streamed(const QString &text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes;
}

} // namespace

class TestCompanion : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void damagedSegments_data();
    void damagedSegments();
    void everyTruncation();
    void anyBytes();
    void brightness_data();
    void brightness();
};

void TestCompanion::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
    QTest::newRow("brightness") << QStringLiteral("on,55,0");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("\u00e4\u2603\U0001F4A1,7");
    QTest::newRow("with a NUL") << QString(QChar::Null) + QStringLiteral(",3");
    QTest::newRow("long") << QString(300'000, QLatin1Char('x')) + QStringLiteral(",12");
}

void TestCompanion::texts()
{
    QFETCH(QString, text);
    for (const int tail : {0, 1, 4096}) { // segments are whole pages
        QCOMPARE(companionText(streamed(text) + QByteArray(tail, '\xa5')), text);
    }
}

void TestCompanion::damagedSegments_data()
{
    QTest::addColumn<QByteArray>("segment");
    const auto row = [](const char *name, const QByteArray &hex) {
        QTest::newRow(name) << QByteArray::fromHex(hex);
    };
    row("empty", "");
    row("half a length", "0000");
    row("zeros", QByteArray(4096, '0'));
    row("length of null", "ffffffff");
    row("length of null, then text", "ffffffff00350030");
    row("largest even length", "fffffffe00350030");
    row("largest signed length", "7ffffffe00350030");
    row("first negative length", "8000000000350030");
    row("two bytes too few", "0000000600350030");
    row("odd length", "0000000300350030");
    row("little-endian length", "0400000000350030");
    row("all ones", QByteArray(8192, 'f'));
}

void TestCompanion::damagedSegments()
{
    QFETCH(QByteArray, segment);
    QVERIFY(companionText(segment).isEmpty());
}

void TestCompanion::everyTruncation()
{
    const QByteArray whole = streamed(QStringLiteral("on,55,0"));
    for (int size = 0; size < whole.size(); ++size) {
        QVERIFY(companionText(whole.left(size)).isEmpty());
    }
    QVERIFY(!companionText(whole).isEmpty());
}

void TestCompanion::anyBytes()
{
    QRandomGenerator random(1);
    for (int round = 0; round < 20'000; ++round) {
        // Lengths that may be right now and then, and anything behind them.
        QByteArray segment = QByteArray::fromHex("000000") + static_cast<char>(random.bounded(40));
        for (int size = random.bounded(40); size > 0; --size) {
            segment += static_cast<char>(random.bounded(256));
        }
        segment.truncate(random.bounded(segment.size() + 1));
        const QString text = companionText(segment);
        QVERIFY(2 * text.size() <= qMax(0, segment.size() - 4));
        newCompanionBrightness(text, nothingYet);
    }
}

void TestCompanion::brightness_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("last");
    QTest::addColumn<QString>("expected"); // "-": nothing new
    const auto row = [](const char *text, qint32 last, const char *expected) {
        QTest::newRow(
            qPrintable(QStringLiteral("\"%1\" after %2").arg(QLatin1String(text)).arg(last)))
            << QString::fromLatin1(text) << last << QString::fromLatin1(expected);
    };
    row("on,55,0", nothingYet, "55");
    row("on,55,0", 54, "55");
    row("on,55,0", 55, "-");
    row("on,55", nothingYet, "55");
    row(",55,", nothingYet, "55");
    row("on,0,9", nothingYet, "0");
    row("on,0,9", 0, "-");
    row("on,none,9", nothingYet, "-");
    row("on,none,9", 0, "-");
    row("on,none,9", 55, "-");
    row("on,None,9", 55, "0"); // this spelling is no number
    row("on,none ,9", 55, "0");
    row("", nothingYet, "-");
    row("", 0, "-");
    row("55", nothingYet, "0"); // no second field
    row("55", 0, "-");
    row("none", 55, "0");
    row(",", 55, "0");
    row("on,,55", 55, "0");
    row("on,bright,9", 55, "0");
    row("on,bright,9", 0, "-");
    row("on,5x,9", 55, "0");
    row("on,0x10,9", 55, "0");
    row("on,5.5,9", 55, "0");
    row("on,+7,9", 55, "7");
    row("on,007,9", 55, "7");
    row("on,-3,9", 55, "-3");
    row("on,100,9", nothingYet, "100");
    row("on,9999,9", nothingYet, "-"); // the one value that the first read does not take
    row("on,2147483647,9", 55, "2147483647");
    row("on,2147483648,9", 55, "0");
    row("on,-2147483648,9", 55, "-2147483648");
    row("on,99999999999999999999,9", 55, "0");
}

void TestCompanion::brightness()
{
    QFETCH(QString, text);
    QFETCH(qint32, last);
    const auto found = newCompanionBrightness(text, last);
    QTEST(found ? QString::number(*found) : QStringLiteral("-"), "expected");
}

QTEST_GUILESS_MAIN(TestCompanion)
#include "tst_companion.moc"
