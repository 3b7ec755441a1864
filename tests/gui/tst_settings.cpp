#include "lighting/devicewords.h"
#include "tests/support/testwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

Q_DECLARE_METATYPE(SettingKey)

namespace {

constexpr std::array lightingControls{"horizontalSlider", "tabWidget_2", "Combo_Effect",
                                      "CheckBox_AutoDim", "comboDimValue"};

/// Repeating timers of the window that run with this period.
int runningTimers(const MainWindow &window, int periodMs)
{
    int count = 0;
    for (const QTimer *timer : window.findChildren<QTimer *>()) {
        count += timer->isActive() && timer->interval() == periodMs ? 1 : 0;
    }
    return count;
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void firstStart();
    void checkBoxesLoad_data();
    void checkBoxesLoad();
    void checkBoxesStore_data();
    void checkBoxesStore();
    void backlightLoads_data();
    void backlightLoads();
    void brightnessLoads_data();
    void brightnessLoads();
    void listsLoad_data();
    void listsLoad();
    void zonesLoad();
    void singleColourLoads();
    void singleColourSurvivesABrightnessChange();
    void stripeLoads();
    void loadingStoresNoChoice();
    void perKeyModeNeverApplies();
    void companionTimerStartsWithTheApplication();
    void dimDelayIsStored();
    void loadedBrightnessIsTheUsers();
    void loadingAgainStoresNoClick();
    void autoDimStartsFiveSecondsLater();
    void badFiles_data();
    void badFiles();
    void hugeGeometry();
};

void TestSettings::firstStart()
{
    TestWindow world;
    MainWindow &window = world.start();
    QVERIFY(world.get<QRadioButton>("backlight_off")->isChecked());
    QVERIFY(!world.get<QRadioButton>("backlight_on")->isChecked());
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 0);
    QCOMPARE(world.get<QLabel>("label_2")->text(), QStringLiteral("Brightness Level: 0%"));
    QCOMPARE(world.get<QComboBox>("Combo_Effect")->currentIndex(), 0);
    QCOMPARE(world.get<QComboBox>("comboDimValue")->currentIndex(), 0);
    QVERIFY(!world.get<QCheckBox>("CheckBox_AutoDim")->isChecked());
    QVERIFY(window.lightingState().leftZoneColor.isEmpty());
    QVERIFY(window.lightingState().centerZoneColor.isEmpty());
    QVERIFY(window.lightingState().rightZoneColor.isEmpty());
    QVERIFY(window.lightingState().stripeLidColor.isEmpty());
    QCOMPARE(world.get<QTabWidget>("tabWidget_2")->currentIndex(), 1);

    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(window.size(), QSize(630, 630));
    QVERIFY((window.geometry().center() - screen.center()).manhattanLength() <= 2);
}

void TestSettings::checkBoxesLoad_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("box");
    QTest::addColumn<bool>("checked");
    const auto row = [](const char *line, const char *box, bool checked) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(box) << checked;
    };
    row("minimize_close=true", "Check_CloseHides", true);
    row("minimize_close=false", "Check_CloseHides", false);
    row("P751LEDStripe=true", "StartHidden_2", true);
    row("start_hidden=1", "StartHidden", true);
    row("start_hidden=0", "StartHidden", false);
    row("start_hidden=true", "StartHidden", true);
    row("touchwake=true", "touch_mouse_wake", true);
    row("AutoDim=true", "CheckBox_AutoDim", true);
    row("AutoDim=nonsense", "CheckBox_AutoDim", true); // any text but "false" and "0" is true to Qt
    row("AutoDim=0", "CheckBox_AutoDim", false);
}

void TestSettings::checkBoxesLoad()
{
    QFETCH(QString, line);
    QFETCH(QString, box);
    TestWindow world;
    world.writeSettings(line.toLatin1() + '\n');
    world.start();
    QTEST(world.get<QCheckBox>(qPrintable(box))->isChecked(), "checked");
}

void TestSettings::checkBoxesStore_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<SettingKey>("key");
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("off");
    const auto row = [](const char *box, const SettingKey &key, const char *on, const char *off) {
        QTest::newRow(box) << QString::fromLatin1(box) << key << QString::fromLatin1(on)
                           << QString::fromLatin1(off);
    };
    row("StartHidden", SettingKeys::startHidden, "1", "0");
    row("Check_CloseHides", SettingKeys::minimizeClose, "true", "false");
    row("touch_mouse_wake", SettingKeys::touchWake, "true", "false");
    row("StartHidden_2", SettingKeys::stripeOption, "true", "false");
    row("CheckBox_AutoDim", SettingKeys::autoDim, "true", "false");
}

