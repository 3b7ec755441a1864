#include "system/testing/resourceusage.h"
#include "tests/support/companionprocess.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLabel>
#include <QSlider>
#include <QTest>

namespace {

constexpr const char *cannotAttach = "Can\u00B4t attach to memory segment";
/// Longer than any tick on a busy machine, and no wait for another process ends by then.
constexpr qint64 noWaitMs = 3000;

} // namespace

class TestCompanionReader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void missingSegmentIsLogged();
    void valueIsAdopted();
    void eitherSlot();
    void firstRead_data();
    void firstRead();
    void sameValueTwiceChangesNothing();
    void noneNeverChangesTheSlider();
    void emptyTextChangesNothing();
    void sliderWaitsForTheWakeOfAutoDim();
    void sameValueTwiceUnderAutoDim();
    void numbersBeyondTheSlider_data();
    void numbersBeyondTheSlider();
    void raisedBrightnessWakesOnce();
    void damagedSegments_data();
    void damagedSegments();
    void hugeSegment();
    void longerAndShorterSegments();
    void longestText();
    void lockedByTheOther();
    void killedWhileItHoldsTheLock();
    void vanishesWhileItIsRead();
    void nothingIsKept();
    void timerReads();

private:
    /// One tick, which must not wait for anybody.
    void tick() const
    {
        QElapsedTimer time;
        time.start();
        world->window->sharedmemtimer();
        QVERIFY2(time.elapsed() < noWaitMs, qPrintable(QString::number(time.elapsed())));
    }
    int shown() const { return world->get<QSlider>("horizontalSlider")->value(); }
    QString label() const { return world->get<QLabel>("label_2")->text(); }

    std::unique_ptr<TestWindow> world;
    std::unique_ptr<CompanionProcess> companion;
};

void TestCompanionReader::init()
{
    companion = std::make_unique<CompanionProcess>();
    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=80\nZone1Color=255 0 0\n");
    world->start();
}

void TestCompanionReader::cleanup()
{
    world.reset();
    companion.reset();
}

void TestCompanionReader::missingSegmentIsLogged()
{
    for (int time = 0; time < 2; ++time) {
        QTest::ignoreMessage(QtDebugMsg, cannotAttach);
        tick();
    }
    QCOMPARE(shown(), 80);
    QCOMPARE(label(), QStringLiteral("Brightness Level: 80%"));
}

void TestCompanionReader::valueIsAdopted()
{
    QVERIFY2(companion->publish(QStringLiteral("on,50,3")), companion->error());
    tick();
    QCOMPARE(shown(), 50);
    QCOMPARE(label(), QStringLiteral("Brightness Level: 50% (set by Dashport)"));
    QCOMPARE(world->stored(SettingKeys::brightLevel), QStringLiteral("50"));
    world->window->brightnessapply();
    QCOMPARE(world->window->lightingState().leftWord, wordText(0xF0007F00));
    QVERIFY2(companion->publish(QStringLiteral("on,0,3")), companion->error());
    tick();
    QCOMPARE(shown(), 0);
}

void TestCompanionReader::eitherSlot()
{
    for (const char *slot : {"sharedmemtimer", "loadFromSharedMem"}) {
        const int value = shown() - 7;
        QVERIFY(companion->publish(QStringLiteral("on,%1").arg(value)));
        QVERIFY(QMetaObject::invokeMethod(world->window.get(), slot));
        QCOMPARE(shown(), value);
    }
}

void TestCompanionReader::firstRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("none published yet") << QStringLiteral("on,9999") << 80;
    QTest::newRow("zero") << QStringLiteral("on,0") << 0;
    QTest::newRow("one field") << QStringLiteral("on") << 0;
    QTest::newRow("no number") << QStringLiteral("on,bright") << 0;
    QTest::newRow("same as the slider") << QStringLiteral("on,80") << 80;
    QTest::newRow("another") << QStringLiteral("on,81") << 81;
}

void TestCompanionReader::firstRead()
{
    QFETCH(QString, text);
    QVERIFY(companion->publish(text));
    tick();
    QTEST(shown(), "expected");
}

void TestCompanionReader::sameValueTwiceChangesNothing()
{
    QVERIFY(companion->publish(QStringLiteral("on,50")));
    tick();
    world->get<QSlider>("horizontalSlider")->setValue(70); // the user's own choice stays
    QVERIFY(companion->publish(QStringLiteral("off,50")));
    tick();
    QCOMPARE(shown(), 70);
    QCOMPARE(label(), QStringLiteral("Brightness Level: 70%"));
    QVERIFY(companion->publish(QStringLiteral("off,51")));
    tick();
    QCOMPARE(shown(), 51);
}

