#include "tests/support/testwindow.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QNetworkProxy>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>

/// What of the window itself is kept or derived at start: pages, place, title, autostart.
class TestWindowState : public QObject
{
    Q_OBJECT

private slots:
    void stripePageFollowsItsOption();
    void perKeyMode();
    void autostartBox_data();
    void autostartBox();
    void autostartBoxWritesTheEntry();
    void title_data();
    void title();
    void noBranding();
    void geometryIsSavedAndRestored();
    void comesBackFromALostScreen_data();
    void comesBackFromALostScreen();
    void staysHalfOffTheScreen();
    void sizesAreAdaptedOnce();
    void barsAreRestored();
};

void TestWindowState::stripePageFollowsItsOption()
{
    TestWindow world;
    world.start();
    QVERIFY(!world.get<QTabWidget>("tabWidget_2")->isTabEnabled(2));
    world.writeSettings("P751LEDStripe=true\n");
    world.start();
    QVERIFY(world.get<QTabWidget>("tabWidget_2")->isTabEnabled(2));
}

void TestWindowState::perKeyMode()
{
    TestWindow world;
    world.writeSettings("PerKey=true\n");
    world.construct();
    for (const char *name :
         {"horizontalSlider", "backlight_on", "backlight_off", "touch_mouse_wake", "StartHidden_2",
          "CheckBox_AutoDim", "comboDimValue", "Combo_Effect"}) {
        QVERIFY2(!world.get<QWidget>(name)->isEnabled(), name);
    }
    auto *const tabs = world.get<QTabWidget>("tabWidget_2");
    for (int page = 0; page < 4; ++page) {
        QCOMPARE(tabs->isTabVisible(page), page == 3);
    }

    world.writeSettings("PerKey=false\n");
    world.construct();
    for (int page = 0; page < 4; ++page) {
        QCOMPARE(world.get<QTabWidget>("tabWidget_2")->isTabVisible(page), page != 3);
    }
}

void TestWindowState::autostartBox_data()
{
    const QString own = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("checked");
    QTest::newRow("this program") << own << true;
    QTest::newRow("other case") << own.toUpper() << false;
    QTest::newRow("other folder") << QStringLiteral("D:\\Tools\\Lumikey.exe") << false;
    QTest::newRow("quoted") << QLatin1Char('"') + own + QLatin1Char('"') << false;
}

void TestWindowState::autostartBox()
{
    QFETCH(QString, entry);
    TestWindow world;
    world.platform.autostart = entry;
    world.construct();
    QTEST(world.get<QCheckBox>("Check_StartwithWindows")->isChecked(), "checked");
    QCOMPARE(world.platform.autostart.value_or(QString()), entry); // only read
}

void TestWindowState::autostartBoxWritesTheEntry()
{
    TestWindow world;
    world.construct();
    auto *const box = world.get<QCheckBox>("Check_StartwithWindows");
    QVERIFY(!box->isChecked()); // no entry
    box->click();
    QCOMPARE(world.platform.autostart.value_or(QString()),
             QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    QCOMPARE(world.platform.vetoesRemoved, 1);
    box->click();
    QVERIFY(!world.platform.autostart);
    QCOMPARE(world.platform.vetoesRemoved, 1);
}

void TestWindowState::title_data()
{
    QTest::addColumn<QByteArray>("branding");
    QTest::addColumn<QString>("title");
    QTest::newRow("named") << QByteArray("appname=Night Light\n") << QStringLiteral("Night Light");
    QTest::newRow("no name") << QByteArray() << QString();
    QTest::newRow("binary") << QByteArray("\0\xff\1[", 4) << QString();
}

void TestWindowState::title()
{
    QFETCH(QByteArray, branding);
    TestWindow world;
    world.writeBranding(branding);
    world.construct();
    QTEST(world.get<QLabel>("Title")->text(), "title");
}

void TestWindowState::noBranding()
{
    TestWindow world;
    QVERIFY(QFile::remove(QStringLiteral("branding/lumikey_branding.ini")));
    // Without the file the vendor's own server is asked; no test may do that.
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpCachingProxy, QStringLiteral("127.0.0.1"), 1));
    world.construct();
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy));
    QCOMPARE(world.get<QLabel>("Title")->text(), QString());
}

void TestWindowState::geometryIsSavedAndRestored()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setGeometry(37, 53, 700, 660);
    QTRY_COMPARE(window.geometry(), QRect(37, 53, 700, 660));
    window.ShutdownQuit();
    QVERIFY(world.stored(SettingKeys::mainWindowGeometry) != QStringLiteral("(none)"));
    QVERIFY(world.stored(SettingKeys::mainWindowState) != QStringLiteral("(none)"));

    QCOMPARE(world.construct().geometry(), QRect(37, 53, 700, 660));
}

void TestWindowState::comesBackFromALostScreen_data()
{
    QTest::addColumn<QPoint>("lost");
    QTest::newRow("to the right") << QPoint(9000, 100);
    QTest::newRow("above") << QPoint(100, -5000);
}

/// A screen that goes takes its place along, also while the window is hidden.
void TestWindowState::comesBackFromALostScreen()
{
    QFETCH(QPoint, lost);
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.hide();
    window.move(lost);
    window.ShowInterface();
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(available.contains(window.geometry()));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(available.contains(window.geometry()));
}

void TestWindowState::staysHalfOffTheScreen()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPoint half(-300, 200);
    window.move(half);
    QTRY_COMPARE(window.pos(), half);
    window.hide();
    window.ShowInterface();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.pos(), half);
}

/// Whoever makes the window smaller later on finds it so when it is shown again.
void TestWindowState::sizesAreAdaptedOnce()
{
    TestWindow world;
    MainWindow &window = world.start();
    const QSize smaller(100, 90);
    QVERIFY(window.minimumSize() != smaller);
    window.setMinimumSize(smaller);
    window.show();
    QCOMPARE(window.minimumSize(), smaller);
}

void TestWindowState::barsAreRestored()
{
    TestWindow world;
    MainWindow &window = world.start();
    const QByteArray without = window.saveState();
    auto *const bar = new QToolBar(&window); // there is none yet; states hold what bars do
    bar->setObjectName(QStringLiteral("bar"));
    window.addToolBar(bar);
    bar->hide();
    window.ShutdownQuit();
    bar->show();
    window.LoadSettings();
    QVERIFY(bar->isHidden());
    const QByteArray stored = world.settings.read(SettingKeys::mainWindowState);
    QVERIFY(stored != without);
    bar->show();
    QVERIFY(window.restoreState(stored, 0));
    QVERIFY(bar->isHidden());
}

QTEST_MAIN(TestWindowState)
#include "tst_windowstate.moc"
