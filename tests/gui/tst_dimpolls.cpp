#include "dimworld.h"

#include "lighting/idletimes.h"
#include "tests/support/singleshots.h"

#include <utility>

class TestDimPolls : public QObject
{
    Q_OBJECT

private slots:
    void idleTimes_data();
    void idleTimes();
    void rampAndWords();
    void wakeIsSentTwice();
    void pollKeepsAWakeThatWaits();
    void idleTimeOfNoRow_data();
    void idleTimeOfNoRow();
    void startsAfterTheSettings_data();
    void startsAfterTheSettings();
    void loadingTheSettingsIsActivity();
    void resumeIsActivity();
    void applyingIsActivityFromItsBeginning();
    void idleTimeCountsFromTheEndOfApplying();
    void settingsTakeTheDimTextAway();
    void everyUserBrightness_data();
    void everyUserBrightness();
    void wakeBeforeTheWordsFollowed_data();
    void wakeBeforeTheWordsFollowed();
    void dimmedMovesAreNotTheUsers();
    void everyPollAsksOnce();
    void inputIsTimedAfresh();
    void pollTimerRuns();
    void hiddenWindow();
};

void TestDimPolls::idleTimes_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < static_cast<int>(idleTimesMs.size()); ++index) {
        QTest::addRow("index %d", index) << index;
    }
}

void TestDimPolls::idleTimes()
{
    QFETCH(int, index);
    DimWorld world;
    world.startDimming();
    auto *const list = world.get<QComboBox>("comboDimValue");
    QCOMPARE(list->count(), static_cast<int>(idleTimesMs.size()));
    list->setCurrentIndex(index);
    const qint64 start = world.clock;
    const qint64 idle = idleTimesMs.at(static_cast<std::size_t>(index));
    world.clock = start + idle - 100 - 1;
    world.poll();
    QCOMPARE(world.shown(), 100);
    world.clock = start + idle - 100;
    world.poll();
    QCOMPARE(world.shown(), 98);
}

void TestDimPolls::rampAndWords()
{
    DimWorld world;
    world.serveDimming();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 100% (Auto dim mode)"));
    world.clock += 4900;
    for (int shownNow = 98; shownNow > 2; shownNow -= 2) {
        world.poll();
        QCOMPARE(world.label(),
                 QStringLiteral("Brightness Level: %1% (dimming down)").arg(shownNow));
        QCOMPARE(world.leftWord(),
                 wordText(0xF0000000U | static_cast<quint32>(255 * shownNow / 100) << 8));
        QVERIFY(world.enabled());
    }
    world.clock += 100;
    world.window->timerDone();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 0% (dimmed)"));
    QCOMPARE(world.leftWord(), QStringLiteral("3758108672"));
    QVERIFY(!world.enabled());
    QCOMPARE(world.readLine(), DimWorldLines::dark);
    world.window->brightnessapply();
    QCOMPARE(world.leftWord(), QStringLiteral("4026531840")); // the words follow the slider
    world.poll();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 0% (dimmed)"));
    QCOMPARE(world.readLine(), DimWorldLines::dark);
    QVERIFY(!world.wakePending());
}

void TestDimPolls::wakeIsSentTwice()
{
    DimWorld world;
    world.serveDimming();
    world.pollUntilDimmed();
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 100);
    QVERIFY(world.enabled());
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 100% (Auto dim mode)"));
    for (const QString &line :
         {DimWorldLines::wake, DimWorldLines::wake, DimWorldLines::red, DimWorldLines::red}) {
        QCOMPARE(world.readLine(), line);
    }
}

void TestDimPolls::pollKeepsAWakeThatWaits()
{
    DimWorld world;
    world.startDimming();
    QVERIFY(world.wakePending()); // of the start: nobody has asked yet
    world.poll();
    QVERIFY(world.wakePending());
}

void TestDimPolls::idleTimeOfNoRow_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("none chosen") << -1;
    QTest::newRow("one too many") << static_cast<int>(idleTimesMs.size());
}

