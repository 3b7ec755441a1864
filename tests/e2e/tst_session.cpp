#include "programlines.h"
#include "system/testing/sessionnotices.h"
#include "system/testing/taskbar.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/serviceclient.h"

#include <QTest>

namespace {

/// Waits for a line. It is read once: wake lines come twice only.
bool lineComes(const QString &line, int timeoutMs = patienceMs)
{
    return QTest::qWaitFor([&line] { return ServiceClient::readLine() == line; }, timeoutMs);
}

} // namespace

/// The program and the end, or the unlocking, of its user's session.
class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cancelledLogOff();
    void logOff_data();
    void logOff();
    void unlockingWakes();

private:
    void start(const QByteArray &moreSettings = {});

    std::unique_ptr<ProgramProcess> program;
    quintptr window = 0;
};

void TestSession::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestSession::start(const QByteArray &moreSettings)
{
    ProgramProcess::writeSettings("backlight_on=true\nbrightlevel=4\nAutoDim=true\ndimtimer=0\n"
                                  + moreSettings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY((window = TaskBar::windowOf(program->process.processId())) != 0);
}

void TestSession::cancelledLogOff()
{
    start();
    QVERIFY(SessionNotices::mayEnd(window));
    SessionNotices::ends(window, false);
    QTest::qWait(1000);
    QCOMPARE(program->process.state(), QProcess::Running);
    QCOMPARE(TaskBar::windowOf(program->process.processId()), window); // still to be seen
    QVERIFY(!ServiceClient::readAnswer().isEmpty());
    QCOMPARE(ProgramProcess::stored("mainWindowGeometry"), QStringLiteral("(none)"));
}

void TestSession::logOff_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("closing ends the program") << QByteArray();
    QTest::newRow("closing hides the window") << QByteArray("minimize_close=1\n");
}

void TestSession::logOff()
{
    QFETCH(QByteArray, settings);
    start(settings);
    QVERIFY(SessionNotices::mayEnd(window));
    SessionNotices::ends(window, true);
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QVERIFY(ProgramProcess::stored("mainWindowGeometry") != QStringLiteral("(none)"));
}

void TestSession::unlockingWakes()
{
    start();
    QTest::qWait(Lines::appliedAfterMs); // before, it is as dark as when it is dimmed
    QVERIFY(lineComes(Lines::wake));
    QVERIFY(lineComes(Lines::off, 30'000));
    SessionNotices::locked(window);
    QTest::qWait(500);
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    SessionNotices::unlocked(window);
    QVERIFY(lineComes(Lines::wake));
}

QTEST_MAIN(TestSession)
#include "tst_session.moc"
