#include "system/testing/displayscale.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"

#include <QTest>

/// The running program on a desktop that changes the scale of its display.
class TestScaleChange : public QObject
{
    Q_OBJECT

private slots:
    void windowStaysAsItIs();
};

void TestScaleChange::windowStaysAsItIs()
{
    DisplayScale desktop(144);
    ProgramProcess program;
    QVERIFY(program.startAndServe());
    QVERIFY2(program.log().contains("Logical DPI: 144"), program.log().constData());
    QTRY_VERIFY(!ProgramWindow::geometry().isEmpty());
    QTest::qWait(1000);
    const QSize size = ProgramWindow::geometry().size();
    QVERIFY(size.width() >= 720);
    for (const int dpi : {168, 192, 96, 144}) {
        desktop.change(dpi);
        QTest::qWait(1000);
        QCOMPARE(ProgramWindow::geometry().size(), size);
    }
    QCOMPARE(program.process.state(), QProcess::Running);
}

QTEST_MAIN(TestScaleChange)
#include "tst_scalechange.moc"
