#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"

#include <QProcess>
#include <QTest>

/// The frameless window as the desktop's window manager treats it.
class TestWindowFrame : public QObject
{
    Q_OBJECT

private slots:
    void minimisedAndRestoredFromOutside();

private:
    /// What a tool of the desktop writes.
    static QByteArray run(const QString &tool, const QStringList &arguments)
    {
        QProcess process;
        process.start(tool, arguments);
        process.waitForFinished();
        return process.readAllStandardOutput();
    }
    static QByteArray property(const char *name, qulonglong window)
    {
        return run(QStringLiteral("xprop"),
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
    run(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), QString::number(window)});
    QTRY_VERIFY(property("WM_STATE", window).contains("Iconic"));
    run(QStringLiteral("xdotool"), {QStringLiteral("windowactivate"), QString::number(window)});
    QTRY_VERIFY(property("WM_STATE", window).contains("Normal"));
    QTRY_COMPARE(ProgramWindow::geometry(), place);
    QCOMPARE(program.process.state(), QProcess::Running);
}

QTEST_MAIN(TestWindowFrame)
#include "tst_windowframe.moc"
