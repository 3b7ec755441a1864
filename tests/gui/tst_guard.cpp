#include "guardtest.h"

#include "app/singleapplicationprivate.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>

using namespace GuardTest;

namespace {

constexpr const char *leftTaken = "The lock of the running copies was left taken; giving it back.";
constexpr int tries = 10;

} // namespace

/// The guard where others are in its way or late, and what this program makes no use of.
class TestGuard : public InsidePrimary
{
    Q_OBJECT

public:
    explicit TestGuard(SingleApplication &guard)
        : InsidePrimary(guard)
    {}

private slots:
    void init();
    void unknownUser();
    void lockThatIsNotGivenBack();
    void lockThatIsNotGivenBackAtTheEnd();
    void laterStartsThatCannotGetThrough();
    void reachableAfterAKill();
    void secondaryThatKeepsQuiet();
    void primaryDoesNotTellItself();
    void secondaryEndsAlone();
    void secondaryHasNothingToHandOver();
    void otherTypesWithNotify();
    void nobodyIsWaiting();
    void wordsThatComeLater();
    void wordsThatAreThereAreNotWaitedFor();
    void silenceIsNotWaitedForAnyLonger();

private:
    /// The shortest of some tries, for the machine may be busy with others; ends at the first that
    /// is shorter than @p enough.
    template<class Try> qint64 shortest(Try attempt, qint64 enough);
};

void TestGuard::init()
{
    started.clear();
}

template<class Try> qint64 TestGuard::shortest(Try attempt, qint64 enough)
{
    qint64 best = std::numeric_limits<qint64>::max();
    for (int number = 0; number < tries && best >= enough; ++number) {
        QElapsedTimer timer;
        timer.start();
        attempt();
        best = qMin(best, timer.elapsed());
    }
    return best;
}

/// The folders that are a user's home stand for the user.
void TestGuard::unknownUser()
{
    OtherCopy copy(QString(), false, SingleApplication::PerUser);
    QVERIFY(copy.stays());
    QVERIFY(readBlock(ownName(std::nullopt, SingleApplication::PerUser)));
}