void TestCompanionReader::noneNeverChangesTheSlider()
{
    QVERIFY(companion->publish(QStringLiteral("on,none,1")));
    tick();
    QCOMPARE(shown(), 80);
    QVERIFY(companion->publish(QStringLiteral("on,50,1")));
    tick();
    QVERIFY(companion->publish(QStringLiteral("on,none,1")));
    tick();
    QCOMPARE(shown(), 50);
    world->get<QSlider>("horizontalSlider")->setValue(70);
    QVERIFY(companion->publish(QStringLiteral("on,50,1"))); // still the last one published
    tick();
    QCOMPARE(shown(), 70);
}

void TestCompanionReader::emptyTextChangesNothing()
{
    QVERIFY(companion->publish(QStringLiteral("")));
    tick();
    QVERIFY(companion->publish(QString()));
    tick();
    QCOMPARE(shown(), 80);
}

void TestCompanionReader::sliderWaitsForTheWakeOfAutoDim()
{
    world->get<QAbstractButton>("CheckBox_AutoDim")->click();
    QVERIFY(companion->publish(QStringLiteral("on,60")));
    tick();
    QCOMPARE(shown(), 80);
    QCOMPARE(label(), QStringLiteral("Brightness Level: 80% (Auto dim mode)"));
    QCOMPARE(world->stored(SettingKeys::brightLevel), QStringLiteral("80"));

    world->clock += 5000;
    for (int poll = 0; poll < 40; ++poll) {
        world->window->timerDone();
    }
    QCOMPARE(shown(), 0);
    world->platform.presses.set(65);
    world->window->timerDone();
    QCOMPARE(shown(), 60);
}

void TestCompanionReader::sameValueTwiceUnderAutoDim()
{
    world->get<QAbstractButton>("CheckBox_AutoDim")->click();
    QVERIFY(companion->publish(QStringLiteral("on,60")));
    tick();
    world->get<QSlider>("horizontalSlider")->setValue(70); // the user's own choice stays
    tick();
    world->clock += 5000;
    world->window->timerDone();
    QCOMPARE(shown(), 68);
    world->platform.presses.set(65);
    world->window->timerDone();
    QCOMPARE(shown(), 70);
}

void TestCompanionReader::numbersBeyondTheSlider_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("too much") << QStringLiteral("on,101") << 100;
    QTest::newRow("largest") << QStringLiteral("on,2147483647") << 100;
    QTest::newRow("negative") << QStringLiteral("on,-1") << 0;
    QTest::newRow("most negative") << QStringLiteral("on,-2147483648") << 0;
    QTest::newRow("no 32-bit number") << QStringLiteral("on,4294967396") << 0;
}

void TestCompanionReader::numbersBeyondTheSlider()
{
    QFETCH(QString, text);
    QVERIFY(companion->publish(text));
    tick();
    QTEST(shown(), "expected");
    world->get<QSlider>("horizontalSlider")->setValue(70);
    tick(); // the same number again
    QCOMPARE(shown(), 70);
}

void TestCompanionReader::raisedBrightnessWakesOnce()
{
    world->get<QAbstractButton>("CheckBox_AutoDim")->click();
    for (const char *text :
         {"on,95", "on,100", "on,500"}) { // the last is no more than the slider has
        QVERIFY(companion->publish(QString::fromLatin1(text)));
        tick();
        world->window->timerDone();
        world->get<QLabel>("label_2")->setText(QStringLiteral("somebody else's text"));
        world->window->timerDone();
        QCOMPARE(label(), QStringLiteral("somebody else's text")); // nothing more to wake
    }
    QCOMPARE(shown(), 100);
    QCOMPARE(world->stored(SettingKeys::brightLevel), QStringLiteral("100"));
}

void TestCompanionReader::damagedSegments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("size");
    const auto row = [](const char *name, const char *hex, int size) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << size;
    };
    row("one byte", "00", 1);
    row("zeros", "", 4096);
    row("length alone", "00001000", 4); // a whole page on some systems
    row("length beyond the segment", "7ffffffe006f002c0035", 4096);
    row("length of null", "ffffffff006f002c0035", 4096);
    row("largest length", "fffffffe006f002c0035", 4096);
    row("odd length", "00000005006f002c0035", 4096);
}

