#include "guardtest.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <thread>

using namespace GuardTest;

namespace {

constexpr qint64 bound = 65'536;

} // namespace

/// The guard as the primary copy, met by clients of this very process.
class TestSingleApplication : public QObject
{
    Q_OBJECT

public:
    explicit TestSingleApplication(SingleApplication &guard)
        : application(guard)
    {}

private slots:
    void init();
    void cleanup();
    void block();
    void newStart();
    void secondaryThatIsNotAnnounced();
    void otherTypes();
    void droppedConnections_data();
    void droppedConnections();
    void silentClient();
    void oneByteAtATime();
    void clientThatLeavesAtOnce();
    void messages();
    void everyByteIsPassedOn();
    void longMessages();
    void longMessagesOneAfterTheOther();
    void randomMessages();

private:
    std::unique_ptr<QLocalSocket> connectClient() const { return connectTo(name); }
    std::unique_ptr<QLocalSocket> announce(quint8 type, quint32 number = 0) const
    {
        return GuardTest::announce(name, type, number);
    }
    /// The bytes of all messages so far.
    qint64 length() const;

    SingleApplication &application;
    QString name;
    std::unique_ptr<QSignalSpy> started;
    std::unique_ptr<QSignalSpy> received;
};

void TestSingleApplication::init()
{
    name = ownName(QStringLiteral("guarded"), SingleApplication::PerUser);
    started = std::make_unique<QSignalSpy>(&application, SIGNAL(instanceStarted()));
    received =
        std::make_unique<QSignalSpy>(&application, SIGNAL(receivedMessage(quint32, QByteArray)));
    QVERIFY(started->isValid() && received->isValid());
}

/// Of clients that have gone nothing stays behind, and nobody is told of nothing.
void TestSingleApplication::cleanup()
{
    QTRY_VERIFY(application.findChildren<QLocalSocket *>().isEmpty());
    for (const QList<QVariant> &arguments : qAsConst(*received)) {
        QVERIFY(!arguments.at(1).toByteArray().isEmpty());
    }
}

qint64 TestSingleApplication::length() const
{
    qint64 sum = 0;
    for (const QList<QVariant> &arguments : qAsConst(*received)) {
        sum += arguments.at(1).toByteArray().size();
    }
    return sum;
}

void TestSingleApplication::block()
{
    const auto shared = readBlock(name);
    QVERIFY(shared);
    QVERIFY(shared->primaryRunning);
    QCOMPARE(shared->primaryProcessId, QCoreApplication::applicationPid());
    QCOMPARE(shared->secondaryCount, 0U);
}

void TestSingleApplication::newStart()
{
    const auto client = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 1);
    QTest::qWait(50);
    QCOMPARE(started->count(), 1);
    QVERIFY(received->isEmpty());
    QCOMPARE(client->state(), QLocalSocket::ConnectedState);
}

void TestSingleApplication::secondaryThatIsNotAnnounced()
{
    const auto client = announce(ConnectionMessage::SecondaryStart, 3);
    client->waitForBytesWritten(timeoutMs);
    QTest::qWait(200);
    QVERIFY(started->isEmpty()); // without NotifyOnSecondary
    client->write("hello");
    QTRY_COMPARE(received->count(), 1);
    QCOMPARE(received->first().at(0).toUInt(), 3U);
}

void TestSingleApplication::otherTypes()
{
    for (const quint8 type : std::initializer_list<quint8>{0, 3, 255}) {
        const auto client = announce(type, 9);
        QTest::qWait(150);
        QCOMPARE(client->state(), QLocalSocket::ConnectedState);
    }
    QVERIFY(started->isEmpty());
    QVERIFY(received->isEmpty());
}

void TestSingleApplication::droppedConnections_data()
{
    const QString own = ownName(QStringLiteral("guarded"), SingleApplication::PerUser);
    const QByteArray right = encodeConnectionMessage(own, {ConnectionMessage::NewStart, 0});
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another name") << encodeConnectionMessage(
        ownName(QStringLiteral("other"), SingleApplication::PerUser),
        {ConnectionMessage::NewStart, 0});
    QByteArray wrong = right;
    wrong[wrong.size() - 1] = static_cast<char>(wrong.at(wrong.size() - 1) ^ 1);
    QTest::newRow("wrong checksum") << wrong;
    QTest::newRow("cut short") << right.left(30);
    QTest::newRow("twice in one") << right + right;
    QTest::newRow("text") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("large") << QByteArray(100'000, 'x');
    QTest::newRow("huge length") << QByteArray::fromHex("fffffffe") + right.mid(4);
}

void TestSingleApplication::droppedConnections()
{
    QFETCH(QByteArray, bytes);
    const auto client = connectClient();
    client->write(bytes);
    client->flush();
    QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);
    QVERIFY(started->isEmpty());
    QVERIFY(received->isEmpty());
}

