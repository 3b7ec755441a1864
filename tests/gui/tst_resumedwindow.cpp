#include "tests/support/effectwidgets.h"
#include "tests/support/lightinglines.h"
#include "tests/support/singleshots.h"
#include "tests/support/testwindow.h"

#include <QAbstractEventDispatcher>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include <algorithm>

namespace {

const QString blackLine = QStringLiteral("4026531840 4043309056 4060086272 4076863488");

QString words(const MainWindow &window)
{
    const LightingState &state = window.lightingState();
    return QStringList{state.leftWord, state.centreWord, state.rightWord, state.stripeWord}.join(
        QLatin1Char(' '));
}

/// What an effect changes: what is hidden, what is enabled, the brightness line and the word.
QString effectLooks(const TestWindow &world)
{
    QStringList looks;
    const auto look = [&](const char *name) {
        looks += QString::fromLatin1(world.get<QWidget>(name)->isHidden() ? "-" : name);
    };
    std::for_each(EffectWidgets::notes.begin(), EffectWidgets::notes.end(), look);
    std::for_each(EffectWidgets::hidden.begin(), EffectWidgets::hidden.end(), look);
    for (const char *const name : {"horizontalSlider", "CheckBox_AutoDim", "comboDimValue"}) {
        looks += QString::fromLatin1(world.get<QWidget>(name)->isEnabled() ? name : "-");
    }
    looks += world.get<QLabel>("label_2")->text();
    looks += world.window->lightingState().effectWord;
    return looks.join(QLatin1Char(' '));
}

} // namespace

/// The window after the machine has resumed from sleep.
class TestResumedWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void systemsNotice();
    void nativeMessage();
    void otherNativeMessages();
    void loadsASecondLater();
    void settingsComeBack_data();
    void settingsComeBack();
    void effectComesBack_data();
    void effectComesBack();
    void placeStays_data();
    void placeStays();
    void nothingComesBackInPerKeyMode();
    void windowsLifeIsTheNoticesLife();

private:
    bool sendNative(const QByteArray &type);

    std::unique_ptr<TestWindow> world;
};

void TestResumedWindow::init()
{
    world.reset();
    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
                         "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=1 2 3\n");
}

bool TestResumedWindow::sendNative(const QByteArray &type)
{
    long result = 0;
    return QAbstractEventDispatcher::instance()->filterNativeEvent(type, &result, &result);
}

void TestResumedWindow::systemsNotice()
{
    const MainWindow &window = world->start();
    world->platform.resumeNotice();
    QCOMPARE(world->platform.sleeps, QVector<int>(10, 1000));
    QCOMPARE(words(window), blackLine);
}

void TestResumedWindow::nativeMessage()
{
    const MainWindow &window = world->start();
    QVERIFY(sendNative("resumed"));
    QVERIFY(sendNative("resumed")); // to the next top-level window
    QCOMPARE(world->platform.sleeps, QVector<int>(10, 1000));
    QCOMPARE(words(window), blackLine);
}

void TestResumedWindow::otherNativeMessages()
{
    const MainWindow &window = world->start();
    const QString before = words(window);
    QVERIFY(!sendNative("suspended"));
    QVERIFY(world->platform.sleeps.isEmpty());
    QCOMPARE(words(window), before);
}

void TestResumedWindow::loadsASecondLater()
{
    MainWindow &window = world->start();
    QCOMPARE(SingleShots::leftBy([&window] { window.suspendresumeaction(); }), QVector<int>{1000});
}

void TestResumedWindow::settingsComeBack_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("window shown") << true;
    QTest::newRow("window hidden in the tray") << false;
}

/// The colours come back two seconds after the settling, not before.
void TestResumedWindow::settingsComeBack()
{
    QFETCH(bool, shown);
    MainWindow &window = world->start();
    const QString before = words(window);
    window.setVisible(shown);
    world->platform.resumeNotice();
    QTest::qWait(1600);
    QVERIFY(words(window) != before);
    QTRY_COMPARE_WITH_TIMEOUT(words(window), before, 2000);
    QCOMPARE(window.isVisible(), shown);
}

void TestResumedWindow::effectComesBack_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("whileLoading");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("kept") << 7 << 7;
    QTest::newRow("chosen while loading") << 0 << 5;
    QTest::newRow("changed while loading") << 3 << 5;
    QTest::newRow("taken back while loading") << 7 << 0;
}

/// After a resume the window shows the effect, and the line holds it, as after a start.
void TestResumedWindow::effectComesBack()
{
    QFETCH(int, before);
    QFETCH(int, whileLoading);
    const auto startWith = [this](int effect) {
        init();
        world->writeSettings(
            "backlight_on=true\nbrightlevel=80\neffects=" + QByteArray::number(effect) + '\n');
        world->start();
    };
    startWith(whileLoading);
    const QString afterStart = effectLooks(*world);

    startWith(before);
    world->window->suspendresumeaction();
    world->window->LoadSettings();
    world->get<QComboBox>("Combo_Effect")->setCurrentIndex(whileLoading);
    world->window->delayedApply();
    QCOMPARE(effectLooks(*world), afterStart);
}

void TestResumedWindow::placeStays_data()
{
    QTest::addColumn<bool>("perKey");
    QTest::newRow("own lighting") << false;
    QTest::newRow("per-key mode") << true;
}

/// The settings are read anew, but where the window was when the program last ended is long past.
void TestResumedWindow::placeStays()
{
    QFETCH(bool, perKey);
    const QRect then(37, 53, 700, 660);
    const QRect now(211, 97, 720, 690);
    {
        MainWindow &before = world->construct();
        before.setGeometry(then);
        before.ShutdownQuit();
        world->window.reset(); // before the next one listens for the notice
    }
    if (perKey) {
        writeFile(world->settings.settingsIni(),
                  readFile(world->settings.settingsIni()) + "PerKey=true\n");
    }
    MainWindow &window = world->construct();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.geometry(), then);
    window.setGeometry(now);
    QTRY_COMPARE(window.geometry(), now);
    world->platform.resumeNotice();
    QTest::qWait(2500); // until everything is applied again
    QCOMPARE(window.geometry(), now);
}

/// The keyboard is another application's, and its colours are not told again.
void TestResumedWindow::nothingComesBackInPerKeyMode()
{
    const QString black =
        QString(blackLine).replace(QLatin1Char(' '), QLatin1Char(',')) + QStringLiteral(",0");
    world->writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\nPerKey=true\n");
    world->construct();
    for (int answer = 0; answer < 3; ++answer) {
        QCOMPARE(world->readLine(), LightingLines::wake);
    }
    world->window->suspendresumeaction();
    world->window->LoadSettings();
    QTest::qWait(1300); // longer than settings wait to be applied
    for (const QString &line : {LightingLines::wake, LightingLines::wake, black, black}) {
        QCOMPARE(world->readLine(), line);
    }
}

void TestResumedWindow::windowsLifeIsTheNoticesLife()
{
    world->start();
    world->window.reset();
    QVERIFY(world->platform.resumeNotice == nullptr);
    QVERIFY(!sendNative("resumed"));
}

QTEST_MAIN(TestResumedWindow)
#include "tst_resumedwindow.moc"