void TestGuard::lockThatIsNotGivenBack()
{
    OtherCopy holder(QStringLiteral("guarded"), false, SingleApplication::PerUser,
                     QStringLiteral("--hold"));
    QTRY_VERIFY(holder.says("holds"));
    OtherCopy copy(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(copy.leaves());
    QVERIFY(copy.warns(leftTaken));
    QTRY_COMPARE(started.count(), 1);
}

void TestGuard::lockThatIsNotGivenBackAtTheEnd()
{
    OtherCopy copy(QStringLiteral("ending"), false, SingleApplication::PerUser);
    QVERIFY(copy.stays());
    QVERIFY(!copy.warns(leftTaken));
    OtherCopy holder(QStringLiteral("ending"), false, SingleApplication::PerUser,
                     QStringLiteral("--hold"));
    QTRY_VERIFY(holder.says("holds"));
    QVERIFY(copy.end());
    QVERIFY(copy.warns(leftTaken));
}

/// The copy runs all the same.
void TestGuard::laterStartsThatCannotGetThrough()
{
    const QTemporaryDir folder;
    const QString deep = folder.filePath(QString(120, QLatin1Char('x')));
    QVERIFY(QDir().mkpath(deep));
    constexpr const char *unreachable = "Later starts cannot reach this one:";
    OtherCopy near(QStringLiteral("near"), false, SingleApplication::PerUser);
    QVERIFY(near.stays());
    QVERIFY(!near.warns(unreachable));

    // Where sockets are files, their paths are shorter than others may be.
    const OtherTemporaryFolder other(deep);
    const bool reachable = QLocalServer().listen(QStringLiteral("probe"));
    OtherCopy far(QStringLiteral("far"), false, SingleApplication::PerUser);
    QVERIFY(far.stays());
    QCOMPARE(far.warns(unreachable), !reachable);
    // With the folder goes the file that its block is named after, and a block left behind would be
    // taken for that of whoever is given the file's number next.
    QVERIFY(far.end());
}

/// What a killed copy has left behind is in nobody's way.
void TestGuard::reachableAfterAKill()
{
    OtherCopy killed(QStringLiteral("killed"), false, SingleApplication::PerUser);
    QVERIFY(killed.stays());
    killed.process.kill();
    QVERIFY(killed.process.waitForFinished());
    OtherCopy next(QStringLiteral("killed"), false, SingleApplication::PerUser);
    QVERIFY(next.stays());
    OtherCopy later(QStringLiteral("killed"), false, SingleApplication::PerUser);
    QVERIFY(later.leaves());
    QTRY_VERIFY(next.says("started"));
}

void TestGuard::secondaryThatKeepsQuiet()
{
    const QString foreign = ownName(QStringLiteral("quiet"), SingleApplication::PerUser);
    QSharedMemory memory(foreign);
    QVERIFY(memory.create(sizeof(InstanceBlock)));
    static_cast<InstanceBlock *>(memory.data())->primaryRunning = true;
    QLocalServer server;
    QLocalServer::removeServer(foreign);
    QVERIFY(server.listen(foreign));
    OtherCopy secondary(QStringLiteral("quiet"), true, SingleApplication::PerUser);
    QVERIFY(secondary.stays());
    QVERIFY(!server.waitForNewConnection(0) && !server.hasPendingConnections());
}

void TestGuard::primaryDoesNotTellItself()
{
    constexpr int options = SingleApplication::NotifyOnSecondary;
    OtherCopy primary(QStringLiteral("a"), true, options);
    QVERIFY(primary.stays());
    const auto announced = [&primary] {
        primary.says("started");
        return primary.output.count("started");
    };
    OtherCopy secondary(QStringLiteral("a"), true, options);
    QVERIFY(secondary.stays());
    QTRY_VERIFY(announced() >= 1);
    QTest::qWait(100);
    QCOMPARE(announced(), 1);
}

void TestGuard::secondaryEndsAlone()
{
    OtherCopy primary(QStringLiteral("a"), true, SingleApplication::OmitPath);
    QVERIFY(primary.stays());
    OtherCopy secondary(QStringLiteral("a"), true, SingleApplication::OmitPath);
    QVERIFY(secondary.stays());
    QVERIFY(secondary.end());
    const auto shared = readBlock(ownName(std::nullopt, SingleApplication::OmitPath));
    QVERIFY(shared && shared->primaryRunning);
    QCOMPARE(shared->primaryProcessId, primary.process.processId());
}

void TestGuard::secondaryHasNothingToHandOver()
{
    const QString shared = ownName(std::nullopt, SingleApplication::OmitVersion);
    OtherCopy primary(QStringLiteral("a"), true, SingleApplication::OmitVersion);
    QVERIFY(primary.stays());
    OtherCopy secondary(QStringLiteral("a"), true, SingleApplication::OmitVersion);
    QVERIFY(secondary.stays());
    QVERIFY(secondary.does("hand over"));
    QVERIFY(readBlock(shared)->primaryRunning);
    QVERIFY(primary.end());
    QVERIFY(secondary.does("take back"));
    QVERIFY(readBlock(shared)); // the secondary copy has a part in it still
    QVERIFY(!readBlock(shared)->primaryRunning);
}

/// That secondary copies are announced announces nobody else.
void TestGuard::otherTypesWithNotify()
{
    constexpr int options = SingleApplication::PerUser | SingleApplication::NotifyOnSecondary;
    FakePlatform platform;
    platform.user = QStringLiteral("noisy");
    SingleApplicationPrivate guard(application, platform, options);
    QVERIFY(guard.start(false, timeoutMs));
    const QString noisy = ownName(QStringLiteral("noisy"), SingleApplication::PerUser);
    std::vector<std::unique_ptr<QLocalSocket>> clients;
    // The last one is heard when all before it have been.
    for (const quint8 type : std::initializer_list<quint8>{0, 3, 255}) {
        clients.push_back(announce(noisy, type));
    }
    clients.push_back(announce(noisy, ConnectionMessage::SecondaryStart));
    QTRY_VERIFY(!started.isEmpty());
    QTest::qWait(50);
    QCOMPARE(started.count(), 1);
}

void TestGuard::nobodyIsWaiting()
{
    FakePlatform platform;
    platform.user = QStringLiteral("lonely");
    SingleApplicationPrivate guard(application, platform, SingleApplication::PerUser);
    QVERIFY(guard.start(false, timeoutMs));
    guard.slotConnectionEstablished();
    QVERIFY(started.isEmpty());
}

/// A later start may be held up between its connection and its first words.
void TestGuard::wordsThatComeLater()
{
    for (int attempt = 0; attempt < tries && started.isEmpty(); ++attempt) {
        std::thread late([this] {
            const auto client = connectTo(name);
            std::this_thread::sleep_for(std::chrono::milliseconds(30));
            client->write(encodeConnectionMessage(name, {ConnectionMessage::NewStart, 0}));
            client->waitForBytesWritten(1000);
            client->waitForDisconnected(timeoutMs);
        });
        started.wait(3 * timeoutMs);
        late.join();
    }
    QVERIFY(!started.isEmpty());
}

void TestGuard::wordsThatAreThereAreNotWaitedFor()
{
    const qint64 took = shortest(
        [this] {
            const auto client = announce(name, ConnectionMessage::NewStart);
            started.wait();
        },
        80);
    QVERIFY2(took < 80, qPrintable(QString::number(took)));
}

void TestGuard::silenceIsNotWaitedForAnyLonger()
{
    const qint64 took = shortest(
        [this] {
            const auto client = connectTo(name);
            QSignalSpy dropped(client.get(), SIGNAL(disconnected()));
            dropped.wait();
        },
        180);
    QVERIFY2(took < 180, qPrintable(QString::number(took)));
}

int main(int argc, char **argv)
{
    return runGuarded<TestGuard>(argc, argv);
}

#include "tst_guard.moc"
