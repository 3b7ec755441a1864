#include "lighting/serviceserver.h"
#include "tests/support/lightinglines.h"
#include "tests/support/patience.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testwindow.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSlider>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include <memory>
#include <utility>
#include <vector>

namespace {

const QString &offLine = LightingLines::off;
const QString &wakeLine = LightingLines::wake;
const QString redLine = QStringLiteral("4026597120,4043309056,4060086272,4076863488,0");

/// Lets the window apply the settings by itself: no second time comes behind the back of a test
/// that asks for the lines of the keyboard one by one. Takes a second.
void startByItself(TestWindow &world)
{
    world.construct();
    QTRY_VERIFY(world.window->lightingState().centreWord != wordText(DeviceWords::loading));
}

void startRed(TestWindow &world)
{
    world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n");
    startByItself(world);
}

void takeWakeLines(const TestWindow &world)
{
    QCOMPARE(world.readLine(), wakeLine);
    QCOMPARE(world.readLine(), wakeLine);
}

} // namespace

class TestServiceServer : public QObject
{
    Q_OBJECT

private slots:
    void beforeSettingsAreApplied();
    void threeClientsInARow();
    void turningOnWakesAgain();
    void offAlsoWithAnEffect();
    void zeroBrightnessWithAnEffect();
    void effectIsTheFifthField();
    void wakeWaitsWhileOff();
    void lastLineIsKept();
    void nobodyToAnswer();
    void manyAtOnce();
    void othersHaveTheirTurn();
    void clientsThatAreGone();
    void clientThatTalks();
    void acceptingGoesOn_data();
    void acceptingGoesOn();
    void portTaken();
};

void TestServiceServer::beforeSettingsAreApplied()
{
    TestWindow world;
    QTest::ignoreMessage(QtCriticalMsg, "The Service Server is running!");
    world.construct();
    const QByteArray answer = ServiceClient::readAnswer(5000, world.servicePort());
    QCOMPARE(answer.size(), 96);
    QCOMPARE(answer.left(6).toHex(), QByteArray("005e0000005a"));
    QCOMPARE(ServiceClient::lineOf(answer), wakeLine);
}

void TestServiceServer::threeClientsInARow()
{
    TestWindow world;
    startRed(world);
    takeWakeLines(world);
    QCOMPARE(world.readLine(), redLine);
    QCOMPARE(world.readLine(), redLine);
}

void TestServiceServer::turningOnWakesAgain()
{
    TestWindow world;
    startRed(world);
    takeWakeLines(world);
    world.get<QRadioButton>("backlight_off")->click();
    QCOMPARE(world.readLine(), offLine);
    world.get<QRadioButton>("backlight_on")->click();
    takeWakeLines(world);
    QCOMPARE(world.readLine(), redLine);
}

void TestServiceServer::offAlsoWithAnEffect()
{
    TestWindow world;
    startRed(world);
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    world.get<QRadioButton>("backlight_off")->click();
    for (int client = 0; client < 3; ++client) {
        QCOMPARE(world.readLine(), offLine);
    }
}

void TestServiceServer::zeroBrightnessWithAnEffect()
{
    TestWindow world;
    startRed(world);
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    world.get<QSlider>("horizontalSlider")->setValue(0);
    QCOMPARE(world.readLine(),
             QStringLiteral("3758108672,3758108672,3758108672,3758108672,268607488"));
}

void TestServiceServer::effectIsTheFifthField()
{
    TestWindow world;
    startRed(world);
    takeWakeLines(world);
    world.get<QComboBox>("Combo_Effect")->setCurrentIndex(7);
    QCOMPARE(world.readLine(),
             QStringLiteral("4026597120,4043309056,4060086272,4076863488,2952790016"));
}

