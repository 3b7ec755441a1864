#include "system/testing/desktop.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"

#include <QTest>

/// The window closed by other means than its own button.
class TestWindowClosing : public QObject
{
    Q_OBJECT

private slots:
    void closedFromOutside_data();
    void closedFromOutside();
};

void TestWindowClosing::closedFromOutside_data()
{
    QTest::addColumn<bool>("closeHides");
    QTest::newRow("ends the program") << false;
    QTest::newRow("hides the window") << true;
}

/// By the window manager's key, which is what the task bar's "Close window" comes to as well.
void TestWindowClosing::closedFromOutside()
{
    QFETCH(bool, closeHides);
    ProgramProcess program;
    ProgramProcess::writeSettings(closeHides ? "minimize_close=true\n" : "minimize_close=false\n");
    QVERIFY(program.startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTRY_COMPARE(Desktop::activeWindow(), ProgramWindow::shown());
    Desktop::press({QStringLiteral("alt+F4")});
    QTRY_VERIFY(ProgramWindow::shown() == 0);
    if (!closeHides) {
        QTRY_COMPARE(program.process.state(), QProcess::NotRunning);
        QCOMPARE(program.process.exitCode(), 0);
        return;
    }
    QTest::qWait(1000); // it would have ended by now
    QCOMPARE(program.process.state(), QProcess::Running);
    QVERIFY(!ServiceClient::readAnswer().isEmpty());
}

QTEST_MAIN(TestWindowClosing)
#include "tst_windowclosing.moc"
