#include "system/filelock.h"
#include "system/segmentlock.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSharedMemory>
#include <QSystemSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <atomic>
#include <csignal>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Ends a process at once, before it can give anything back.
void die()
{
    ::kill(::getpid(), SIGKILL);
}

/// Lets a process of its own do something, and waits for its end.
void inAnotherProcess(const std::function<void()> &action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        action();
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
}

} // namespace

/// Locks between processes, as Linux makes them.
class TestLocks : public QObject
{
    Q_OBJECT

private slots:
    void fileIsTheOwnersAlone();
    void fileGoesWithTheLock();
    void oneHolderAtATime();
    void oneHolderAtATimeInAHurry();
    void fileThatCannotBeMade_data();
    void fileThatCannotBeMade();
    void segmentWithoutALock();
    void oneSegmentLockAtATime();
    void segmentThatCannotBeAskedFor();
    void segmentLockOfAnotherProcess_data();
    void segmentLockOfAnotherProcess();

private:
    static bool runs(const QString &nativeKey)
    {
        bool ran = false;
        const bool had = SegmentLock::tryRun(nativeKey, [&ran] { ran = true; });
        return had && ran;
    }
};

void TestLocks::fileIsTheOwnersAlone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lock"));
    const mode_t before = ::umask(0);
    const auto lock = FileLock::acquire(path, 0);
    ::umask(before);
    QVERIFY(lock);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther
                                      | QFile::WriteOther | QFile::ExeGroup | QFile::ExeOther;
    QCOMPARE(QFileInfo(path).permissions() & others, QFile::Permissions());
    QVERIFY(QFileInfo(path).permission(QFile::ReadOwner | QFile::WriteOwner));
}

void TestLocks::fileGoesWithTheLock()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lock"));
    auto lock = FileLock::acquire(path, 0);
    QVERIFY(lock);
    QVERIFY(QFileInfo::exists(path));
    lock.reset();
    QVERIFY(!QFileInfo::exists(path));
}

void TestLocks::oneHolderAtATime()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lock"));
    auto lock = FileLock::acquire(path, 0);
    QVERIFY(lock);
    QVERIFY(!FileLock::acquire(path, 0));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!FileLock::acquire(path, 100));
    QVERIFY(timer.elapsed() >= 100);
    QVERIFY(QFileInfo::exists(path));
    lock.reset();
    QVERIFY(FileLock::acquire(path, 0));
}

/// Whoever has opened the file just before its holder removed it locks what nobody else finds.
void TestLocks::oneHolderAtATimeInAHurry()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lock"));
    std::atomic<int> holders = 0;
    std::atomic<int> tooMany = 0;
    std::atomic<int> held = 0;
    std::array<std::thread, 4> threads;
    for (std::thread &thread : threads) {
        thread = std::thread([&] {
            for (int attempt = 0; attempt < 5000; ++attempt) {
                if (const auto lock = FileLock::acquire(path, 0)) {
                    ++held;
                    tooMany += ++holders > 1 ? 1 : 0;
                    std::this_thread::yield();
                    --holders;
                }
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QVERIFY(held > 0);
    QCOMPARE(tooMany.load(), 0);
}

void TestLocks::fileThatCannotBeMade_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << QStringLiteral("missing/lock");
    QTest::newRow("a link, which may lead anywhere") << QStringLiteral("link");
}

/// There is nothing to wait for.
void TestLocks::fileThatCannotBeMade()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target"));
    QVERIFY(QFile::link(target, folder.filePath(QStringLiteral("link"))));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!FileLock::acquire(folder.filePath(path), 20'000));
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!QFileInfo::exists(target));
}

void TestLocks::segmentWithoutALock()
{
    QVERIFY(runs(QStringLiteral("/tmp/qipc_sharedmemory_nobodyhasmadeit")));
}

void TestLocks::oneSegmentLockAtATime()
{
    QSharedMemory segment(QStringLiteral("LumikeyTestLocksSegment"));
    QVERIFY(segment.create(1));
    const QString key = segment.nativeKey();
    for (int time = 0; time < 2; ++time) {
        bool had = true;
        bool ran = false;
        QVERIFY(SegmentLock::tryRun(
            key, [&] { had = SegmentLock::tryRun(key, [&ran] { ran = true; }); }));
        QVERIFY(!had && !ran);
    }
    QVERIFY(segment.lock());
    bool ran = false;
    QVERIFY(!SegmentLock::tryRun(key, [&ran] { ran = true; }));
    QVERIFY(!ran);
    QVERIFY(segment.unlock());
    QVERIFY(runs(key));
}

void TestLocks::segmentThatCannotBeAskedFor()
{
    bool ran = false;
    QVERIFY(!SegmentLock::tryRun(QStringLiteral("/dev/null/qipc_sharedmemory_none"),
                                 [&ran] { ran = true; }));
    QVERIFY(!ran);
}

void TestLocks::segmentLockOfAnotherProcess_data()
{
    QTest::addColumn<bool>("killed");
    QTest::newRow("given back") << false;
    QTest::newRow("killed while it had it") << true;
}

/// However another process ends, the lock can be had after it.
void TestLocks::segmentLockOfAnotherProcess()
{
    QFETCH(bool, killed);
    // The lock by itself: a segment would wait for it at its end.
    const QString name = QStringLiteral("LumikeyTestLocks");
    const QSystemSemaphore lock(name, 1, QSystemSemaphore::Create);
    QCOMPARE(lock.error(), QSystemSemaphore::NoError);
    const QString key = QSharedMemory(name).nativeKey();
    QVERIFY(runs(key));
    inAnotherProcess([&] {
        SegmentLock::tryRun(key, [killed] {
            if (killed) {
                die();
            }
        });
    });
    QVERIFY(runs(key));
}

QTEST_GUILESS_MAIN(TestLocks)
#include "tst_locks.moc"
