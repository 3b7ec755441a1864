#include "system/polkit.h"
#include "tests/support/guitest.h"

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/select.h>
#include <unistd.h>

/// Being started again as root, with a stand-in for pkexec first on the path.
class TestPolkit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void launched();
    void launchedInTheSamePlace();
    void commandLine_data();
    void commandLine();
    void waitsForTheAnswer();
    void waitsThroughSignalsAndNoise();
    void refused_data();
    void refused();
    void refusedAfterAWhile();
    void targetIsMissing();
    void noPkexec();
    void noDescriptorIsLeft();
    void notAProgram();

private:
    /// @param body what the stand-in does with "$@", the command that it is to run as root
    void makePkexec(const QByteArray &body) const;
    /// Writes a target that notes its arguments and what it knows of the display.
    QString makeTarget(const QString &name = QStringLiteral("target")) const;
    QByteArray recorded() const { return readFile(folder->filePath(QStringLiteral("record"))); }

    std::unique_ptr<QTemporaryDir> folder;
    QByteArray oldPath;
};

namespace {

/// As pkexec does when it becomes the program: nothing inherited stays open, and it moves away.
constexpr const char *becomeTheProgram =
    "for fd in $(ls /proc/$$/fd); do [ \"$fd\" -gt 2 ] && eval \"exec $fd>&-\"; done\n"
    "cd /\n"
    "exec \"$@\"\n";

void makeScript(const QString &path, const QByteArray &body)
{
    writeFile(path, "#!/bin/bash\n" + body);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

/// What started the test may have left pipes open; here the stand-in inherits none but those that
/// relaunch() gives it.
void TestPolkit::initTestCase()
{
    for (int file = STDERR_FILENO + 1; file < FD_SETSIZE; ++file) {
        ::fcntl(file, F_SETFD, FD_CLOEXEC); // no matter where there is none
    }
}

void TestPolkit::init()
{
    folder = std::make_unique<QTemporaryDir>();
    oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder->path()) + ':' + oldPath);
}

void TestPolkit::cleanup()
{
    qputenv("PATH", oldPath);
}

void TestPolkit::makePkexec(const QByteArray &body) const
{
    makeScript(folder->filePath(QStringLiteral("pkexec")), body);
}

QString TestPolkit::makeTarget(const QString &name) const
{
    const QString path = folder->filePath(name);
    const QByteArray record = QFile::encodeName(folder->filePath(QStringLiteral("record")));
    makeScript(path, "echo \"$#|$DISPLAY|$XAUTHORITY|$PWD\" >'" + record + ".new'\nmv '" + record
                         + ".new' '" + record + "'\nsleep 2\n");
    return path;
}

void TestPolkit::launched()
{
    makePkexec(becomeTheProgram);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Polkit::relaunch(makeTarget(QString::fromUtf8("my tärget"))),
             Platform::Relaunch::Launched);
    QVERIFY(timer.elapsed() < 1800);          // the program itself is not waited for
    QTRY_VERIFY(recorded().startsWith("0|")); // no arguments
}

void TestPolkit::launchedInTheSamePlace()
{
    makePkexec(QByteArray("export -n DISPLAY XAUTHORITY; unset DISPLAY XAUTHORITY\n")
               + becomeTheProgram); // root's environment is a new one
    qputenv("DISPLAY", ":77");
    qputenv("XAUTHORITY", "/tmp/a b/authority");
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder->path());
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Launched);
    QDir::setCurrent(before);
    QTRY_COMPARE(recorded(), "0|:77|/tmp/a b/authority|" + folder->path().toUtf8() + '\n');
}

void TestPolkit::commandLine_data()
{
    QTest::addColumn<QByteArrayList>("set");
    QTest::newRow("nothing") << QByteArrayList();
    QTest::newRow("X11") << QByteArrayList{"DISPLAY=:77", "XAUTHORITY=/tmp/a b/authority"};
    QTest::newRow("Wayland") << QByteArrayList{"WAYLAND_DISPLAY=wayland-7",
                                               "XDG_RUNTIME_DIR=/run/user/7"};
    QTest::newRow("both, one of them empty")
        << QByteArrayList{"DISPLAY=", "XAUTHORITY=/a", "WAYLAND_DISPLAY=b", "XDG_RUNTIME_DIR=/c"};
}