void TestServiceServer::wakeWaitsWhileOff()
{
    TestWindow world;
    world.writeSettings("backlight_on=false\nbrightlevel=100\nZone1Color=255 0 0\n");
    startByItself(world);
    QCOMPARE(world.readLine(), offLine);
    QVERIFY(world.window->wakeSequence().wakePending);
    world.get<QRadioButton>("backlight_on")->click();
    world.get<QSlider>("horizontalSlider")->setValue(0);
    QCOMPARE(world.readLine(), offLine);
    world.get<QSlider>("horizontalSlider")->setValue(100);
    takeWakeLines(world);
}

void TestServiceServer::lastLineIsKept()
{
    TestWindow world;
    startRed(world);
    QCOMPARE(world.window->lastCommandLine(), QString());
    takeWakeLines(world);
    QCOMPARE(world.window->lastCommandLine(), wakeLine);
    world.readLine();
    QCOMPARE(world.window->lastCommandLine(), redLine);
}

void TestServiceServer::nobodyToAnswer()
{
    TestWindow world;
    startRed(world);
    QVERIFY(QMetaObject::invokeMethod(world.window.get(), "sendFortune"));
    QVERIFY(world.window->wakeSequence().wakePending);
    QCOMPARE(world.window->lastCommandLine(), QString());
    takeWakeLines(world);
}

void TestServiceServer::manyAtOnce()
{
    constexpr int clients = 200;
    TestWindow world;
    startRed(world);
    std::vector<std::unique_ptr<QTcpSocket>> sockets;
    for (int i = 0; i < clients; ++i) {
        sockets.push_back(std::make_unique<QTcpSocket>());
        sockets.back()->connectToHost(QHostAddress(QStringLiteral("127.0.0.9")),
                                      world.servicePort());
    }
    int wakes = 0;
    int normals = 0;
    for (const auto &socket : sockets) {
        QTRY_COMPARE(socket->state(), QAbstractSocket::UnconnectedState);
        const QString line = ServiceClient::lineOf(socket->readAll());
        wakes += line == wakeLine ? 1 : 0;
        normals += line == redLine ? 1 : 0;
    }
    QCOMPARE(wakes, 2);
    QCOMPARE(normals, clients - 2);
    auto *const server = world.window->findChild<QTcpServer *>();
    QTRY_COMPARE(server->findChildren<QTcpSocket *>().size(), 0);
}

void TestServiceServer::othersHaveTheirTurn()
{
    TestWindow world;
    startRed(world);
    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (int client = 0; client < 3 * 32; ++client) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(QHostAddress(QStringLiteral("127.0.0.9")),
                                      world.servicePort());
        QVERIFY(clients.back()->waitForConnected());
    }
    int inThisTurn = 0;
    QVector<int> turns;
    connect(world.window->findChild<ServiceServer *>(), &QTcpServer::newConnection,
            [&] { ++inThisTurn; });
    QTimer turn; // of the event loop: without an interval it fires in each
    connect(&turn, &QTimer::timeout, [&] {
        if (inThisTurn > 0) {
            turns.append(std::exchange(inThisTurn, 0));
        }
    });
    turn.start(0);
    for (const auto &client : clients) {
        QTRY_COMPARE(client->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!client->readAll().isEmpty());
    }
    QTRY_COMPARE(turns, QVector<int>(3, 32));
}

void TestServiceServer::clientsThatAreGone()
{
    TestWindow world;
    startRed(world);
    takeWakeLines(world);
    for (int i = 0; i < 50; ++i) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.servicePort());
        QVERIFY(socket.waitForConnected()); // by the system; the program has not seen it yet
        socket.abort();
    }
    QCOMPARE(world.readLine(), redLine);
    auto *const server = world.window->findChild<QTcpServer *>();
    QTRY_COMPARE(server->findChildren<QTcpSocket *>().size(), 0);
}

void TestServiceServer::clientThatTalks()
{
    TestWindow world;
    startRed(world);
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.servicePort());
    QVERIFY(socket.waitForConnected());
    socket.write("hello");
    QVERIFY(socket.flush()); // by now: who talks after the end may not hear of it under Wine
    QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(ServiceClient::lineOf(socket.readAll()), wakeLine);
    QCOMPARE(world.readLine(), wakeLine); // the next is served as ever
}

