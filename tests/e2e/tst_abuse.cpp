#include "system/testing/resourceusage.h"
#include "system/testing/roughhandling.h"
#include "tests/e2e/programlines.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testsystem.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <algorithm>

namespace {

constexpr int closedAtOnce = 20'000;
constexpr int rounds = 4;
constexpr int heldOpen = 1000;
constexpr int halfOpen = 200;
constexpr int talkers = 40;
constexpr int junkBytes = 4 * 1024 * 1024;
/// So many of those who misbehave between two honest clients.
constexpr int betweenHonest = 100;
/// What a heap may keep of it; of tens of thousands at once, and of 160 MiB of junk, some more.
constexpr qint64 memoryKept = qint64{1024} * 1024;
constexpr qint64 memoryKeptOfAll = 4 * memoryKept;

const QHostAddress &address()
{
    static const QHostAddress loopback(QStringLiteral("127.0.0.9"));
    return loopback;
}

constexpr quint16 port = 52316;

using Sockets = std::vector<std::unique_ptr<QTcpSocket>>;

std::unique_ptr<QTcpSocket> connected()
{
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(address(), port);
    return socket->waitForConnected() ? std::move(socket) : nullptr;
}

} // namespace

/// The Service Server among clients that misbehave, and without what it needs.
class TestAbuse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void connectionsThatCloseAtOnce();
    void connectionsHeldOpen();
    void halfOpenConnections();
    void junkBeforeReading();
    void portTaken();
    void addressMissing();
    void outOfHandles_data();
    void outOfHandles();

private:
    /// Starts the program and waits until it answers as it will from then on.
    void startServing();
    /// The window works and the settings are stored, with a server or without.
    void seeTheRestWork() const;
    /// Handles and memory are where they were; Wine does not tell of other processes.
    void seeNothingKept(const ResourceUsage &before, qint64 mayKeep = memoryKept) const;
    /// What the program holds when it has had time to clear up.
    ResourceUsage usage() const
    {
        QTest::qWait(1000);
        return resourceUsageOf(program->process.processId());
    }

    std::unique_ptr<ProgramProcess> program;
};

void TestAbuse::initTestCase()
{
    RoughHandling::raiseHandleLimit();
    ProgramTwin::takeOnItsLooks();
}

void TestAbuse::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestAbuse::cleanup()
{
    program.reset();
}

void TestAbuse::startServing()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZones);
}

void TestAbuse::seeTheRestWork() const
{
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    const ProgramTwin twin(Lines::threeZonesSettings);
    twin.click("backlight_off");
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("false"));
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestAbuse::seeNothingKept(const ResourceUsage &before, qint64 mayKeep) const
{
    if (before.handles == 0 && before.memory == 0) {
        qInfo("this system does not tell what other processes hold");
        return;
    }
    const ResourceUsage now = usage();
    qInfo("handles: %d, then %d; memory: %lld KiB, then %lld KiB", before.handles, now.handles,
          before.memory / 1024, now.memory / 1024);
    QVERIFY(now.handles <= before.handles);
    QVERIFY(now.memory <= before.memory + mayKeep);
}

void TestAbuse::connectionsThatCloseAtOnce()
{
    startServing();
    if (QTest::currentTestFailed()) {
        return;
    }
    const ResourceUsage before = usage();
    QElapsedTimer time;
    time.start();
    for (int round = 0; round < rounds; ++round) {
        Sockets honest; // they do not wait either, but for their answer
        for (int client = 0; client < closedAtOnce; client += betweenHonest) {
            RoughHandling::comeAndGo(qPrintable(address().toString()), port, betweenHonest - 1);
            honest.push_back(std::make_unique<QTcpSocket>());
            honest.back()->connectToHost(address(), port);
        }
        for (const auto &socket : honest) {
            QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QAbstractSocket::UnconnectedState, 20'000);
            QCOMPARE(ServiceClient::lineOf(socket->readAll()), Lines::threeZones);
        }
    }
    qInfo("%d connections in %lld ms", rounds * closedAtOnce, time.elapsed());
    seeNothingKept(before, memoryKeptOfAll);
}

