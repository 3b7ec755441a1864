#include "lighting/effects.h"
#include "tests/support/effectwidgets.h"
#include "tests/support/pictures.h"
#include "tests/support/testwindow.h"

#include <QComboBox>
#include <QLabel>
#include <QPixmap>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

namespace {

constexpr std::array lightingControls{"horizontalSlider", "tabWidget_2", "Combo_Effect",
                                      "CheckBox_AutoDim", "comboDimValue"};

} // namespace

class TestLighting : public QObject
{
    Q_OBJECT

private slots:
    void getColour();
    void zoneKinds_data();
    void zoneKinds();
    void stripeTintTakesMaskedChannels_data();
    void stripeTintTakesMaskedChannels();
    void unknownKindsChangeNothing();
    void sliderIsStoredAndAppliedLater();
    void sliderWhileOff();
    void sliderWhileLoadingAgain();
    void autoDimBoxShowsItsState();
    void brightnessTimerRuns();
    void off();
    void onAgain();
    void clicksThatLeaveTheButtonUncheckedStoreNothing();
    void loadingHandlersOnlyShow();
    void effects_data();
    void effects();
    void backToNoEffect_data();
    void backToNoEffect();
    void unknownEffectIsOnlyStored();
    void effectWhileLoading();
    void resume_data();
    void resume();

private:
    static void startWithColours(TestWindow &world)
    {
        world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
                            "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=10 20 30\n");
        writePictures();
        world.start();
    }
    static QString words(const MainWindow &window)
    {
        const LightingState &state = window.lightingState();
        QStringList hex;
        for (const QString &word :
             {state.leftWord, state.centreWord, state.rightWord, state.stripeWord}) {
            hex << QString::number(word.toUInt(), 16);
        }
        return hex.join(QLatin1Char(' '));
    }
};

void TestLighting::getColour()
{
    TestWindow world;
    MainWindow &window = world.construct();
    uint word = 0;
    QVERIFY(QMetaObject::invokeMethod(&window, "GetColour", Q_RETURN_ARG(uint, word),
                                      Q_ARG(byte, 1), Q_ARG(byte, 2), Q_ARG(byte, 3),
                                      Q_ARG(Zone, Zone::Right)));
    QCOMPARE(word, 0xF2030102U);
    QCOMPARE(window.GetColour(255, 0, 0, Zone::Left), 4026597120U);
}

void TestLighting::zoneKinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("singleStored");
    QTest::addColumn<QString>("tints"); // left, centre, right, full, stripe
    const auto row = [](const char *name, int kind, const char *words, const char *single,
                        const char *tints) {
        QTest::newRow(name) << kind << QString::fromLatin1(words) << QString::fromLatin1(single)
                            << QString::fromLatin1(tints);
    };
    row("left", 1, "f0321464 f10000ff f2ff0000 f31e0a14", "false",
        "1e146432 1e00ff00 1e0000ff 0 1e0a141e");
    row("centre", 2, "f000ff00 f1321464 f2ff0000 f31e0a14", "false",
        "1eff0000 1e146432 1e0000ff 0 1e0a141e");
    row("right", 3, "f000ff00 f10000ff f2321464 f31e0a14", "false",
        "1eff0000 1e00ff00 1e146432 0 1e0a141e");
    row("all", 4, "f0321464 f1321464 f2321464 f31e0a14", "true",
        "1e146432 1e146432 1e146432 1e146432 1e0a141e");
    row("stripe", 5, "f000ff00 f10000ff f2ff0000 f3321464", "(none)",
        "1eff0000 1e00ff00 1e0000ff 0 1e146432");
}

void TestLighting::zoneKinds()
{
    QFETCH(int, kind);
    QFETCH(QString, tints);
    TestWindow world;
    startWithColours(world);
    world.window->SetZoneColor(kind, QStringLiteral("20 100 50"));
    QTEST(words(*world.window), "words");
    QTEST(world.stored(SettingKeys::singleColourLast), "singleStored");
    QCOMPARE(world.window->lightingState().singleColorSelected, kind == 4);

    // Premultiplied pictures hold a colour of alpha 30 to within a few steps.
    const QStringList expected = tints.split(QLatin1Char(' '));
    const std::array labels{"keyboard_left", "keyboard_center", "keyboard_right", "keyboard_full",
                            "stripe_led"};
    QCOMPARE(expected.size(), static_cast<int>(labels.size()));
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const QColor got = shownColour(*world.get<QLabel>(labels.at(i)));
        const auto want = QColor::fromRgba(expected.at(static_cast<int>(i)).toUInt(nullptr, 16));
        QCOMPARE(got.alpha(), want.alpha());
        QVERIFY(want.alpha() == 0 || qAbs(got.red() - want.red()) <= 8);
        QVERIFY(want.alpha() == 0 || qAbs(got.green() - want.green()) <= 8);
        QVERIFY(want.alpha() == 0 || qAbs(got.blue() - want.blue()) <= 8);
    }
}