/// The time that was chosen before goes on.
void TestDimPolls::idleTimeOfNoRow()
{
    QFETCH(int, index);
    DimWorld world;
    world.startDimming();
    auto *const list = world.get<QComboBox>("comboDimValue");
    list->addItem(QStringLiteral("some day"));
    list->setCurrentIndex(2); // half a minute
    list->setCurrentIndex(index);
    QCOMPARE(list->currentIndex(), index);
    world.clock += 29'999;
    world.window->timerDone();
    QCOMPARE(world.shown(), 100);
    world.clock += 1;
    world.window->timerDone();
    QCOMPARE(world.shown(), 98);
}

void TestDimPolls::startsAfterTheSettings_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QVector<int>>("delays");
    QTest::newRow("checked") << QByteArray("AutoDim=true\n") << QVector<int>{5000};
    QTest::newRow("not checked") << QByteArray("AutoDim=false\n") << QVector<int>();
}

void TestDimPolls::startsAfterTheSettings()
{
    QFETCH(QByteArray, box);
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\n" + box);
    world.construct();
    QTEST(SingleShots::leftBy([&world] { world.window->delayedApply(); }), "delays");
}

void TestDimPolls::loadingTheSettingsIsActivity()
{
    DimWorld world;
    world.startDimming();
    world.clock += 4800;
    world.window->LoadSettings();
    world.clock += 4800;
    world.window->timerDone();
    QCOMPARE(world.shown(), 100);
    world.clock += 200;
    world.window->timerDone();
    QCOMPARE(world.shown(), 98);
}

void TestDimPolls::resumeIsActivity()
{
    DimWorld world;
    world.startDimming();
    world.clock += 4800;
    world.window->suspendresumeaction();
    world.clock += 4800;
    world.window->timerDone();
    QCOMPARE(world.shown(), 100);
}

void TestDimPolls::applyingIsActivityFromItsBeginning()
{
    DimWorld world;
    world.startDimming();
    world.writeSettings("backlight_on=true\nbrightlevel=50\nAutoDim=true\n");
    bool polled = false;
    QObject::connect(world.get<QSlider>("horizontalSlider"), &QSlider::valueChanged, [&] {
        if (!std::exchange(polled, true)) {
            world.window->timerDone();
        }
    });
    world.clock += 3'600'000;
    world.window->delayedApply();
    QVERIFY(polled);
    QCOMPARE(world.shown(), 50);
}

void TestDimPolls::idleTimeCountsFromTheEndOfApplying()
{
    DimWorld world;
    world.startDimming();
    world.writeSettings("backlight_on=true\nbrightlevel=50\nAutoDim=true\n");
    // A disk that is slow, say.
    QObject::connect(world.get<QSlider>("horizontalSlider"), &QSlider::valueChanged,
                     [&world] { world.clock += 3000; });
    world.window->delayedApply();
    world.clock += 2500;
    world.window->timerDone();
    QCOMPARE(world.shown(), 50);
}

void TestDimPolls::settingsTakeTheDimTextAway()
{
    DimWorld world;
    world.startDimming();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 100% (Auto dim mode)"));
    world.window->delayedApply();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 100%"));
}

void TestDimPolls::everyUserBrightness_data()
{
    QTest::addColumn<int>("brightness");
    for (const int brightness : {0, 1, 2, 3, 4, 5, 51, 100}) {
        QTest::addRow("%d", brightness) << brightness;
    }
}

