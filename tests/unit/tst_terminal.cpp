#include "system/terminal.h"

#include <QTest>

#include <cstdlib>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

/// Whether what is written is taken for a terminal's, as Linux tells it.
class TestTerminal : public QObject
{
    Q_OBJECT

private slots:
    void terminals_data();
    void terminals();
};

void TestTerminal::terminals_data()
{
    QTest::addColumn<bool>("isTerminal");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<bool>("canBeDrawnOn");
    QTest::newRow("terminal") << true << QByteArray("xterm") << true;
    QTest::newRow("terminal of an unknown kind") << true << QByteArray() << true;
    QTest::newRow("terminal that knows no commands") << true << QByteArray("dumb") << false;
    QTest::newRow("file") << false << QByteArray("xterm") << false;
    QTest::newRow("file, from a terminal that knows no commands")
        << false << QByteArray("dumb") << false;
}

void TestTerminal::terminals()
{
    QFETCH(bool, isTerminal);
    QFETCH(QByteArray, kind);
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    QVERIFY(terminal >= 0 && ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0);
    const QByteArray output =
        isTerminal ? QByteArray(::ptsname(terminal)) : QByteArray("/dev/null");
    const pid_t child = ::fork();
    if (child == 0) {
        const int opened = ::open(output.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        ::dup2(opened, STDOUT_FILENO);
        if (kind.isNull()) {
            qunsetenv("TERM");
        } else {
            qputenv("TERM", kind);
        }
        ::_exit(Terminal::prepare() ? 1 : 0);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    ::close(terminal);
    QVERIFY(WIFEXITED(status));
    QTEST(WEXITSTATUS(status) == 1, "canBeDrawnOn");
}

QTEST_GUILESS_MAIN(TestTerminal)
#include "tst_terminal.moc"
