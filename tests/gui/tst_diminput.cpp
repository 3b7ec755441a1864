#include "dimworld.h"

#include <QAbstractEventDispatcher>

class TestDimInput : public QObject
{
    Q_OBJECT

private slots:
    void mouseButtons_data();
    void mouseButtons();
    void mouseBoxIsReadByEveryPoll();
    void openingThePickerCounts();
    void effectStopsAfterTheInputWasNoted();
    void effectWhileDimmed();
    void uncheckingWhileDimmed();
    void uncheckingWhileDimming();
    void uncheckingBeforeThePollsStart();
    void shorterIdleTimeAtOnce();
    void userDarkens();
    void backlightOffWhileDimmed();
    void resumeWakes();
    void unlockingWakes();
    void settingsAppliedWhileDimmedUnderAnEffect();
};

void TestDimInput::mouseButtons_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("boxChecked");
    QTest::addColumn<bool>("counts");
    for (int code = 0; code <= 8; ++code) {
        const bool button = code >= 1 && code <= 6;
        QTest::addRow("%d without the box", code) << code << false << !button;
        QTest::addRow("%d with the box", code) << code << true << true;
    }
    QTest::newRow("last code") << 253 << false << true;
}

void TestDimInput::mouseButtons()
{
    QFETCH(int, code);
    QFETCH(bool, boxChecked);
    QFETCH(bool, counts);
    DimWorld world;
    world.startDimming();
    world.get<QCheckBox>("touch_mouse_wake")->setChecked(boxChecked);
    world.clock += 4800;
    world.pollWithPress(static_cast<std::size_t>(code)); // delays dimming, or not
    world.poll();
    QCOMPARE(world.shown(), counts ? 100 : 98);
    world.pollUntilDimmed();
    world.pollWithPress(static_cast<std::size_t>(code)); // wakes, or not
    QCOMPARE(world.shown(), counts ? 100 : 0);
}

void TestDimInput::mouseBoxIsReadByEveryPoll()
{
    DimWorld world;
    world.startDimming();
    world.pollUntilDimmed();
    auto *const box = world.get<QCheckBox>("touch_mouse_wake");
    world.pollWithPress(DimWorld::leftButton);
    QCOMPARE(world.shown(), 0);
    box->click();
    world.poll(); // the press before is gone
    QCOMPARE(world.shown(), 0);
    world.pollWithPress(DimWorld::leftButton);
    QCOMPARE(world.shown(), 100);
}

void TestDimInput::openingThePickerCounts()
{
    DimWorld world;
    world.startDimming();
    world.clock += 4900;
    world.get<QAbstractButton>("colorpick1")->click();
    world.clock += 4900 - 1;
    world.poll();
    QCOMPARE(world.shown(), 100);
    world.poll();
    QCOMPARE(world.shown(), 98);
}

void TestDimInput::effectStopsAfterTheInputWasNoted()
{
    DimWorld world;
    world.startDimming();
    auto *const effect = world.get<QComboBox>("Combo_Effect");
    effect->setCurrentIndex(3);
    const QString shownThen = world.label();
    world.clock += 3'600'000;
    for (int count = 0; count < 10; ++count) {
        world.poll();
    }
    QCOMPARE(world.shown(), 100);
    QCOMPARE(world.label(), shownThen);
    world.pollWithPress(DimWorld::aKey);
    effect->setCurrentIndex(0);
    world.poll();
    QCOMPARE(world.shown(), 100); // the key has counted
    world.clock += 4900;
    world.poll();
    QCOMPARE(world.shown(), 98);
}

void TestDimInput::effectWhileDimmed()
{
    DimWorld world;
    world.serveDimming();
    world.pollUntilDimmed();
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 0); // stays where it is
    QCOMPARE(world.readLine(),
             QStringLiteral("3758108672,3758108672,3758108672,3758108672,268607488"));
    QVERIFY(!world.wakePending());
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(0);
    world.poll();
    QCOMPARE(world.shown(), 100);
    QVERIFY(world.wakePending());
}