void TestSingleApplication::silentClient()
{
    QElapsedTimer waiting;
    waiting.start();
    const auto client = connectClient();
    QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);
    QVERIFY2(waiting.elapsed() >= 90, qPrintable(QString::number(waiting.elapsed())));
    QVERIFY(started->isEmpty());
}

void TestSingleApplication::oneByteAtATime()
{
    const QByteArray message = encodeConnectionMessage(name, {ConnectionMessage::NewStart, 0});
    std::thread sender([this, message] {
        const auto client = connectClient();
        for (const char byte : message) {
            if (client->write(&byte, 1) != 1 || !client->waitForBytesWritten(1000)) {
                break; // dropped
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    });
    QTest::qWait(1500);
    sender.join();
    QVERIFY(started->isEmpty());
    const auto client = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 1);
}

void TestSingleApplication::clientThatLeavesAtOnce()
{
    for (int start = 0; start < 20; ++start) {
        const auto client = announce(ConnectionMessage::NewStart);
        client->waitForBytesWritten(timeoutMs);
        client->close(); // before the primary copy has looked
        QTRY_COMPARE(started->count(), start + 1);
    }
}

void TestSingleApplication::messages()
{
    auto client = announce(ConnectionMessage::NewStart, 5);
    QTRY_COMPARE(started->count(), 1);
    client->write("first");
    QTRY_COMPARE(received->count(), 1);
    client->write("second");
    QTRY_COMPARE(received->count(), 2);
    client->write("last");
    client->waitForBytesWritten(timeoutMs);
    client.reset();
    QTRY_COMPARE(received->count(), 3);
    QByteArrayList texts;
    for (const QList<QVariant> &arguments : qAsConst(*received)) {
        QCOMPARE(arguments.at(0).toUInt(), 5U);
        texts.append(arguments.at(1).toByteArray());
    }
    QCOMPARE(texts, QByteArrayList({"first", "second", "last"}));
}

/// Also one that comes alone, and the last that there is room for.
void TestSingleApplication::everyByteIsPassedOn()
{
    const auto client = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 1);
    client->write("x");
    QTRY_COMPARE(length(), 1);
    client->write(QByteArray(bound - 2, 'x'));
    QTRY_COMPARE(length(), bound - 1);
    client->write("x");
    QTRY_COMPARE(length(), bound);
    QCOMPARE(client->state(), QLocalSocket::ConnectedState);
}

void TestSingleApplication::longMessages()
{
    const auto client = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 1);
    client->write(QByteArray(bound, 'x'));
    QTRY_COMPARE(length(), bound);
    QTest::qWait(100);
    QCOMPARE(client->state(), QLocalSocket::ConnectedState);
    client->write("y");
    QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);

    const auto flood = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 2);
    flood->write(QByteArray(16 * bound, 'x'));
    QTRY_COMPARE(flood->state(), QLocalSocket::UnconnectedState);
    QCOMPARE(length(), 2 * bound);
}

/// A copy may send as much as those that were there before it.
void TestSingleApplication::longMessagesOneAfterTheOther()
{
    for (int copies = 1; copies <= 10; ++copies) {
        const auto client = announce(ConnectionMessage::NewStart);
        QTRY_COMPARE(started->count(), copies);
        client->write(QByteArray(bound - 1, 'x'));
        QTRY_COMPARE(length(), copies * (bound - 1));
        client->disconnectFromServer();
        QCoreApplication::processEvents();
    }
}

void TestSingleApplication::randomMessages()
{
    QRandomGenerator random(5);
    const QByteArray right = encodeConnectionMessage(name, {ConnectionMessage::NewStart, 0});
    for (int round = 0; round < 10'000; ++round) {
        QByteArray bytes = right;
        if (random.bounded(2) == 0) { // anything at all, else a message with some bytes changed
            bytes.resize(1 + random.bounded(100));
            std::generate(bytes.begin(), bytes.end(),
                          [&random] { return static_cast<char>(random.bounded(256)); });
        } else {
            for (int change = random.bounded(1, 4); change > 0; --change) {
                const int place = random.bounded(bytes.size());
                bytes[place] = static_cast<char>(bytes.at(place) + change);
            }
        }
        const auto client = connectClient();
        QSignalSpy dropped(client.get(), SIGNAL(disconnected()));
        client->write(bytes);
        client->flush();
        QVERIFY(dropped.wait());
    }
    QVERIFY(started->isEmpty());
    QVERIFY(received->isEmpty());
    const auto client = announce(ConnectionMessage::NewStart);
    QTRY_COMPARE(started->count(), 1);
}

int main(int argc, char **argv)
{
    return GuardTest::runGuarded<TestSingleApplication>(argc, argv);
}

#include "tst_singleapplication.moc"