void TestAbuse::connectionsHeldOpen()
{
    startServing();
    if (QTest::currentTestFailed()) {
        return;
    }
    const ResourceUsage before = usage();
    Sockets held;
    for (int client = 0; client < heldOpen; ++client) {
        held.push_back(connected());
        QVERIFY(held.back());
        // Reads one byte and then no more, so that it never learns of the other end's close.
        held.back()->setReadBufferSize(1);
        if (client % 50 == 0) {
            QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
        }
    }
    for (int honest = 0; honest < 100; ++honest) {
        QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
    }
    const auto open = std::count_if(held.begin(), held.end(), [](const auto &socket) {
        return socket->state() == QAbstractSocket::ConnectedState;
    });
    QCOMPARE(static_cast<int>(open), heldOpen);
    seeNothingKept(before); // the server has done with them
}

void TestAbuse::halfOpenConnections()
{
    startServing();
    if (QTest::currentTestFailed()) {
        return;
    }
    const ResourceUsage before = usage();
    Sockets sockets;
    for (int client = 0; client < halfOpen; ++client) {
        sockets.push_back(connected());
        QVERIFY(sockets.back());
        RoughHandling::shutDownWriting(sockets.back()->socketDescriptor());
        if (client % 20 == 0) {
            QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
        }
    }
    for (const auto &socket : sockets) {
        QVERIFY(socket->state() == QAbstractSocket::UnconnectedState
                || socket->waitForDisconnected());
        QCOMPARE(ServiceClient::lineOf(socket->readAll()), Lines::threeZones);
    }
    seeNothingKept(before);
}

void TestAbuse::junkBeforeReading()
{
    startServing();
    if (QTest::currentTestFailed()) {
        return;
    }
    const ResourceUsage before = usage();
    const QByteArray junk(junkBytes, '\xa5');
    Sockets sockets;
    for (int client = 0; client < talkers; ++client) {
        sockets.push_back(connected());
        QVERIFY(sockets.back());
        sockets.back()->write(junk);
        sockets.back()->flush();
        QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
    }
    QTest::qWait(500); // they go on sending to whoever still listens
    for (int honest = 0; honest < 20; ++honest) {
        QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
    }
    sockets.clear();
    seeNothingKept(before, memoryKeptOfAll);
}

void TestAbuse::portTaken()
{
    QTcpServer other;
    QVERIFY(other.listen(address(), port));
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->start());
    QVERIFY(program->waitForLog("Could not start the Service Server"));
    seeTheRestWork();
}

void TestAbuse::addressMissing()
{
    program->launcher = TestSystem::commandWithoutNetwork();
    if (program->launcher.isEmpty()) {
        QSKIP("Windows takes no addresses away from one program");
    }
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->start());
    QVERIFY(program->waitForLog("Could not start the Service Server"));
    seeTheRestWork();
}

void TestAbuse::outOfHandles_data()
{
    QTest::addColumn<bool>("clientsBefore");
    // Qt's server remembers its first failure for ever, and an empty queue counts as one.
    QTest::newRow("before the first client") << false;
    QTest::newRow("after others") << true;
}

void TestAbuse::outOfHandles()
{
    QFETCH(bool, clientsBefore);
    ProgramProcess::writeSettings("backlight_on=false\n");
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs); // until it has let go of what the start took
    if (clientsBefore) {
        QCOMPARE(ServiceClient::readLine(), Lines::off);
        QTest::qWait(1000);
    }
    const qint64 process = program->process.processId();
    if (!RoughHandling::setMoreHandlesAllowed(process, false)) {
        QSKIP("this system does not take handles away");
    }
    auto waiting = connected(); // by the system; nobody can take it in
    QVERIFY(waiting);
    QVERIFY(!waiting->waitForReadyRead(1500));
    QVERIFY(RoughHandling::setMoreHandlesAllowed(process, true));
    QTRY_COMPARE(waiting->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(ServiceClient::lineOf(waiting->readAll()), Lines::off);
    QElapsedTimer time;
    time.start();
    for (int client = 0; client < 50; ++client) {
        QCOMPARE(ServiceClient::readLine(), Lines::off);
    }
    // As ever; a quarter of a second each, if the server paused before each.
    QVERIFY2(time.elapsed() < 6000, qPrintable(QString::number(time.elapsed())));
    // With a client before, Qt tries again by itself and tells nobody.
    QCOMPARE(program->log().count("Cannot accept a client: "), clientsBefore ? 0 : 1);
}

QTEST_MAIN(TestAbuse)
#include "tst_abuse.moc"
