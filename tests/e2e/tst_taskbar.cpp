#include "system/testing/taskbar.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/testwindow.h"

#include <QTest>

/// The frameless window as the task bar of Windows treats it.
class TestTaskBar : public QObject
{
    Q_OBJECT

private slots:
    void clicksMinimiseAndRestore();
    void alsoWhenMadeOver();
};

void TestTaskBar::clicksMinimiseAndRestore()
{
    ProgramProcess program;
    QVERIFY(program.startAndServe());
    quintptr window = 0;
    QTRY_VERIFY((window = TaskBar::windowOf(program.process.processId())) != 0);
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    const QRect place = ProgramWindow::geometry();
    for (int round = 0; round < 2; ++round) {
        QVERIFY(TaskBar::offersMinimising(window));
        TaskBar::click(window);
        QTRY_VERIFY(TaskBar::isMinimised(window));
        QTRY_COMPARE(ProgramWindow::shown(), 0U);
        TaskBar::click(window);
        QTRY_VERIFY(!TaskBar::isMinimised(window));
        QTRY_COMPARE(ProgramWindow::geometry(), place);
    }
    QCOMPARE(program.process.state(), QProcess::Running);
}

void TestTaskBar::alsoWhenMadeOver()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(TaskBar::offersMinimising(window.winId()));
    window.hide();
    window.ShowInterface();
    QVERIFY(TaskBar::offersMinimising(window.winId()));
    // Other flags, and those of before.
    for (int round = 0; round < 2; ++round) {
        window.setWindowFlags(window.windowFlags() ^ Qt::WindowStaysOnTopHint);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(TaskBar::offersMinimising(window.winId()));
    }
}

QTEST_MAIN(TestTaskBar)
#include "tst_taskbar.moc"
