#include "ui/windowplace.h"

#include <QTest>

class TestWindowPlace : public QObject
{
    Q_OBJECT

private slots:
    void movedInto_data();
    void movedInto();
    void isOnAScreen_data();
    void isOnAScreen();
};

void TestWindowPlace::movedInto_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QPoint>("topLeft");
    const QRect screen(0, 0, 1920, 1040);
    QTest::newRow("inside") << QRect(10, 20, 630, 630) << screen << QPoint(10, 20);
    QTest::newRow("at the edges") << QRect(0, 0, 1920, 1040) << screen << QPoint(0, 0);
    QTest::newRow("partly below") << QRect(645, 225, 900, 960) << screen << QPoint(645, 80);
    QTest::newRow("one pixel below") << QRect(0, 81, 900, 960) << screen << QPoint(0, 80);
    QTest::newRow("partly to the right") << QRect(1500, 0, 900, 960) << screen << QPoint(1020, 0);
    QTest::newRow("above and to the left") << QRect(-300, -5, 900, 960) << screen << QPoint(0, 0);
    QTest::newRow("far away") << QRect(5000, -7000, 900, 960) << screen << QPoint(1020, 0);
    QTest::newRow("higher than the screen")
        << QRect(100, 200, 900, 1250) << screen << QPoint(100, 0);
    QTest::newRow("wider than the screen") << QRect(-9, 10, 2000, 900) << screen << QPoint(0, 10);
    QTest::newRow("task bar to the left, another screen above")
        << QRect(0, -300, 600, 600) << QRect(60, 1080, 1860, 1080) << QPoint(60, 1080);
}

void TestWindowPlace::movedInto()
{
    QFETCH(QRect, window);
    QFETCH(QRect, available);
    QFETCH(QPoint, topLeft);
    QCOMPARE(WindowPlace::movedInto(window, available), QRect(topLeft, window.size()));
}

void TestWindowPlace::isOnAScreen_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<bool>("seen");
    QTest::newRow("inside") << QRect(10, 20, 630, 630) << true;
    QTest::newRow("on the second") << QRect(2500, 20, 630, 630) << true;
    QTest::newRow("a corner") << QRect(-629, -629, 630, 630) << true;
    QTest::newRow("a pixel short of it") << QRect(-630, -629, 630, 630) << false;
    QTest::newRow("below the second, which is lower") << QRect(2500, 800, 630, 630) << false;
    QTest::newRow("far away") << QRect(9000, 20, 630, 630) << false;
}

void TestWindowPlace::isOnAScreen()
{
    QFETCH(QRect, window);
    const QVector<QRect> screens{{0, 0, 1920, 1040}, {1920, 0, 1280, 768}};
    QTEST(WindowPlace::isOnAScreen(window, screens), "seen");
    QVERIFY(!WindowPlace::isOnAScreen(window, {}));
}

QTEST_GUILESS_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