void TestDimPolls::everyUserBrightness()
{
    QFETCH(int, brightness);
    DimWorld world;
    world.startDimming("brightlevel=" + QByteArray::number(brightness) + '\n');
    const QString word = world.leftWord();
    for (int night = 0; night < 2; ++night) {
        world.clock += 28'800'000; // eight hours
        for (int count = 0; count < 60; ++count) {
            world.poll();
        }
        const bool tiny = brightness == 1 || brightness == 2;
        QCOMPARE(world.shown(), tiny ? brightness : 0);
        QCOMPARE(world.enabled(), brightness <= 2); // by hand only what was not dimmed
        world.pollWithPress(DimWorld::aKey);
        QCOMPARE(world.shown(), brightness);
        QCOMPARE(world.leftWord(), word);
        QVERIFY(world.enabled());
        QCOMPARE(world.stored(SettingKeys::brightLevel), QString::number(brightness));
    }
}

void TestDimPolls::wakeBeforeTheWordsFollowed_data()
{
    QTest::addColumn<bool>("byUnchecking");
    QTest::newRow("by a key") << false;
    QTest::newRow("by unchecking the box") << true;
}

void TestDimPolls::wakeBeforeTheWordsFollowed()
{
    QFETCH(bool, byUnchecking);
    DimWorld world;
    world.startDimming("brightlevel=4\n"); // dark in one poll
    const QString word = world.leftWord();
    world.clock += 5000;
    world.window->timerDone();
    QCOMPARE(world.leftWord(), QStringLiteral("3758108672"));
    if (byUnchecking) {
        world.get<QCheckBox>("CheckBox_AutoDim")->click();
    } else {
        world.platform.presses.set(DimWorld::aKey);
        world.window->timerDone();
    }
    QCOMPARE(world.shown(), 4);
    world.window->brightnessapply(); // sees the value that it saw last
    QCOMPARE(world.leftWord(), word);
}

void TestDimPolls::dimmedMovesAreNotTheUsers()
{
    DimWorld world;
    world.startDimming("brightlevel=80\n");
    world.pollUntilDimmed();
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("80"));
    writeFile(world.settings.settingsIni(), "[settings]\nbrightlevel=7\n");
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 80);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("7")); // not written
    world.get<QSlider>("horizontalSlider")->setValue(60);                  // now they are again
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("60"));
}

void TestDimPolls::everyPollAsksOnce()
{
    DimWorld world;
    world.startDimming();
    const int before = world.platform.polls;
    for (int count = 1; count <= 100; ++count) {
        world.clock += 100;
        world.window->timerDone();
        QCOMPARE(world.platform.polls, before + count);
    }
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    world.window->timerDone();
    QCOMPARE(world.platform.polls, before + 101);
}

void TestDimPolls::inputIsTimedAfresh()
{
    DimWorld world;
    world.clock = (qint64{5} << 32) - 3000; // three seconds before the low 32 bits wrap
    world.startDimming();
    world.clock += 4000;
    world.platform.whilePolled = [&world] {
        world.clock += 60;
    };
    world.pollWithPress(DimWorld::aKey);
    world.platform.whilePolled = nullptr;
    world.clock += 4900 - 1; // since the keys were read, not since the poll began
    world.poll();
    QCOMPARE(world.shown(), 100);
    world.clock += 1 - 100;
    world.poll();
    QCOMPARE(world.shown(), 98);
}

void TestDimPolls::pollTimerRuns()
{
    DimWorld world;
    world.serveDimming();
    QTRY_VERIFY_WITH_TIMEOUT(world.platform.polls >= 5, 1500);
    world.clock += 5000;
    QTRY_COMPARE(world.shown(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(world.leftWord(), QStringLiteral("4026531840"), 1000);
    world.platform.presses.set(DimWorld::aKey);
    QTRY_COMPARE_WITH_TIMEOUT(world.shown(), 100, 1000);
    QTRY_COMPARE_WITH_TIMEOUT(world.leftWord(), QStringLiteral("4026597120"), 1000);
}

void TestDimPolls::hiddenWindow()
{
    DimWorld world;
    world.startDimming();
    world.window->show();
    world.window->hide();
    world.pollUntilDimmed();
    QVERIFY(!world.window->isVisible());
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 100);
    QVERIFY(!world.window->isVisible());
}

QTEST_MAIN(TestDimPolls)
#include "tst_dimpolls.moc"
