#include "guardtest.h"

#include "tests/support/testsystem.h"

#include <QLocalServer>

#include <algorithm>
#include <memory>
#include <vector>

using namespace GuardTest;

/// The guard in several processes.
class TestInstances : public InsidePrimary
{
    Q_OBJECT

public:
    explicit TestInstances(SingleApplication &guard)
        : InsidePrimary(guard)
    {}

private slots:
    void init();
    void secondStart();
    void twentyAtOnce();
    void anotherUser();
    void secondaries();
    void notifyOnSecondary();
    void aDeadPrimaryLocksNobodyOut();
    void aForeignPrimaryKeepsOthersOut();
    void unreachablePrimary();
    void lockLeftTaken();
    void startsComeOneByOne();
    void endsComeOneByOne();
    void tooSmallABlock();
    void noBlockAtAll();
    void whoMayConnect();
    void handOverAndTakeBack();
    void takeBackTooLate();
};

void TestInstances::init()
{
    started.clear();
}

void TestInstances::secondStart()
{
    OtherCopy copy(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(copy.leaves());
    QTRY_COMPARE(started.count(), 1);
    QVERIFY(copy.says("front " + QByteArray::number(QCoreApplication::applicationPid())));
    QVERIFY(copy.says("queued 1 for 5000 ms"));
    QVERIFY(!copy.warns("lock of the running copies"));
    QCOMPARE(readBlock(name)->secondaryCount, 0U);
}

void TestInstances::twentyAtOnce()
{
    constexpr int twenty = 20;
    std::vector<std::unique_ptr<OtherCopy>> copies;
    copies.reserve(twenty);
    for (int copy = 0; copy < twenty; ++copy) {
        copies.push_back(std::make_unique<OtherCopy>(QStringLiteral("crowd"), false,
                                                     SingleApplication::PerUser));
    }
    const auto runs = [](const auto &copy) {
        return copy->process.state() != QProcess::NotRunning;
    };
    QTRY_COMPARE_WITH_TIMEOUT(std::count_if(copies.begin(), copies.end(), runs), 1, 30'000);
    OtherCopy &primary = **std::find_if(copies.begin(), copies.end(), runs);
    QVERIFY(primary.stays());
    for (const auto &copy : copies) {
        QVERIFY(copy.get() == &primary || copy->leaves());
    }
    QTRY_VERIFY(primary.says("started"));
    QTest::qWait(500); // for whatever it is still to read
    primary.says("started");
    const int announced = primary.output.count("started");
    QVERIFY2(announced < twenty, QByteArray::number(announced).constData());
}

void TestInstances::anotherUser()
{
    OtherCopy copy(QStringLiteral("somebody else"), false, SingleApplication::PerUser);
    QVERIFY(copy.stays());
    QVERIFY(started.isEmpty());
    OtherCopy forAll(QStringLiteral("guarded"), false, 0);
    QVERIFY(forAll.stays());
    QVERIFY(started.isEmpty());
}

void TestInstances::secondaries()
{
    const QString secondaryName = ownName(QString(), 0);
    OtherCopy primary(QStringLiteral("a"), true, 0);
    QVERIFY(primary.stays());
    OtherCopy first(QStringLiteral("b"), true, 0);
    QVERIFY(first.stays());
    QCOMPARE(readBlock(secondaryName)->secondaryCount, 1U);
    OtherCopy second(QStringLiteral("b"), true, 0);
    QVERIFY(second.stays());
    QCOMPARE(readBlock(secondaryName)->secondaryCount, 2U);
    QTest::qWait(200);
    QVERIFY(!primary.says("started"));

    // The primary copy ends; the block stays with the others, and the next one goes on counting.
    QVERIFY(primary.end());
    QVERIFY(!readBlock(secondaryName)->primaryRunning);
    QCOMPARE(readBlock(secondaryName)->primaryProcessId, -1);
    OtherCopy next(QStringLiteral("c"), true, 0);
    QVERIFY(next.stays());
    QVERIFY(readBlock(secondaryName)->primaryRunning);
    QCOMPARE(readBlock(secondaryName)->primaryProcessId, next.process.processId());
    QCOMPARE(readBlock(secondaryName)->secondaryCount, 2U);
    OtherCopy leaving(QStringLiteral("d"), false, 0);
    QVERIFY(leaving.leaves());
    QTRY_VERIFY(next.says("started"));
}

void TestInstances::notifyOnSecondary()
{
    OtherCopy primary(QStringLiteral("a"), true, SingleApplication::NotifyOnSecondary);
    QVERIFY(primary.stays());
    OtherCopy secondary(QStringLiteral("a"), true, SingleApplication::NotifyOnSecondary);
    QVERIFY(secondary.stays());
    QTRY_VERIFY(primary.says("started"));
    QVERIFY(!secondary.says("started"));
}

void TestInstances::aDeadPrimaryLocksNobodyOut()
{
    for (int round = 0; round < 5; ++round) {
        OtherCopy primary(QStringLiteral("killed"), false, SingleApplication::PerUser);
        QVERIFY(primary.stays());
        primary.process.kill();
        QVERIFY(primary.process.waitForFinished());
    }
}

void TestInstances::aForeignPrimaryKeepsOthersOut()
{
    const QString foreign = ownName(QStringLiteral("foreign"), SingleApplication::PerUser);
    QSharedMemory memory(foreign);
    QVERIFY(memory.create(sizeof(InstanceBlock)));
    static_cast<InstanceBlock *>(memory.data())->primaryRunning = true;
    QLocalServer server;
    QLocalServer::removeServer(foreign);
    QVERIFY(server.listen(foreign));

    OtherCopy leaving(QStringLiteral("foreign"), false, SingleApplication::PerUser);
    QVERIFY(QTest::qWaitFor([&server] { return server.hasPendingConnections(); }, 10'000));
    QLocalSocket *const connection = server.nextPendingConnection();
    QTRY_VERIFY(connection->bytesAvailable() > 0);
    QCOMPARE(connection->readAll().toHex(),
             encodeConnectionMessage(foreign, {ConnectionMessage::NewStart, 0}).toHex());
    QVERIFY(leaving.leaves());

    constexpr int options = SingleApplication::PerUser | SingleApplication::NotifyOnSecondary;
    const QString noisy = ownName(QStringLiteral("noisy"), options);
    QCOMPARE(noisy, ownName(QStringLiteral("noisy"), SingleApplication::PerUser));
    QSharedMemory noisyMemory(noisy);
    QVERIFY(noisyMemory.create(sizeof(InstanceBlock)));
    static_cast<InstanceBlock *>(noisyMemory.data())->primaryRunning = true;
    static_cast<InstanceBlock *>(noisyMemory.data())->secondaryCount = 41;
    QLocalServer noisyServer;
    QLocalServer::removeServer(noisy);
    QVERIFY(noisyServer.listen(noisy));
    OtherCopy secondary(QStringLiteral("noisy"), true, options);
    QVERIFY(secondary.stays());
    QTRY_VERIFY(noisyServer.hasPendingConnections());
    QLocalSocket *const announced = noisyServer.nextPendingConnection();
    QTRY_VERIFY(announced->bytesAvailable() > 0);
    QCOMPARE(announced->readAll().toHex(),
             encodeConnectionMessage(noisy, {ConnectionMessage::SecondaryStart, 42}).toHex());
}

void TestInstances::unreachablePrimary()
{
    const QString foreign = ownName(QStringLiteral("deaf"), SingleApplication::PerUser);
    QSharedMemory memory(foreign);
    QVERIFY(memory.create(sizeof(InstanceBlock)));
    static_cast<InstanceBlock *>(memory.data())->primaryRunning = true;
    OtherCopy leaving(QStringLiteral("deaf"), false, SingleApplication::PerUser);
    QVERIFY(leaving.leaves());
}

void TestInstances::lockLeftTaken()
{
    OtherCopy holder(QStringLiteral("guarded"), false, SingleApplication::PerUser,
                     QStringLiteral("--hold"));
    QTRY_VERIFY(holder.says("holds"));
    holder.process.kill();
    QVERIFY(holder.process.waitForFinished());
    OtherCopy copy(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(copy.leaves());
    QTRY_COMPARE(started.count(), 1);
}

void TestInstances::startsComeOneByOne()
{
    FakePlatform platform;
    auto lock = platform.acquireLock(ownName(QStringLiteral("slow"), SingleApplication::PerUser),
                                     timeoutMs);
    QVERIFY(lock);
    OtherCopy copy(QStringLiteral("slow"), false, SingleApplication::PerUser);
    QTest::qWait(1000);
    QVERIFY(!copy.says("runs"));
    lock.reset();
    QVERIFY(copy.stays());
}

void TestInstances::endsComeOneByOne()
{
    const QString slow = ownName(QStringLiteral("slow"), SingleApplication::PerUser);
    OtherCopy copy(QStringLiteral("slow"), false, SingleApplication::PerUser);
    QVERIFY(copy.stays());
    FakePlatform platform;
    auto lock = platform.acquireLock(slow, timeoutMs);
    QVERIFY(lock);
    copy.process.write("end\n");
    QVERIFY(!copy.process.waitForFinished(1000));
    QVERIFY(readBlock(slow)->primaryRunning);
    lock.reset();
    QVERIFY(copy.process.waitForFinished());
}

void TestInstances::tooSmallABlock()
{
    QSharedMemory memory(ownName(QStringLiteral("small"), SingleApplication::PerUser));
    QVERIFY(memory.create(4));
    OtherCopy copy(QStringLiteral("small"), false, SingleApplication::PerUser);
    const bool rounded = memory.size() >= static_cast<int>(sizeof(InstanceBlock));
    QVERIFY(rounded ? copy.stays() : copy.leaves()); // some systems give whole pages
}

void TestInstances::noBlockAtAll()
{
    // Not a folder, so nothing can be made in it. In place of one that is missing the toolkit takes
    // the root of the disk, where the superuser may write.
    const OtherTemporaryFolder none(QCoreApplication::applicationFilePath());
    const bool made = QSharedMemory(QStringLiteral("probe")).create(1);
    OtherCopy copy(QStringLiteral("homeless"), false, SingleApplication::PerUser);
    QVERIFY(made ? copy.stays() : copy.leaves()); // some systems make blocks without a folder
    // Whoever runs is not known, and may come to the front all the same.
    QVERIFY(made || copy.says("front -1"));
    QVERIFY(made || copy.says("queued 1 for"));
}

void TestInstances::whoMayConnect()
{
    const auto own = TestSystem::localServerPermissions(name);
    if (!own) {
        QSKIP("local servers have no files here");
    }
    constexpr QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    QCOMPARE(*own & (QFile::WriteOwner | others), QFile::Permissions(QFile::WriteOwner));

    OtherCopy forAll(QStringLiteral("anybody"), false, 0);
    QVERIFY(forAll.stays());
    const auto shared = TestSystem::localServerPermissions(ownName(QStringLiteral("anybody"), 0));
    QCOMPARE(*shared & others, others);
}

void TestInstances::handOverAndTakeBack()
{
    const auto staysTheSame = [this] {
        const auto connected = announce(name, ConnectionMessage::NewStart);
        application.takeBack(); // there is nothing to take back
        QTest::qWait(50);
        return connected->state() == QLocalSocket::ConnectedState;
    };
    QVERIFY(staysTheSame());
    QVERIFY(readBlock(name)->primaryRunning);
    application.handOver();
    application.handOver();
    QVERIFY(!readBlock(name)); // it goes with the last who uses it
    QLocalSocket late;
    late.connectToServer(name);
    QVERIFY(!late.waitForConnected(timeoutMs));
    application.takeBack();
    QVERIFY(readBlock(name)->primaryRunning);
    QCOMPARE(readBlock(name)->primaryProcessId, QCoreApplication::applicationPid());
    QVERIFY(staysTheSame());
    started.clear();
    OtherCopy copy(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(copy.leaves());
    QTRY_COMPARE(started.count(), 1);
}

void TestInstances::takeBackTooLate()
{
    application.handOver();
    OtherCopy next(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(next.stays());
    QVERIFY(!next.warns("lock of the running copies"));
    application.takeBack();
    QCOMPARE(readBlock(name)->primaryProcessId, next.process.processId());
    QCOMPARE(readBlock(name)->secondaryCount, 0U);
    OtherCopy copy(QStringLiteral("guarded"), false, SingleApplication::PerUser);
    QVERIFY(copy.leaves());
    QTRY_VERIFY(next.says("started"));
    QVERIFY(started.isEmpty());
    QVERIFY(next.end());
    application.takeBack(); // the other has gone
    QCOMPARE(readBlock(name)->primaryProcessId, QCoreApplication::applicationPid());
}

int main(int argc, char **argv)
{
    return runGuarded<TestInstances>(argc, argv);
}

#include "tst_instances.moc"
