#include "lighting/devicewords.h"
#include "tests/support/singleshots.h"
#include "tests/support/testwindow.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

/// What is applied of the settings a second after they were loaded, and what is seen until then.
class TestSettingsApplied : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsAppliedBeforeTheDelay();
    void applicationFollowsASecondLater();
    void applicationWaitsASecond_data();
    void applicationWaitsASecond();
    void effectIsAppliedAfterLoading();
    void brightnessOfALoadingTickIsAppliedLater();
    void wordsWhileLoading();
    void wordWhileApplying();
    void applyingRaisesAWake_data();
    void applyingRaisesAWake();
};

void TestSettingsApplied::nothingIsAppliedBeforeTheDelay()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=40\nZone1Color=255 0 0\n");
    MainWindow &window = world.construct();
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 100);
    QCOMPARE(window.lightingState().leftWord, QStringLiteral("3758616583"));
}

void TestSettingsApplied::applicationFollowsASecondLater()
{
    TestWindow world;
    world.writeSettings("brightlevel=40\n");
    QElapsedTimer sinceBefore;
    sinceBefore.start();
    world.construct();
    auto *const slider = world.get<QSlider>("horizontalSlider");
    QCOMPARE(slider->value(), 100);
    const QSignalSpy moves(slider, SIGNAL(valueChanged(int)));
    QTRY_COMPARE(moves.size(), 1);
    QVERIFY(sinceBefore.elapsed() >= 1000);
    QCOMPARE(slider->value(), 40);
}

void TestSettingsApplied::applicationWaitsASecond_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("waiting");
    QTest::newRow("own lighting") << QByteArray() << 1;
    QTest::newRow("per-key mode") << QByteArray("PerKey=true\n") << 0;
}

void TestSettingsApplied::applicationWaitsASecond()
{
    QFETCH(QByteArray, settings);
    TestWindow world;
    world.writeSettings(settings);
    world.construct();
    const auto load = [&world] {
        world.window->LoadSettings();
    };
    QTEST(SingleShots::leftBy(load).count(1000), "waiting");
}

void TestSettingsApplied::effectIsAppliedAfterLoading()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\neffects=1\nZone1Color=255 0 0\n");
    MainWindow &window = world.start();
    QCOMPARE(window.lightingState().effectWord, QStringLiteral("268607488"));
    QCOMPARE(window.lightingState().leftWord, QStringLiteral("4026597120"));
    QCOMPARE(world.stored(SettingKeys::effects), QStringLiteral("1"));
    QVERIFY(!world.get<QSlider>("horizontalSlider")->isEnabled());
}

void TestSettingsApplied::brightnessOfALoadingTickIsAppliedLater()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=50\nZone1Color=200 100 50\n");
    MainWindow &window = world.construct();
    window.brightnessapply(); // at 100, as the form has it
    window.delayedApply();
    QCOMPARE(window.lightingState().leftWord, wordText(0xF0196432));
    world.get<QSlider>("horizontalSlider")->setValue(100);
    window.brightnessapply();
    QCOMPARE(window.lightingState().leftWord, wordText(0xF032C864));
}

void TestSettingsApplied::wordsWhileLoading()
{
    TestWindow world;
    const LightingState &state = world.construct().lightingState();
    QCOMPARE(state.stripeWord, QStringLiteral("4076863488"));
    QCOMPARE(state.centreWord, QStringLiteral("4093640951"));
    QCOMPARE(state.leftWord, QStringLiteral("3758616583"));
}

/// Whoever looks before the colours have come sees that they are about to.
void TestSettingsApplied::wordWhileApplying()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=50\n");
    MainWindow &window = world.construct();
    QString meanwhile;
    connect(world.get<QSlider>("horizontalSlider"), &QSlider::valueChanged, &window,
            [&] { meanwhile = window.lightingState().centreWord; });
    window.delayedApply();
    QCOMPARE(meanwhile, QStringLiteral("4093640959"));
}

void TestSettingsApplied::applyingRaisesAWake_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestSettingsApplied::applyingRaisesAWake()
{
    QFETCH(bool, on);
    TestWindow world;
    world.writeSettings(on ? "backlight_on=true\nbrightlevel=100\n" : "backlight_on=false\n");
    MainWindow &window = world.construct();
    world.readLine();
    world.readLine();
    QVERIFY(!window.wakeSequence().wakePending);
    window.delayedApply();
    QCOMPARE(window.wakeSequence().wakePending, on);
}

QTEST_MAIN(TestSettingsApplied)
#include "tst_settingsapplied.moc"
