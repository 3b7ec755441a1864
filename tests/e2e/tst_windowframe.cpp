#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testsystem.h"

#include <QTest>

/// The frameless window as the desktop's window manager treats it.
class TestWindowFrame : public QObject
{
    Q_OBJECT

private slots:
    void minimisedAndRestoredFromOutside();
    void closedFromOutside_data();
    void closedFromOutside();

private:
    static QByteArray property(const char *name, qulonglong window)
    {
        return TestSystem::runDesktopTool(
            QStringLiteral("xprop"),
            {QStringLiteral("-id"), QString::number(window), QString::fromLatin1(name)});
    }
};

void TestWindowFrame::minimisedAndRestoredFromOutside()
{
    ProgramProcess program;
    QVERIFY(program.startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    const qulonglong window = ProgramWindow::shown();
    const QByteArray allowed = property("_NET_WM_ALLOWED_ACTIONS", window);
    QVERIFY2(allowed.contains("_NET_WM_ACTION_MINIMIZE"), allowed.constData());
    QVERIFY2(allowed.contains("_NET_WM_ACTION_CLOSE"), allowed.constData());
    const QByteArray state = property("_NET_WM_STATE", window);
    QVERIFY2(!state.contains("SKIP_TASKBAR"), state.constData());
    const QRect place = ProgramWindow::geometry();

    // As a task bar does both.
    ProgramWindow::input({QStringLiteral("windowminimize"), QString::number(window)});
    QTRY_VERIFY(property("WM_STATE", window).contains("Iconic"));
    ProgramWindow::input({QStringLiteral("windowactivate"), QString::number(window)});
    QTRY_VERIFY(property("WM_STATE", window).contains("Normal"));
    QTRY_COMPARE(ProgramWindow::geometry(), place);
    QCOMPARE(program.process.state(), QProcess::Running);
}

void TestWindowFrame::closedFromOutside_data()
{
    QTest::addColumn<bool>("closeHides");
    QTest::newRow("ends the program") << false;
    QTest::newRow("hides the window") << true;
}

/// By the window manager's key, which is what the task bar's "Close window" comes to as well.
void TestWindowFrame::closedFromOutside()
{
    QFETCH(bool, closeHides);
    ProgramProcess program;
    ProgramProcess::writeSettings(closeHides ? "minimize_close=true\n" : "minimize_close=false\n");
    QVERIFY(program.startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    ProgramWindow::input({QStringLiteral("windowactivate"), QStringLiteral("--sync"),
                          QString::number(ProgramWindow::shown())});
    ProgramWindow::press({QStringLiteral("alt+F4")});
    QTRY_COMPARE(ProgramWindow::shown(), 0ULL);
    if (!closeHides) {
        QTRY_COMPARE(program.process.state(), QProcess::NotRunning);
        QCOMPARE(program.process.exitCode(), 0);
        return;
    }
    QTest::qWait(1000); // it would have ended by now
    QCOMPARE(program.process.state(), QProcess::Running);
    QVERIFY(!ServiceClient::readAnswer().isEmpty());
}

QTEST_MAIN(TestWindowFrame)
#include "tst_windowframe.moc"