void TestCompanionReader::damagedSegments()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, size);
    QVERIFY2(companion->publishBytes(bytes, size), companion->error());
    const qint64 before = resourceUsage().memory;
    tick();
    QVERIFY(resourceUsage().memory - before < 1'000'000);
    QCOMPARE(shown(), 80);
    QVERIFY(companion->publish(QStringLiteral("on,40"))); // and the next one is read
    tick();
    QCOMPARE(shown(), 40);
}

void TestCompanionReader::hugeSegment()
{
    constexpr int size = 256 * 1024 * 1024;
    // A length that this segment does hold: its text is not read, since nobody waits for it.
    QVERIFY2(companion->publishBytes(QByteArray::fromHex("0ffffff0006f002c00350030"), size),
             companion->error());
    tick();
    QCOMPARE(shown(), 80);
    // A usual text in it is.
    QVERIFY(companion->publish(QStringLiteral("on,40")));
    tick();
    QCOMPARE(shown(), 40);
}

void TestCompanionReader::longerAndShorterSegments()
{
    for (const int size : {64, 1024 * 1024, 5000, 4096, 100'000}) {
        const int value = size % 97;
        const QString text = QStringLiteral("on,%1,").arg(value);
        QVERIFY2(companion->publish(text.leftJustified(size / 2 - 2, QLatin1Char('x'))),
                 companion->error());
        tick();
        QCOMPARE(shown(), value);
        QVERIFY(companion->withdraw());
    }
}

void TestCompanionReader::longestText()
{
    constexpr int longest = 1024 * 1024;
    for (const int size : {longest, longest + 2}) { // the last two bytes are one letter too many
        QVERIFY2(
            companion->publish(QStringLiteral("on,%1,").arg(size % 97).leftJustified(size / 2 - 2)),
            companion->error());
        tick();
        QCOMPARE(shown(), longest % 97);
        QVERIFY(companion->withdraw());
    }
}

void TestCompanionReader::lockedByTheOther()
{
    QVERIFY(companion->publish(QStringLiteral("on,50")));
    QVERIFY2(companion->lock(), companion->error());
    for (int time = 0; time < 3; ++time) {
        QTest::ignoreMessage(QtDebugMsg, cannotAttach);
        tick();
    }
    QCOMPARE(shown(), 80);
    QVERIFY(companion->unlock());
    tick();
    QCOMPARE(shown(), 50);
}

void TestCompanionReader::killedWhileItHoldsTheLock()
{
    QVERIFY(companion->publish(QStringLiteral("on,50")));
    tick();
    QVERIFY(companion->lock());
    companion->kill();
    for (int time = 0; time < 3; ++time) {
        tick();
    }
    companion = std::make_unique<CompanionProcess>();
    QVERIFY2(companion->publish(QStringLiteral("on,60")), companion->error());
    tick();
    QCOMPARE(shown(), 60);
}

void TestCompanionReader::vanishesWhileItIsRead()
{
    for (int life = 0; life < 10; ++life) {
        QVERIFY2(companion->publish(QStringLiteral("on,%1").arg(20 + life)), companion->error());
        tick();
        QCOMPARE(shown(), 20 + life);
        companion->startToKill(); // goes somewhere in the midst of these
        for (int time = 0; time < 500; ++time) {
            tick();
        }
        companion->kill();
        tick();
        QCOMPARE(shown(), 20 + life);
        companion = std::make_unique<CompanionProcess>();
    }
}

void TestCompanionReader::nothingIsKept()
{
    QVERIFY(companion->publish(QStringLiteral("on,50")));
    tick();
    const ResourceUsage before = resourceUsage();
    for (int round = 0; round < 20; ++round) {
        for (int time = 0; time < 50; ++time) {
            tick();
        }
        // A reader that kept the old segment would stand in the way of the new one.
        QVERIFY2(companion->publishBytes(QByteArray::fromHex("000000040031002c"), 100 + round),
                 companion->error());
    }
    QCOMPARE(resourceUsage().handles, before.handles);
    QCOMPARE(resourceUsage().sharedSegments, before.sharedSegments);
    companion->kill();
    tick(); // the last one out
    QTest::ignoreMessage(QtDebugMsg, cannotAttach);
    tick();
    QCOMPARE(resourceUsage().sharedSegments, qMax(0, before.sharedSegments - 1));
}

void TestCompanionReader::timerReads()
{
    QVERIFY(companion->publish(QStringLiteral("on,50")));
    QTRY_COMPARE(shown(), 50);
    QVERIFY(companion->publish(QStringLiteral("on,40")));
    QTRY_COMPARE(shown(), 40);
}

QTEST_MAIN(TestCompanionReader)
#include "tst_companionreader.moc"
