#include "lighting/devicewords.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QCheckBox>
#include <QProcess>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

constexpr std::array replacedControls{
    "horizontalSlider", "backlight_on",     "backlight_off", "touch_mouse_wake",
    "StartHidden_2",    "CheckBox_AutoDim", "comboDimValue", "Combo_Effect",
};

QVector<int> visiblePages(const TestWindow &world)
{
    const auto *const tabs = world.get<QTabWidget>("tabWidget_2");
    QVector<int> pages;
    for (int page = 0; page < tabs->count(); ++page) {
        if (tabs->isTabVisible(page)) {
            pages.append(page);
        }
    }
    return pages;
}

} // namespace

/// The switch between this program's own lighting and the application for keyboards with a light
/// under each key.
class TestPerKey : public QObject
{
    Q_OBJECT

private slots:
    void entering();
    void enteringWithTheBacklightOff();
    void missingInstaller();
    void leaving_data();
    void leaving();
    void leavingAfterAStartInTheMode();
    void leavingAppliesOnce();
    void notElevated_data();
    void notElevated();
    void tabsAreLaidOutAnew();
};

void TestPerKey::entering()
{
    TestWindow world;
    world.platform.elevated = true;
    world.writeSettings("backlight_on=true\nbrightlevel=50\n");
    world.start();
    world.get<QCheckBox>("UsePerKeyApp")->click();
    for (const char *name : replacedControls) {
        QVERIFY2(!world.get<QWidget>(name)->isEnabled(), name);
    }
    QCOMPARE(visiblePages(world), QVector<int>{3});
    QCOMPARE(world.get<QTabWidget>("tabWidget_2")->currentIndex(), 3);
    QVERIFY(world.get<QWidget>("colorpick5_3")->isEnabled());
    QCOMPARE(world.stored(SettingKeys::perKey), QStringLiteral("true"));
}

void TestPerKey::enteringWithTheBacklightOff()
{
    TestWindow world;
    world.platform.elevated = true;
    world.start();
    QVERIFY(!world.get<QTabWidget>("tabWidget_2")->isEnabled());
    world.get<QCheckBox>("UsePerKeyApp")->click();
    QVERIFY(world.get<QWidget>("colorpick5_3")->isEnabled()); // the one thing that is left to do
}

void TestPerKey::missingInstaller()
{
    TestWindow world; // there is no folder PERKEY
    world.platform.elevated = true;
    world.start();
    auto *const box = world.get<QCheckBox>("UsePerKeyApp");
    box->click();
    QVERIFY(box->isChecked());
    QCOMPARE(world.stored(SettingKeys::perKey), QStringLiteral("true"));
}

void TestPerKey::leaving_data()
{
    QTest::addColumn<bool>("stripeOption");
    QTest::addColumn<QVector<int>>("pages");
    QTest::newRow("with the stripe") << true << QVector<int>{0, 1, 2};
    QTest::newRow("without the stripe") << false << QVector<int>{0, 1};
}

void TestPerKey::leaving()
{
    QFETCH(bool, stripeOption);
    TestWindow world;
    world.platform.elevated = true;
    world.writeSettings(stripeOption ? "backlight_on=true\nP751LEDStripe=true\n"
                                     : "backlight_on=true\n");
    world.start();
    auto *const box = world.get<QCheckBox>("UsePerKeyApp");
    box->click();
    world.platform.elevated = false; // leaving needs no rights
    box->click();
    for (const char *name : replacedControls) {
        QVERIFY2(world.get<QWidget>(name)->isEnabled(), name);
    }
    QTEST(visiblePages(world), "pages");
    QVERIFY(visiblePages(world).contains(world.get<QTabWidget>("tabWidget_2")->currentIndex()));
    QCOMPARE(world.stored(SettingKeys::perKey), QStringLiteral("false"));
}