void TestSettings::checkBoxesStore()
{
    QFETCH(QString, box);
    QFETCH(SettingKey, key);
    TestWindow world;
    world.writeSettings("backlight_on=true\n");
    world.start().show();
    auto *const check = world.get<QCheckBox>(qPrintable(box));
    QTest::mouseClick(check, Qt::LeftButton, {}, {8, check->height() / 2});
    QTEST(world.stored(key), "on");
    QTest::mouseClick(check, Qt::LeftButton, {}, {8, check->height() / 2});
    QTEST(world.stored(key), "off");
}

void TestSettings::backlightLoads_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestSettings::backlightLoads()
{
    QFETCH(bool, on);
    TestWindow world;
    world.writeSettings(on ? "backlight_on=true\n" : "backlight_on=false\nbacklight_off=false\n");
    world.start();
    QCOMPARE(world.get<QRadioButton>("backlight_on")->isChecked(), on);
    QCOMPARE(world.get<QRadioButton>("backlight_off")->isChecked(), !on);
    for (const char *name : lightingControls) {
        QCOMPARE(world.get<QWidget>(name)->isEnabled(), on);
    }
}

void TestSettings::brightnessLoads_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("shown");
    QTest::newRow("73") << QStringLiteral("73") << 73;
    QTest::newRow("100") << QStringLiteral("100") << 100;
    QTest::newRow("too much") << QStringLiteral("500") << 100;
    QTest::newRow("too little") << QStringLiteral("-3") << 0;
    QTest::newRow("no number") << QStringLiteral("bright") << 0;
    QTest::newRow("empty") << QString() << 0;
}

void TestSettings::brightnessLoads()
{
    QFETCH(QString, stored);
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=" + stored.toLatin1() + '\n');
    world.start();
    auto *const slider = world.get<QSlider>("horizontalSlider");
    QTEST(slider->value(), "shown");
    QCOMPARE(world.get<QLabel>("label_2")->text(),
             QStringLiteral("Brightness Level: %1%").arg(slider->value()));
}

void TestSettings::listsLoad_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    const auto row = [](const char *list, const char *key, const char *stored, int index) {
        QTest::newRow(qPrintable(
            QStringLiteral("%1 %2").arg(QString::fromLatin1(key), QString::fromLatin1(stored))))
            << QString::fromLatin1(list) << QString::fromLatin1(key) << QString::fromLatin1(stored)
            << index;
    };
    row("comboDimValue", "dimtimer", "8", 8);
    row("comboDimValue", "dimtimer", "9", 0);
    row("comboDimValue", "dimtimer", "-1", 0);
    row("comboDimValue", "dimtimer", "soon", 0);
    row("Combo_Effect", "effects", "7", 7);
    row("Combo_Effect", "effects", "8", 0);
    row("Combo_Effect", "effects", "-7", 0);
    row("Combo_Effect", "effects", "Wave", 0);
}

void TestSettings::listsLoad()
{
    QFETCH(QString, list);
    QFETCH(QString, key);
    QFETCH(QString, stored);
    TestWindow world;
    world.writeSettings(key.toLatin1() + '=' + stored.toLatin1() + '\n');
    world.start();
    QTEST(world.get<QComboBox>(qPrintable(list))->currentIndex(), "index");
}

void TestSettings::zonesLoad()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
                        "Zone2Color=0 255 0\nZone3Color=0 0 255\nZone4Color=9 9 9\n");
    MainWindow &window = world.start();
    QCOMPARE(window.lightingState().leftWord, wordText(0xF000FF00));
    QCOMPARE(window.lightingState().centreWord, wordText(0xF10000FF));
    QCOMPARE(window.lightingState().rightWord, wordText(0xF2FF0000));
    QVERIFY(!window.lightingState().singleColorSelected);
    QCOMPARE(world.get<QTabWidget>("tabWidget_2")->currentIndex(), 1);
}

void TestSettings::singleColourLoads()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=50\nsinglecolorselectedlast=true\n"
                        "Zone1Color=1 1 1\nZone2Color=2 2 2\nZone3Color=3 3 3\n"
                        "Zone4Color=200 100 50\n");
    MainWindow &window = world.start();
    const LightingState &state = window.lightingState();
    QCOMPARE(state.leftWord, wordText(0xF0196432));
    QCOMPARE(state.centreWord, wordText(0xF1196432));
    QCOMPARE(state.rightWord, wordText(0xF2196432));
    for (const QString &colour : {state.leftZoneColor, state.centerZoneColor, state.rightZoneColor,
                                  state.singleZoneColor}) {
        QCOMPARE(colour, QStringLiteral("200 100 50"));
    }
    QVERIFY(state.singleColorSelected);
    QCOMPARE(world.get<QLineEdit>("leRGB")->text(), QStringLiteral("200 100 50"));
    QCOMPARE(world.get<QTabWidget>("tabWidget_2")->currentIndex(), 0);
}

