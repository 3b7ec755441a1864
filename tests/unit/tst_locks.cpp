#include "system/filelock.h"
#include "system/segmentlock.h"

#include <QFileInfo>
#include <QSharedMemory>
#include <QSystemSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

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
    void segmentWithoutALock();
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
}

void TestLocks::segmentWithoutALock()
{
    QVERIFY(runs(QStringLiteral("/tmp/qipc_sharedmemory_nobodyhasmadeit")));
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