void TestLighting::stripeTintTakesMaskedChannels_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QColor>("tint");
    QTest::newRow("above 255") << QStringLiteral("300 128 255") << QColor(44, 128, 255, 30);
    QTest::newRow("negative") << QStringLiteral("-1 128 255") << QColor(0, 128, 255, 30);
}

/// The stripe's picture shows what its word holds, other than those of the keyboard.
void TestLighting::stripeTintTakesMaskedChannels()
{
    QFETCH(QString, colour);
    QFETCH(QColor, tint);
    TestWindow world;
    startWithColours(world);
    world.window->SetZoneColor(5, colour);
    const QColor shown = shownColour(*world.get<QLabel>("stripe_led"));
    QCOMPARE(shown.alpha(), tint.alpha());
    QVERIFY(qAbs(shown.red() - tint.red()) <= 8);
    QVERIFY(qAbs(shown.green() - tint.green()) <= 8);
    QVERIFY(qAbs(shown.blue() - tint.blue()) <= 8);
}

void TestLighting::unknownKindsChangeNothing()
{
    TestWindow world;
    startWithColours(world);
    const QString before = words(*world.window);
    for (const int kind : {-1, 0, 6, 100}) {
        world.window->SetZoneColor(kind, QStringLiteral("1 1 1"));
    }
    QCOMPARE(words(*world.window), before);
    QCOMPARE(world.stored(SettingKeys::singleColourLast), QStringLiteral("(none)"));
}

void TestLighting::sliderIsStoredAndAppliedLater()
{
    TestWindow world;
    startWithColours(world);
    world.window->brightnessapply(); // the first one after start
    world.window->show();
    auto *const slider = world.get<QSlider>("horizontalSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(slider->value(), 99);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("99"));
    QCOMPARE(world.get<QLabel>("label_2")->text(), QStringLiteral("Brightness Level: 99%"));
    QCOMPARE(words(*world.window), QStringLiteral("f000ff00 f10000ff f2ff0000 f31e0a14"));
    world.window->brightnessapply();
    QCOMPARE(words(*world.window), QStringLiteral("f000fc00 f10000fc f2fc0000 f31d0913"));

    slider->setValue(0);
    world.window->brightnessapply();
    QCOMPARE(words(*world.window), QStringLiteral("f0000000 f1000000 f2000000 f3000000"));
}

void TestLighting::sliderWhileOff()
{
    TestWindow world;
    startWithColours(world);
    world.get<QRadioButton>("backlight_off")->click();
    const QString black = words(*world.window);
    world.get<QSlider>("horizontalSlider")->setValue(30);
    world.window->brightnessapply();
    QCOMPARE(words(*world.window), black);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("30"));
    // Skipped, but remembered: switching on applies the colours at the new brightness.
    world.get<QRadioButton>("backlight_on")->click();
    QCOMPARE(words(*world.window), QStringLiteral("f0004c00 f100004c f24c0000 f3000000"));
    world.window->brightnessapply(); // nothing left to apply: the stripe stays black
    QCOMPARE(words(*world.window), QStringLiteral("f0004c00 f100004c f24c0000 f3000000"));
}

void TestLighting::sliderWhileLoadingAgain()
{
    TestWindow world;
    startWithColours(world);
    const QString before = words(*world.window);
    world.window->LoadSettings();
    const QString loading = words(*world.window);
    QVERIFY(loading != before);
    world.get<QSlider>("horizontalSlider")->setValue(50);
    world.window->brightnessapply();
    QCOMPARE(words(*world.window), loading);
}

void TestLighting::autoDimBoxShowsItsState()
{
    TestWindow world;
    startWithColours(world);
    world.get<QSlider>("horizontalSlider")->setValue(60);
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("60"));
    auto *const box = world.get<QAbstractButton>("CheckBox_AutoDim");
    box->click();
    QCOMPARE(world.get<QLabel>("label_2")->text(),
             QStringLiteral("Brightness Level: 60% (Auto dim mode)"));
    box->click();
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 60);
    QCOMPARE(world.get<QLabel>("label_2")->text(), QStringLiteral("Brightness Level: 60%"));
}

