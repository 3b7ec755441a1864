#include "tests/support/testwindow.h"

#include <QAbstractEventDispatcher>
#include <QTest>

namespace {

const QString blackLine = QStringLiteral("4026531840 4043309056 4060086272 4076863488");

QString words(const MainWindow &window)
{
    const LightingState &state = window.lightingState();
    return QStringList{state.leftWord, state.centreWord, state.rightWord, state.stripeWord}.join(
        QLatin1Char(' '));
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
    void settingsComeBack_data();
    void settingsComeBack();
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

void TestResumedWindow::windowsLifeIsTheNoticesLife()
{
    world->start();
    world->window.reset();
    QVERIFY(world->platform.resumeNotice == nullptr);
    QVERIFY(!sendNative("resumed"));
}

QTEST_MAIN(TestResumedWindow)
#include "tst_resumedwindow.moc"
