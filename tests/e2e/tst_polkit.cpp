#include "system/polkit.h"
#include "tests/support/guitest.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

/// Being started again as root, with a stand-in for pkexec first on the path.
class TestPolkit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void launched();
    void launchedInTheSamePlace();
    void waitsForTheAnswer();
    void refused_data();
    void refused();
    void refusedAfterAWhile();
    void targetIsMissing();
    void noPkexec();
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

void TestPolkit::waitsForTheAnswer()
{
    makePkexec(QByteArray("sleep 1\n") + becomeTheProgram);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Launched);
    QVERIFY(timer.elapsed() >= 1000);
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

void TestPolkit::notAProgram()
{
    makePkexec({});
    writeFile(folder->filePath(QStringLiteral("pkexec")), "\x7f"
                                                          "ELF nonsense");
    QCOMPARE(Polkit::relaunch(makeTarget()), Platform::Relaunch::Failed);
}

QTEST_GUILESS_MAIN(TestPolkit)
#include "tst_polkit.moc"