void TestServiceServer::acceptingGoesOn_data()
{
    QTest::addColumn<QAbstractSocket::SocketError>("error");
    QTest::addColumn<bool>("waits");
    QTest::newRow("out of handles") << QAbstractSocket::SocketResourceError << true;
    QTest::newRow("client that left too early") << QAbstractSocket::NetworkError << false;
}

/// The system fails to hand over a client; later it fails again and again. Each time the server
/// goes on, and the log hears of each trouble once.
void TestServiceServer::acceptingGoesOn()
{
    QFETCH(QAbstractSocket::SocketError, error);
    QFETCH(bool, waits);
    constexpr int pauseMs = 230; // the program's, as roughly as its timer keeps it
    TestWindow world;
    startRed(world);
    auto *const server = world.window->findChild<QTcpServer *>();
    static QStringList log;
    log.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { log.append(text); });
    const auto putBack = qScopeGuard([before] { qInstallMessageHandler(before); });
    const auto complaints = [] {
        return log.filter(QRegularExpression(QStringLiteral("^Cannot accept a client: "))).size();
    };
    const auto fail = [&] {
        server->pauseAccepting(); // as Qt does before it tells
        emit server->acceptError(error);
    };
    QElapsedTimer sinceFailure;
    struct Service
    {
        bool atOnce; ///< in the turns of the event loop that follow the failure
        QString line;
    };
    const auto serviceOfOneWhoWaits = [&] {
        const QSignalSpy accepted(server, &QTcpServer::newConnection);
        QTcpSocket client;
        client.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), world.servicePort());
        client.waitForConnected(); // by the system; the program has not seen it yet
        fail();
        for (int turn = 0; turn < 20 && accepted.isEmpty(); ++turn) {
            QCoreApplication::processEvents();
        }
        const bool atOnce = !accepted.isEmpty();
        const bool served = QTest::qWaitFor(
            [&] { return client.state() == QAbstractSocket::UnconnectedState; }, patienceMs);
        return Service{atOnce, served ? ServiceClient::lineOf(client.readAll()) : QString()};
    };

    // A first failure. Without handles there is no use in trying again at once; a client that has
    // left is none of the next one's business.
    sinceFailure.start();
    const Service first = serviceOfOneWhoWaits();
    QCOMPARE(first.line, wakeLine);
    QCOMPARE(first.atOnce, !waits);
    QVERIFY(!waits || sinceFailure.elapsed() >= pauseMs);
    QCOMPARE(complaints(), 1);

    // That client was served, so the trouble is over. Qt still remembers it and tells of it
    // whenever the queue is empty; nobody waits for an old story, and the log is spared it.
    const Service second = serviceOfOneWhoWaits();
    QCOMPARE(second.line, wakeLine);
    QVERIFY(second.atOnce);
    QCOMPARE(complaints(), 1);

    // Failures with nobody served in between are a trouble that lasts. It is told once more, and
    // whatever it is, the server pauses before each try, so that it does not spin.
    sinceFailure.start();
    for (int failure = 0; failure < 2; ++failure) {
        fail();
        QCoreApplication::processEvents();
    }
    const Service third = serviceOfOneWhoWaits();
    QCOMPARE(third.line, redLine);
    QVERIFY(!third.atOnce);
    QVERIFY(sinceFailure.elapsed() >= pauseMs);
    QCOMPARE(complaints(), 2);
}

void TestServiceServer::portTaken()
{
    TestWindow world;
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QStringLiteral("127.0.0.9"))));
    world.endpoint.port = other.serverPort();
    QTest::ignoreMessage(QtCriticalMsg, "Could not start the Service Server");
    startRed(world);
    world.get<QSlider>("horizontalSlider")->setValue(50);
    world.window->brightnessapply();
    QCOMPARE(world.window->lightingState().leftWord, QString::number(0xF0007F00));
}

QTEST_MAIN(TestServiceServer)
#include "tst_serviceserver.moc"