void TestPerKey::leavingAfterAStartInTheMode()
{
    TestWindow world;
    world.writeSettings("PerKey=true\nbacklight_on=true\nbrightlevel=80\n"
                        "Zone1Color=255 0 0\nZone2Color=0 255 0\nZone3Color=0 0 255\n");
    MainWindow &window = world.construct();
    QCOMPARE(visiblePages(world), QVector<int>{3});
    QCOMPARE(world.get<QTabWidget>("tabWidget_2")->currentIndex(), 3);
    world.get<QCheckBox>("UsePerKeyApp")->click();
    QCOMPARE(visiblePages(world), (QVector<int>{0, 1}));
    for (const char *name : replacedControls) {
        QVERIFY2(world.get<QWidget>(name)->isEnabled(), name);
    }
    // What was stored is applied: nothing has been since the start.
    auto *const slider = world.get<QSlider>("horizontalSlider");
    QCOMPARE(slider->value(), 80);
    QVERIFY(world.get<QRadioButton>("backlight_on")->isChecked());
    QCOMPARE(window.lightingState().leftWord, wordText(0xF000CC00));
    const QString wake = QStringLiteral("3758616583,3758616583,3758616583,3758616583,0");
    QCOMPARE(world.readLine(), wake);
    QCOMPARE(world.readLine(), wake);
    QVERIFY(world.readLine().startsWith(wordText(0xF000CC00)));
    slider->setValue(81);
    window.brightnessapply();
    QCOMPARE(window.lightingState().leftWord, wordText(0xF000CE00));
    QCOMPARE(world.stored(SettingKeys::brightLevel), QStringLiteral("81"));
}

/// Where the lighting was at work before the mode, it only goes on.
void TestPerKey::leavingAppliesOnce()
{
    TestWindow world;
    world.platform.elevated = true;
    world.writeSettings("backlight_on=true\nbrightlevel=80\n");
    world.start();
    auto *const box = world.get<QCheckBox>("UsePerKeyApp");
    box->click();
    world.get<QSlider>("horizontalSlider")->setValue(40); // as the companion does
    world.writeSettings("backlight_on=true\nbrightlevel=10\n");
    box->click();
    QCOMPARE(world.get<QSlider>("horizontalSlider")->value(), 40);
}

void TestPerKey::notElevated_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("relaunches");
    QTest::newRow("no") << int(QMessageBox::No) << 0;
    QTest::newRow("yes, and declined") << int(QMessageBox::Yes) << 1;
}

void TestPerKey::notElevated()
{
    QFETCH(int, answer);
    TestWindow world;
    world.platform.relaunch = Platform::Relaunch::Declined;
    world.writeSettings("backlight_on=true\n");
    world.start();
    const QVector<int> pages = visiblePages(world);
    const BoxWatcher watcher(static_cast<QMessageBox::StandardButton>(answer));
    auto *const box = world.get<QCheckBox>("UsePerKeyApp");
    box->click();
    QCOMPARE(watcher.seen.size(), 1);
    QTEST(world.platform.relaunches, "relaunches");
    QVERIFY(box->isChecked());
    QCOMPARE(world.stored(SettingKeys::perKey), QStringLiteral("(none)"));
    QCOMPARE(visiblePages(world), pages);
    for (const char *name : replacedControls) {
        QVERIFY2(world.get<QWidget>(name)->isEnabled(), name);
    }
}

void TestPerKey::tabsAreLaidOutAnew()
{
    QApplication::setStyle(new DarkStyle);
    TestWindow world;
    world.platform.elevated = true;
    world.writeSettings("backlight_on=true\nP751LEDStripe=true\n");
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *const bar = world.get<QTabWidget>("tabWidget_2")->tabBar();
    auto *const box = world.get<QCheckBox>("UsePerKeyApp");
    const QRect stripe = bar->tabRect(2);
    QVERIFY(stripe.width() > 0);
    box->click();
    QVERIFY(bar->tabRect(3).width() > 0);
    QCOMPARE(bar->tabRect(3).left(), bar->tabRect(0).left());
    box->click();
    QCOMPARE(bar->tabRect(2), stripe);
    // Without the stripe's page there is nothing to its right, once the bar has become narrower.
    world.get<QCheckBox>("StartHidden_2")->click();
    QTRY_COMPARE(bar->tabRect(2).width(), 0);
    box->click();
    box->click();
    QTRY_COMPARE(bar->tabRect(2).width(), 0);
}

QTEST_MAIN(TestPerKey)
#include "tst_perkey.moc"
