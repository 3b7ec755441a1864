#include "tests/support/testwindow.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QSignalSpy>
#include <QTest>

/// Who closes the window, and whether it only hides.
class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void closed_data();
    void closed();
};

void TestClosing::closed_data()
{
    QTest::addColumn<bool>("byTheWindowManager");
    QTest::addColumn<bool>("boxChecked");
    QTest::addColumn<bool>("hides");
    QTest::newRow("window manager, hides") << true << true << true;
    QTest::newRow("window manager, closes") << true << false << false;
    QTest::newRow("Exit, hides") << false << true << false;
    QTest::newRow("Exit, closes") << false << false << false;
}

void TestClosing::closed()
{
    QFETCH(bool, byTheWindowManager);
    QFETCH(bool, boxChecked);
    QFETCH(bool, hides);
    TestWindow world;
    MainWindow &window = world.start();
    world.get<QCheckBox>("Check_CloseHides")->setChecked(boxChecked);
    window.ShowInterface();
    QVERIFY(window.wasAskedFor());
    const QSignalSpy closings(&window, SIGNAL(closed()));
    QCloseEvent event;
    if (byTheWindowManager) {
        QSpontaneKeyEvent::setSpontaneous(&event);
    }
    qApp->notify(&window, &event);
    QCOMPARE(event.isAccepted(), !hides);
    QCOMPARE(window.isVisible(), !hides); // whoever sent the event hides what has accepted it
    QCOMPARE(window.wasAskedFor(), !hides);
    QCOMPARE(closings.size(), hides ? 0 : 1);
}

QTEST_MAIN(TestClosing)
#include "tst_closing.moc"