/// The user is shown it; and nothing is told of what is not set.
void TestPolkit::commandLine()
{
    QFETCH(QByteArrayList, set);
    const QByteArray record = QFile::encodeName(folder->filePath(QStringLiteral("record")));
    makePkexec(R"(printf '%s\n' "$@" >')" + record + "'\nexit 127\n");
    const auto before = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "XAUTHORITY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"}) {
        qunsetenv(name);
    }
    for (const QByteArray &assignment : set) {
        const int end = assignment.indexOf('=');
        qputenv(assignment.left(end).constData(), assignment.mid(end + 1));
    }
    const auto outcome = Polkit::relaunch(QStringLiteral("/opt/my lights/Lumikey"));
    for (const char *name : {"DISPLAY", "XAUTHORITY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"}) {
        qunsetenv(name);
        if (before.contains(QLatin1String(name))) {
            qputenv(name, before.value(QLatin1String(name)).toLocal8Bit());
        }
    }
    QCOMPARE(outcome, Platform::Relaunch::Failed);
    const QByteArrayList expected = QByteArrayList{"env", "-C", QDir::currentPath().toLocal8Bit()}
                                    + set + QByteArrayList{"/opt/my lights/Lumikey", ""};
    QCOMPARE(recorded().split('\n'), expected);
}

void TestPolkit::waitsForTheAnswer()
{
    makePkexec(QByteArray("sleep 1\n") + becomeTheProgram);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Launched);
    QVERIFY(timer.elapsed() >= 1000);
}

/// Neither is an answer.
void TestPolkit::waitsThroughSignalsAndNoise()
{
    makePkexec(QByteArray("sleep 0.2\nkill -USR1 $PPID\n"
                          "for fd in $(ls /proc/$$/fd); do\n"
                          "  [ \"$fd\" -gt 2 ] && [ -p /proc/$$/fd/$fd ] && echo noise >&$fd\n"
                          "done\n"
                          "sleep 1\n")
               + becomeTheProgram);
    struct sigaction interrupting = {};
    interrupting.sa_handler = [](int /*number*/) {
    }; // without SA_RESTART, so that it is noticed
    struct sigaction before = {};
    ::sigaction(SIGUSR1, &interrupting, &before);
    QElapsedTimer timer;
    timer.start();
    const auto outcome = Polkit::relaunch(makeTarget());
    const qint64 waited = timer.elapsed();
    ::sigaction(SIGUSR1, &before, nullptr);
    QCOMPARE(outcome, Platform::Relaunch::Launched);
    QVERIFY2(waited >= 1000, qPrintable(QString::number(waited)));
}

void TestPolkit::refused_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("outcome");
    QTest::newRow("question closed")
        << QByteArray("exit 126\n") << int(Platform::Relaunch::Declined);
    QTest::newRow("not authorised") << QByteArray("exit 127\n") << int(Platform::Relaunch::Failed);
    QTest::newRow("ends otherwise") << QByteArray("exit 3\n") << int(Platform::Relaunch::Failed);
    QTest::newRow("ends well, but does nothing")
        << QByteArray("exit 0\n") << int(Platform::Relaunch::Failed);
    QTest::newRow("killed") << QByteArray("kill -9 $$\n") << int(Platform::Relaunch::Failed);
}

void TestPolkit::refused()
{
    QFETCH(QByteArray, body);
    QFETCH(int, outcome);
    makePkexec(body);
    QCOMPARE(int(Polkit::relaunch(makeTarget())), outcome);
    QVERIFY(recorded().isEmpty());
}

void TestPolkit::refusedAfterAWhile()
{
    makePkexec("sleep 1\nexit 126\n");
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Declined);
}

void TestPolkit::targetIsMissing()
{
    makePkexec(becomeTheProgram);
    QCOMPARE(Polkit::relaunch(folder->filePath(QStringLiteral("nothing"))),
             Platform::Relaunch::Failed);
}

void TestPolkit::noPkexec()
{
    qputenv("PATH", QFile::encodeName(folder->path()));
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Failed);
}

void TestPolkit::noDescriptorIsLeft()
{
    makePkexec("exit 126\n");
    const QString target = makeTarget();
    struct rlimit before = {};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const int lowest = ::dup(STDIN_FILENO); // all below it are taken
    ::close(lowest);
    struct rlimit none = before;
    none.rlim_cur = static_cast<rlim_t>(lowest);
    ::setrlimit(RLIMIT_NOFILE, &none);
    const auto outcome = Polkit::relaunch(target);
    ::setrlimit(RLIMIT_NOFILE, &before);
    QCOMPARE(outcome, Platform::Relaunch::Failed);
}

void TestPolkit::notAProgram()
{
    makePkexec({});
    writeFile(folder->filePath(QStringLiteral("pkexec")), "\x7f"
                                                          "ELF nonsense");
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Failed);
}

QTEST_GUILESS_MAIN(TestPolkit)
#include "tst_polkit.moc"