void TestLighting::brightnessTimerRuns()
{
    TestWindow world;
    startWithColours(world);
    world.get<QSlider>("horizontalSlider")->setValue(50);
    QTRY_COMPARE_WITH_TIMEOUT(words(*world.window),
                              QStringLiteral("f0007f00 f100007f f27f0000 f30f050a"), 500);
}

void TestLighting::off()
{
    TestWindow world;
    startWithColours(world);
    world.window->show();
    auto *const button = world.get<QRadioButton>("backlight_off");
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    QVERIFY(button->isChecked());
    QCOMPARE(words(*world.window), QStringLiteral("f0000000 f1000000 f2000000 f3000000"));
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("false"));
    QCOMPARE(world.stored(SettingKeys::backlightOff), QStringLiteral("true"));
    for (const char *name : lightingControls) {
        QVERIFY2(!world.get<QWidget>(name)->isEnabled(), name);
    }
}

void TestLighting::onAgain()
{
    TestWindow world;
    startWithColours(world);
    world.window->brightnessapply();
    world.readLine(); // the two wake lines of the start
    world.readLine();
    world.get<QRadioButton>("backlight_off")->click();
    QVERIFY(!world.window->wakeSequence().wakePending);
    world.window->show();
    auto *const button = world.get<QRadioButton>("backlight_on");
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    QVERIFY(world.window->wakeSequence().wakePending);
    // The stripe stays black until the slider moves.
    QCOMPARE(words(*world.window), QStringLiteral("f000ff00 f10000ff f2ff0000 f3000000"));
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("true"));
    QCOMPARE(world.stored(SettingKeys::backlightOff), QStringLiteral("false"));
    for (const char *name : lightingControls) {
        QVERIFY2(world.get<QWidget>(name)->isEnabled(), name);
    }
    world.get<QSlider>("horizontalSlider")->setValue(50);
    world.window->brightnessapply();
    QCOMPARE(words(*world.window), QStringLiteral("f0007f00 f100007f f27f0000 f30f050a"));
}

void TestLighting::clicksThatLeaveTheButtonUncheckedStoreNothing()
{
    TestWindow world;
    startWithColours(world);
    const QString before = words(*world.window);
    world.window->on_backlight_off_clicked(); // backlight_off is not checked
    QCOMPARE(words(*world.window), before);
    QCOMPARE(world.stored(SettingKeys::backlightOff), QStringLiteral("(none)"));
    QVERIFY(!world.get<QWidget>("tabWidget_2")->isEnabled());
    world.window->on_backlight_on_clicked();
    QVERIFY(world.get<QWidget>("tabWidget_2")->isEnabled());

    world.get<QRadioButton>("backlight_off")->click();
    const QString black = words(*world.window);
    world.window->on_backlight_on_clicked(); // backlight_on is not checked
    QCOMPARE(words(*world.window), black);
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("false"));
    QVERIFY(world.get<QWidget>("tabWidget_2")->isEnabled());
}

void TestLighting::loadingHandlersOnlyShow()
{
    TestWindow world;
    MainWindow &window = world.construct();
    const QString before = words(window);
    world.get<QRadioButton>("backlight_off")->click();
    QCOMPARE(words(window), before);
    QCOMPARE(world.stored(SettingKeys::backlightOff), QStringLiteral("(none)"));
    QVERIFY(!world.get<QWidget>("Combo_Effect")->isEnabled());
    world.get<QRadioButton>("backlight_on")->click();
    QCOMPARE(words(window), before);
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("(none)"));
    QVERIFY(world.get<QWidget>("Combo_Effect")->isEnabled());
    window.SetZoneColor(4, QStringLiteral("1 2 3"));
    QCOMPARE(world.stored(SettingKeys::singleColourLast), QStringLiteral("(none)"));
    QVERIFY(!window.lightingState().singleColorSelected);
}

void TestLighting::effects_data()
{
    QTest::addColumn<int>("index");
    for (int i = 1; i < 8; ++i) {
        QTest::newRow(::effects.at(static_cast<std::size_t>(i)).name) << i;
    }
}

