#include "updateworld.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTest>

namespace {

const QString latestText =
    QStringLiteral("You are running the latest version, there is no update.");

quint16 freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress(QStringLiteral("127.0.0.9"))) ? server.serverPort() : 0;
}

} // namespace

/// What happens while the window waits for the update server, or for the user's answer.
class TestUpdateWaits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buttonIsDisabledWhileWaiting();
    void serviceServerWaitsForTheFirstCheck();
    void servedWhileWaiting();
    void pressedTwice();
    void closedWhileWaiting();
    void closedBesideAnotherWindow();
    void closedWhileConstructing();
    void closedWhileAsking();
    void askedForWhileConstructing_data();
    void askedForWhileConstructing();
};

void TestUpdateWaits::initTestCase()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.4"));
}

void TestUpdateWaits::buttonIsDisabledWhileWaiting()
{
    UpdateWorld world("1.0.5");
    const BoxWatcher watcher(QMessageBox::No);
    MainWindow &window = world.start();
    QVERIFY(world.updateButton()->isEnabled());
    world.server.pieceBytes = 10;
    world.server.pauseMs = 50;
    bool enabled = true;
    QTimer::singleShot(50, &window, [&] { enabled = world.updateButton()->isEnabled(); });
    window.SetAppVersion();
    QVERIFY(!enabled);
    QVERIFY(world.updateButton()->isEnabled());
}

void TestUpdateWaits::serviceServerWaitsForTheFirstCheck()
{
    UpdateWorld world("1.0.4");
    world.server.pieceBytes = 10;
    world.server.pauseMs = 30;
    world.endpoint.port = freePort();
    bool isThere = true;
    QTimer::singleShot(100, [&] {
        QTcpSocket client;
        client.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.endpoint.port);
        isThere = client.waitForConnected(500);
    });
    world.construct();
    QVERIFY(!isThere);
    QTcpSocket client;
    client.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.endpoint.port);
    QVERIFY(client.waitForConnected(5000));
}

void TestUpdateWaits::servedWhileWaiting()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    world.server.pieceBytes = 1;
    world.server.pauseMs = 10;
    QTcpSocket agent;
    QTimer::singleShot(50, &agent, [&] {
        agent.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.servicePort());
    });
    window.SetAppVersion();
    QVERIFY(agent.bytesAvailable() > 6);
}

void TestUpdateWaits::pressedTwice()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    world.server.requests.clear();
    world.server.pieceBytes = 10;
    world.server.pauseMs = 30;
    const BoxWatcher watcher(QMessageBox::Ok);
    // While an unasked check waits, the user asks twice.
    QTimer::singleShot(30, &window, [&] { world.checkByHand(); });
    QTimer::singleShot(60, &window, [&] { world.checkByHand(); });
    window.SetAppVersion();
    QTest::qWait(100);
    QCOMPARE(world.server.requests.size(), 1);
    QCOMPARE(watcher.seen.size(), 1); // and is told once
    QCOMPARE(world.label("Label_SoftwareServerVersion"), QStringLiteral("Latest: 1.0.4"));
}

void TestUpdateWaits::closedWhileWaiting()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    window.show();
    world.server.answer.clear();
    world.server.then = VersionServer::Then::KeepOpen;
    const BoxWatcher watcher(QMessageBox::Ok);
    QTimer::singleShot(100, &window, SLOT(close()));
    QTimer::singleShot(0, &window, [&] { world.checkByHand(); });
    QTimer::singleShot(10000, qApp, [] { QCoreApplication::exit(99); });
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(watcher.seen.size(), 0);
    // Given up, not answered: what the check before has found stays.
    QCOMPARE(world.label("Label_SoftwareServerVersion"), QStringLiteral("Latest: 1.0.4"));
    QCOMPARE(world.label("Label_SoftwareVersion_desc"), latestText);
}

/// Where closing does not end the program, it ends the wait all the same.
void TestUpdateWaits::closedBesideAnotherWindow()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    QWidget other;
    other.show();
    window.show();
    world.server.answer.clear();
    world.server.then = VersionServer::Then::KeepOpen;
    QTimer::singleShot(50, &window, SLOT(close()));
    bool given = true;
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, [&given] {
        given = false;
        QCoreApplication::exit(99);
    });
    watchdog.start(5000);
    window.SetAppVersion();
    QVERIFY(given);
}

void TestUpdateWaits::closedWhileConstructing()
{
    UpdateWorld world("");
    world.server.answer.clear();
    world.server.then = VersionServer::Then::KeepOpen;
    const auto exitFromTheTray = [] {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *candidate : windows) {
            if (auto *const window = qobject_cast<MainWindow *>(candidate)) {
                window->close();
            }
        }
    };
    QTimer::singleShot(200, qApp, exitFromTheTray);
    MainWindow &window = world.construct(); // returns
    QCOMPARE(world.pending(), QStringLiteral("(none)"));
    // As the program goes on from here.
    QObject::connect(qApp, SIGNAL(aboutToQuit()), &window, SLOT(ShutdownQuit()));
    window.show();
    QVERIFY(window.testAttribute(Qt::WA_DontShowOnScreen));
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(99); });
    watchdog.start(5000);
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(world.stored(SettingKeys::mainWindowGeometry) != QStringLiteral("(none)"));
}

void TestUpdateWaits::closedWhileAsking()
{
    UpdateWorld world("1.0.5");
    const auto exitFromTheTray = [] {
        if (QWidget *const box = QApplication::activeModalWidget()) {
            box->parentWidget()->close();
        }
    };
    QTimer::singleShot(500, qApp, exitFromTheTray);
    MainWindow &window = world.construct(); // returns although nobody answers
    QVERIFY(!window.isVisible());
    QCOMPARE(world.platform.relaunches, 0);
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(99); });
    watchdog.start(5000);
    window.show();
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TestUpdateWaits::askedForWhileConstructing_data()
{
    QTest::addColumn<int>("doubleClicks");
    QTest::addColumn<bool>("byMenu");
    QTest::addColumn<bool>("askedFor");
    QTest::newRow("nobody") << 0 << false << false;
    QTest::newRow("a double click") << 1 << false << true;
    QTest::newRow("shown and hidden again") << 2 << false << false;
    QTest::newRow("Show Interface") << 0 << true << true;
}

/// Whoever asks for the window before it is finished finds it with all its sizes, and keeps it.
void TestUpdateWaits::askedForWhileConstructing()
{
    QFETCH(int, doubleClicks);
    QFETCH(bool, byMenu);
    UpdateWorld world("1.0.4");
    world.server.pieceBytes = 10;
    world.server.pauseMs = 30;
    QTimer::singleShot(60, qApp, [&] {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *candidate : windows) {
            auto *const window = qobject_cast<MainWindow *>(candidate);
            for (int i = 0; window && i < doubleClicks; ++i) {
                window->show_hide(QSystemTrayIcon::DoubleClick);
            }
            if (window && byMenu) {
                window->ShowInterface();
            }
        }
    });
    const MainWindow &window = world.construct();
    QTEST(window.wasAskedFor(), "askedFor");
    QCOMPARE(window.isVisible(), window.wasAskedFor());
}

QTEST_MAIN(TestUpdateWaits)
#include "tst_updatewaits.moc"
