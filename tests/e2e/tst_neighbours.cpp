#include "app/connectionmessage.h"
#include "tests/e2e/programlines.h"
#include "tests/support/companionprocess.h"
#include "tests/support/instancesocket.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

namespace {

constexpr int rounds = 8;
/// What a neighbour that says nothing may cost whoever waits for an answer: 100 ms each, and a busy
/// machine.
constexpr int answersWithinMs = 5000;
/// The program looks into the segment once a second.
constexpr int seenAfterMs = 2000;

QByteArray noise(QRandomGenerator &random, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(),
                  [&random] { return static_cast<char>(random.bounded(256)); });
    return bytes;
}

/// A text as a segment holds it, with a length that is not its own.
QByteArray lie(quint32 length)
{
    return QByteArray::fromHex(QByteArray::number(length, 16).rightJustified(8, '0'))
           + QByteArray::fromHex("006c00690074002c00350030"); // "lit,50"
}

} // namespace

/// Whoever shares the instance socket and the companion's segment misbehaves while the program is
/// used with a real pointer.
class TestNeighbours : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { ProgramTwin::takeOnItsLooks(); }
    void init();
    void cleanup();
    void onTheInstanceSocket();
    void inTheCompanionSegment();

private:
    /// One round of use: off and on again, seen on the wire and in the file.
    void useIt() const;

    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<ProgramTwin> twin;
};

void TestNeighbours::init()
{
    program = std::make_unique<ProgramProcess>();
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<ProgramTwin>(Lines::threeZonesSettings);
    QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZones);
}

void TestNeighbours::cleanup()
{
    twin.reset();
    program.reset();
}

void TestNeighbours::useIt() const
{
    twin->click("backlight_off");
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::off, answersWithinMs);
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("false"));
    twin->click("backlight_on");
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::threeZonesAgain, answersWithinMs);
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("true"));
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestNeighbours::onTheInstanceSocket()
{
    QRandomGenerator random(7);
    const QByteArray message =
        encodeConnectionMessage(InstanceSocket::name(), {ConnectionMessage::NewStart, 0});
    const qulonglong window = ProgramWindow::shown();
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::unique_ptr<QLocalSocket>> strangers;
        const auto say = [&strangers](const QByteArray &bytes) {
            strangers.push_back(InstanceSocket::connect());
            strangers.back()->write(bytes);
            strangers.back()->flush();
        };
        for (int i = 0; i < 5; ++i) {
            say({}); // and nothing more
            say(noise(random, 1 + random.bounded(300)));
            say(message.left(1 + random.bounded(message.size() - 1)));
            say(message + noise(random, 100'000)); // genuine, and then without end
        }
        useIt();
        QElapsedTimer answer;
        answer.start();
        QCOMPARE(ServiceClient::readLine(), Lines::threeZonesAgain);
        QVERIFY2(answer.elapsed() < answersWithinMs, qPrintable(QString::number(answer.elapsed())));
    }
    QCOMPARE(ProgramWindow::shown(), window); // the one window, as a genuine start leaves it
}

void TestNeighbours::inTheCompanionSegment()
{
    QRandomGenerator random(7);
    const QList<QByteArray> contents{
        noise(random, 3), noise(random, 64), noise(random, 60'000),  lie(0xffffffff),
        lie(0x7ffffffe),  lie(11),           QByteArray(64, '\xff'), QByteArray(1, '\0'),
    };
    CompanionProcess companion;
    const auto followsTheCompanion = [&companion] {
        return companion.publish(QStringLiteral("lit,50"))
               && QTest::qWaitFor(
                   [] { return ProgramProcess::stored("brightlevel") == QLatin1String("50"); },
                   patienceMs)
               && companion.publish(QStringLiteral("lit,100"))
               && QTest::qWaitFor(
                   [] { return ProgramProcess::stored("brightlevel") == QLatin1String("100"); },
                   patienceMs);
    };
    QVERIFY(followsTheCompanion());
    for (const QByteArray &bytes : contents) {
        QVERIFY2(companion.publishBytes(bytes, bytes.size()), companion.error());
        QTest::qWait(seenAfterMs);
        QVERIFY(companion.lock());
        useIt(); // nobody waits for the lock
        QVERIFY(companion.unlock());
        QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("100"));
    }
    // One that can be read, but is on no scale.
    QVERIFY2(companion.publish(QStringLiteral("lit,2147483647")), companion.error());
    QTest::qWait(seenAfterMs);
    useIt();
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("100"));
    QVERIFY(followsTheCompanion());
}

QTEST_MAIN(TestNeighbours)
#include "tst_neighbours.moc"