void TestLighting::effects()
{
    QFETCH(int, index);
    TestWindow world;
    startWithColours(world);
    world.window->show();
    const QString before = words(*world.window);
    auto *const list = world.get<QComboBox>("Combo_Effect");
    list->setFocus();
    for (int i = 0; i < index; ++i) {
        QTest::keyClick(list, Qt::Key_Down);
    }
    QCOMPARE(list->currentText(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(world.window->lightingState().effectWord,
             QString::number(::effects.at(static_cast<std::size_t>(index)).word));
    QCOMPARE(words(*world.window), before);
    QCOMPARE(world.stored(SettingKeys::effects), QString::number(index));
    QCOMPARE(world.get<QLabel>("label_2")->text(),
             QStringLiteral("Brightness Level: 100% (disabled for Effects)"));
    for (const char *name : {"horizontalSlider", "CheckBox_AutoDim", "comboDimValue"}) {
        QVERIFY2(!world.get<QWidget>(name)->isEnabled(), name);
    }
    for (const char *name : EffectWidgets::hidden) {
        QVERIFY2(world.get<QWidget>(name)->isHidden(), name);
    }
    for (const char *name : EffectWidgets::notes) {
        QVERIFY2(!world.get<QWidget>(name)->isHidden(), name);
    }
}

void TestLighting::backToNoEffect_data()
{
    QTest::addColumn<bool>("single");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("words");
    QTest::newRow("zones") << false << 1 << QStringLiteral("f000ff00 f10000ff f2ff0000 f31e0a14");
    QTest::newRow("single") << true << 0 << QStringLiteral("f0030102 f1030102 f2030102 f31e0a14");
}

void TestLighting::backToNoEffect()
{
    QFETCH(bool, single);
    TestWindow world;
    startWithColours(world);
    if (single) {
        world.get<QAbstractButton>("colorpick4")->click();
        world.window->updateColorRGB(QStringLiteral("1 2 3"));
        world.get<QAbstractButton>("pushButton")->click();
    }
    auto *const list = world.get<QComboBox>("Combo_Effect");
    list->setCurrentIndex(3);
    world.get<QTabWidget>("tabWidget_2")->setCurrentIndex(single ? 1 : 0);
    list->setCurrentIndex(0);
    QCOMPARE(world.window->lightingState().effectWord, QStringLiteral("0"));
    QTEST(world.get<QTabWidget>("tabWidget_2")->currentIndex(), "page");
    QTEST(words(*world.window), "words");
    QCOMPARE(world.get<QLabel>("label_2")->text(), QStringLiteral("Brightness Level: 100%"));
    for (const char *name : {"horizontalSlider", "CheckBox_AutoDim", "comboDimValue"}) {
        QVERIFY2(world.get<QWidget>(name)->isEnabled(), name);
    }
    for (const char *name : EffectWidgets::hidden) {
        QVERIFY2(!world.get<QWidget>(name)->isHidden(), name);
    }
    for (const char *name : EffectWidgets::notes) {
        QVERIFY2(world.get<QWidget>(name)->isHidden(), name);
    }
}

void TestLighting::unknownEffectIsOnlyStored()
{
    TestWindow world;
    startWithColours(world);
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(2);
    for (const int index : {8, 100}) {
        world.window->on_Combo_Effect_currentIndexChanged(index);
        QCOMPARE(world.window->lightingState().effectWord, QStringLiteral("855703552"));
        QCOMPARE(world.stored(SettingKeys::effects), QString::number(index));
    }
}

void TestLighting::effectWhileLoading()
{
    TestWindow world;
    MainWindow &window = world.construct();
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(5);
    QCOMPARE(window.lightingState().effectWord, QStringLiteral("0"));
    QCOMPARE(world.stored(SettingKeys::effects), QStringLiteral("5"));
    QVERIFY(!world.get<QWidget>("label_13")->isHidden());
}

void TestLighting::resume_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestLighting::resume()
{
    QFETCH(bool, on);
    TestWindow world;
    startWithColours(world);
    world.readLine(); // the two wake lines of the start
    world.readLine();
    if (!on) {
        world.get<QRadioButton>("backlight_off")->click();
    }
    QVERIFY(!world.window->wakeSequence().wakePending);
    world.window->suspendresumeaction();
    QCOMPARE(words(*world.window), QStringLiteral("f0000000 f1000000 f2000000 f3000000"));
    QCOMPARE(world.window->wakeSequence().wakePending, on);
    QTRY_COMPARE_WITH_TIMEOUT(words(*world.window),
                              QStringLiteral("f000ff00 f10000ff f2ff0000 f31e0a14"), 3000);
}

QTEST_MAIN(TestLighting)
#include "tst_lighting.moc"