void TestSettings::singleColourSurvivesABrightnessChange()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=50\nsinglecolorselectedlast=true\n"
                        "Zone4Color=200 100 50\n");
    MainWindow &window = world.start();
    world.get<QSlider>("horizontalSlider")->setValue(100);
    window.brightnessapply();
    QCOMPARE(window.lightingState().rightWord, wordText(0xF232C864));
    QCOMPARE(world.stored(SettingKeys::singleColourLast), QStringLiteral("true"));
}

void TestSettings::stripeLoads()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\nStripeLid=1 2 3\n");
    MainWindow &window = world.start();
    QCOMPARE(window.lightingState().stripeWord, wordText(0xF3030102));
    QCOMPARE(window.lightingState().stripeLidColor, QStringLiteral("1 2 3"));
}

void TestSettings::loadingStoresNoChoice()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n");
    world.start();
    QCOMPARE(world.stored(SettingKeys::singleColourLast), QStringLiteral("(none)"));
    QCOMPARE(world.stored(SettingKeys::backlightOff), QStringLiteral("(none)"));
    QCOMPARE(world.stored(SettingKeys::effects), QStringLiteral("(none)"));
}

void TestSettings::perKeyModeNeverApplies()
{
    TestWindow world;
    world.writeSettings("PerKey=true\nbrightlevel=40\nbacklight_on=true\n");
    const LightingState &state = world.construct().lightingState();
    QCOMPARE(state.centreWord, QStringLiteral("3758616583"));
    QTest::qWait(1500);
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 100);
    QCOMPARE(state.stripeWord, QStringLiteral("3758616583"));
    QCOMPARE(runningTimers(*world.window, 1000), 0);
}

void TestSettings::companionTimerStartsWithTheApplication()
{
    TestWindow world;
    world.construct();
    QCOMPARE(runningTimers(*world.window, 1000), 0);
    world.window->delayedApply();
    QCOMPARE(runningTimers(*world.window, 1000), 1);
}

void TestSettings::dimDelayIsStored()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\n");
    world.start().show();
    auto *const list = world.get<QComboBox>("comboDimValue");
    for (int index = 1; index < list->count(); ++index) {
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(world.stored(SettingKeys::dimTimer), QString::number(index));
    }
}

void TestSettings::loadedBrightnessIsTheUsers()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\n"); // the slider's own first value
    world.start();
    auto *const box = world.get<QCheckBox>("CheckBox_AutoDim");
    box->click();
    box->click(); // goes back to the user's brightness
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 100);
}

void TestSettings::loadingAgainStoresNoClick()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\n");
    world.start().LoadSettings();
    world.get<QRadioButton>("backlight_off")->click();
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("true"));
}

void TestSettings::autoDimStartsFiveSecondsLater()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nAutoDim=true\n");
    MainWindow &window = world.start();
    const auto running = [&window] {
        return runningTimers(window, 100);
    };
    QCOMPARE(running(), 1); // the brightness timer alone
    QTest::qWait(4000);
    QCOMPARE(running(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(running(), 2, 2000);
}

void TestSettings::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << QByteArray("\0\1\2\xff\xfe[=\n]]\0=", 12);
    QTest::newRow("half written") << QByteArray(
        "[settings]\nmainWindowGeometry=@ByteArray(\\x1\\xd");
    QTest::newRow("wrong types") << QByteArray(
        "[settings]\nmainWindowGeometry=7\nmainWindowState=@Size(3 4)\n"
        "brightlevel=@ByteArray(\\xff)\nZone1Color=@Variant(\\0\\0\\0\\x7f)\n"
        "effects=true\ndimtimer=1e9\n");
}

void TestSettings::badFiles()
{
    QFETCH(QByteArray, content);
    TestWindow world;
    writeFile(world.settings.settingsIni(), content);
    MainWindow &window = world.start();
    QCOMPARE(window.size(), QSize(630, 630));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY((window.geometry().center() - screen.center()).manhattanLength() <= 2);
    window.show();
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 0);
    QVERIFY(world.get<QRadioButton>("backlight_off")->isChecked());
    QCOMPARE(world.get<QComboBox>("comboDimValue")->currentIndex(), 0);
    QCOMPARE(window.lightingState().leftWord, wordText(0xF0000000));
}

void TestSettings::hugeGeometry()
{
    // What saveGeometry() writes, with zeros over the middle and a size out of what was left.
    TestWindow world;
    world.writeSettings(QByteArray(R"ini(mainWindowGeometry="@ByteArray()ini")
                        + R"ini(\x1\xd9\xd0\xcb\0\x3\0\0\0\0\0d)ini" + QByteArray(44, '\0')
                        + R"ini(\0\0\0\x64\0\0\x2\xd9\0\0\x2\xd9)")ini" + '\n');
    const MainWindow &window = world.construct();
    const QSize screens = QGuiApplication::primaryScreen()->virtualSize();
    const QSize most = screens.expandedTo(window.minimumSize());
    QVERIFY2(window.size() == window.size().boundedTo(most),
             qPrintable(QStringLiteral("width %1").arg(window.width())));
}

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