void TestDimInput::uncheckingWhileDimmed()
{
    DimWorld world;
    world.serveDimming();
    world.pollUntilDimmed();
    world.get<QCheckBox>("CheckBox_AutoDim")->click();
    QCOMPARE(world.shown(), 100);
    QVERIFY(world.enabled());
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 100%"));
    QVERIFY(!world.wakePending());
    const int pollsThen = world.platform.polls;
    world.clock += 3'600'000;
    QTest::qWait(300);
    QCOMPARE(world.platform.polls, pollsThen);
    QCOMPARE(world.shown(), 100);
}

void TestDimInput::uncheckingWhileDimming()
{
    DimWorld world;
    world.startDimming("brightlevel=71\n");
    world.clock += 5000;
    world.poll();
    world.poll();
    QCOMPARE(world.shown(), 67);
    world.get<QCheckBox>("CheckBox_AutoDim")->click();
    QCOMPARE(world.shown(), 71);
    world.get<QSlider>("horizontalSlider")->setValue(20); // the user's from here on
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("20"));
}

void TestDimInput::uncheckingBeforeThePollsStart()
{
    DimWorld world;
    world.writeSettings("backlight_on=true\nAutoDim=true\n");
    world.construct();
    auto *const box = world.get<QCheckBox>("CheckBox_AutoDim");
    QTRY_VERIFY(box->isChecked());
    box->click();
    QTest::qWait(5500); // they would have started five seconds after the settings were applied
    QCOMPARE(world.platform.polls, 0);
}

void TestDimInput::shorterIdleTimeAtOnce()
{
    DimWorld world;
    world.startDimming("brightlevel=100\ndimtimer=8\n");
    world.clock += 60'000;
    world.poll();
    QCOMPARE(world.shown(), 100);
    world.get<QComboBox>("comboDimValue")->setCurrentIndex(2);
    world.poll();
    QCOMPARE(world.shown(), 98);
}

void TestDimInput::userDarkens()
{
    DimWorld world;
    world.startDimming();
    world.get<QSlider>("horizontalSlider")->setValue(0);
    world.clock += 5000;
    world.poll();
    QCOMPARE(world.label(), QStringLiteral("Brightness Level: 0% (dimmed)"));
    QVERIFY(world.enabled()); // the user can bring it back by hand
    QCOMPARE(world.leftWord(), QStringLiteral("4026531840"));
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 0);
}

void TestDimInput::backlightOffWhileDimmed()
{
    DimWorld world;
    world.serveDimming();
    world.pollUntilDimmed();
    world.get<QAbstractButton>("backlight_off")->click();
    QCOMPARE(world.readLine(), DimWorldLines::dark);
    world.pollWithPress(DimWorld::aKey);
    QCOMPARE(world.shown(), 100);
    QVERIFY(world.wakePending());
    QCOMPARE(world.readLine(), DimWorldLines::dark); // off stays off
    QVERIFY(world.wakePending());
    world.get<QAbstractButton>("backlight_on")->click();
    for (const QString &line : {DimWorldLines::wake, DimWorldLines::wake, DimWorldLines::red}) {
        QCOMPARE(world.readLine(), line);
    }
}

void TestDimInput::resumeWakes()
{
    DimWorld world;
    world.startDimming();
    world.pollUntilDimmed();
    world.window->suspendresumeaction();
    world.poll();
    QCOMPARE(world.shown(), 100);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("100"));
}

/// As after a resume: no poll is there to tell that the slider is the user's again.
void TestDimInput::unlockingWakes()
{
    DimWorld world;
    world.startDimming();
    world.pollUntilDimmed();
    long result = 0;
    const auto send = [&result](const QByteArray &type) {
        return QAbstractEventDispatcher::instance()->filterNativeEvent(type, &result, &result);
    };
    send("locked");
    world.poll();
    QCOMPARE(world.shown(), 0);
    QVERIFY(!send("unlocked")); // others may want it, too
    world.poll();
    QCOMPARE(world.shown(), 100);
    QVERIFY(world.wakePending());
}

void TestDimInput::settingsAppliedWhileDimmedUnderAnEffect()
{
    DimWorld world;
    world.startDimming();
    world.pollUntilDimmed();
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(3);
    world.window->delayedApply();
    QCOMPARE(world.shown(), 100);
    world.get<QSlider>("horizontalSlider")->setValue(60);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("60"));
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(0);
    world.poll();
    QCOMPARE(world.shown(), 60);
}

QTEST_MAIN(TestDimInput)
#include "tst_diminput.moc"
