#include "pickerprobe.h"

#include "colorpicker/svpicture.h"
#include "colorpicker/svselector.h"

#include <QPainter>
#include <QTest>

using namespace PickerProbe;

class TestSVSelector : public QObject
{
    Q_OBJECT

private slots:
    void squareByMouse_data();
    void squareByMouse();
    void squareCursor();
    void squareByWheel_data();
    void squareByWheel();
    void squareFromOutside();
    void squareHueChange_data();
    void squareHueChange();
    void firstHuePlacesTheRing();
    void squareDrawing();
    void ringIsWholeAtTheEdges_data();
    void ringIsWholeAtTheEdges();
    void ringLetsThePointerThrough();
    void pictureIsRebuiltOnHueChangeOnly();
};

void TestSVSelector::squareByMouse_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("value");
    QTest::addColumn<QPoint>("marker");
    QTest::newRow("widget's corner") << QPoint(0, 0) << 0 << 255 << QPoint(2, 2);
    QTest::newRow("top left") << QPoint(2, 2) << 0 << 255 << QPoint(2, 2);
    QTest::newRow("bottom right") << QPoint(257, 257) << 255 << 0 << QPoint(257, 257);
    QTest::newRow("inside") << QPoint(102, 57) << 100 << 200 << QPoint(102, 57);
    QTest::newRow("outside") << QPoint(400, -7) << 255 << 255 << QPoint(257, 2);
}

void TestSVSelector::squareByMouse()
{
    QFETCH(QPoint, at);
    QFETCH(int, saturation);
    QFETCH(int, value);
    for (const bool byMove : {false, true}) {
        Opened<SVSelector> square;
        square.resize(260, 260);
        QStringList order;
        connect(&square, &SVSelector::colorChanged, this,
                [&] { order.append(QStringLiteral("color")); });
        connect(&square, &SVSelector::saturationChanged, this,
                [&] { order.append(QStringLiteral("saturation")); });
        connect(&square, &SVSelector::valueChanged, this,
                [&] { order.append(QStringLiteral("value")); });
        const QSignalSpy color(&square, SIGNAL(colorChanged(QColor)));
        const QSignalSpy saturationSpy(&square, SIGNAL(saturationChanged(QColor)));
        const QSignalSpy valueSpy(&square, SIGNAL(valueChanged(QColor)));
        QVERIFY(byMove ? move(square, at) : press(square, at));
        QCOMPARE(square.saturation(), saturation);
        QCOMPARE(square.value(), value);
        QTEST(square.marker, "marker");
        QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("color saturation value"));
        for (const QSignalSpy *spy : {&color, &saturationSpy, &valueSpy}) {
            QCOMPARE(lastColor(*spy), hsv(0, saturation, value));
        }
    }
}

void TestSVSelector::squareCursor()
{
    SVSelector square;
    square.resize(260, 260);
    press(square, {257, 257});
    QCOMPARE(square.cursor().shape(), Qt::BlankCursor);
    move(square, {258, 257});
    QCOMPARE(square.cursor().shape(), Qt::ArrowCursor);
    move(square, {2, 2});
    QCOMPARE(square.cursor().shape(), Qt::BlankCursor);
    QVERIFY(!release(square, {2, 2}));
    QCOMPARE(square.cursor().shape(), Qt::ArrowCursor);
    press(square, {1, 100});
    QCOMPARE(square.cursor().shape(), Qt::ArrowCursor);
}

void TestSVSelector::squareByWheel_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("value");

    const auto none = Qt::KeyboardModifiers();
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    QTest::newRow("up") << 120 << none << 100 << 201;
    QTest::newRow("down") << -120 << none << 100 << 199;
    QTest::newRow("still") << 0 << none << 100 << 200;
    QTest::newRow("least up") << 1 << none << 100 << 201;
    QTest::newRow("least down") << -1 << none << 100 << 199;
    QTest::newRow("up, shift") << 120 << shift << 100 << 210;
    QTest::newRow("down, shift") << -120 << shift << 100 << 190;
    QTest::newRow("up, ctrl") << 120 << ctrl << 101 << 200;
    QTest::newRow("down, ctrl") << -120 << ctrl << 99 << 200;
    QTest::newRow("up, both") << 120 << (shift | ctrl) << 110 << 200;
    QTest::newRow("down, both") << -120 << (shift | ctrl) << 90 << 200;
}

void TestSVSelector::squareByWheel()
{
    QFETCH(int, delta);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    SVSelector square;
    square.resize(260, 260);
    square.setSaturationValue(100, 200);
    const QSignalSpy changed(&square, SIGNAL(colorChanged(QColor)));
    wheel(square, delta, modifiers);
    QTEST(square.saturation(), "saturation");
    QTEST(square.value(), "value");
    QCOMPARE(changed.count(), 1);

    // Turning on beyond an end stores up no way back.
    square.setSaturationValue(255, 252);
    wheel(square, 120, Qt::ShiftModifier);
    wheel(square, 120, Qt::ShiftModifier);
    QCOMPARE(square.value(), 255);
    wheel(square, -120);
    QCOMPARE(square.value(), 254);
}

void TestSVSelector::squareFromOutside()
{
    Opened<SVSelector> square;
    const QSignalSpy changed(&square, SIGNAL(colorChanged(QColor)));
    square.setSaturationValue(10, 20);
    QCOMPARE(square.marker, QPoint(12, 237));
    QCOMPARE(lastColor(changed), hsv(0, 10, 20));
    square.setSaturationValue(10, 20);
    QCOMPARE(changed.count(), 2); // said again although nothing changed
    square.setSaturationValue(0, 255);
    QCOMPARE(square.marker, QPoint(2, 2));
    square.setSaturationValue(255, 0);
    QCOMPARE(square.marker, QPoint(257, 257));
}

void TestSVSelector::squareHueChange_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("hue");
    QTest::newRow("green, whatever its value") << QColor::fromHsv(120, 1, 7) << 120;
    QTest::newRow("RGB blue") << QColor(0, 0, 255) << 240;
    QTest::newRow("grey") << QColor(128, 128, 128) << -1;
    QTest::newRow("strip at 360") << hsv(360, 255, 255) << 0;
}

void TestSVSelector::squareHueChange()
{
    QFETCH(QColor, color);
    QFETCH(int, hue);
    Opened<SVSelector> square;
    square.resize(260, 260);
    square.setSaturationValue(30, 40);
    drawn(square);
    const QSignalSpy changed(&square, SIGNAL(colorChanged(QColor)));
    const QSignalSpy saturation(&square, SIGNAL(saturationChanged(QColor)));
    square.changeHue(color);
    QVERIFY(!square.cacheValid);
    QCOMPARE(square.hue(), hue);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(lastColor(changed), hsv(hue, 30, 40));
    QCOMPARE(saturation.count(), 0);
    QCOMPARE(square.marker, QPoint(32, 217));
    drawn(square);
    QCOMPARE(square.cacheImage, svPicture(hue));
}

/// The ring, which starts beside the start colour, stands right from the first hue on.
void TestSVSelector::firstHuePlacesTheRing()
{
    Opened<SVSelector> square;
    QCOMPARE(square.marker, QPoint(255, 0));
    square.changeHue(QColor(0, 0, 255));
    QCOMPARE(square.marker, QPoint(257, 2));
}

void TestSVSelector::squareDrawing()
{
    SVSelector square;
    square.resize(260, 260);
    for (const QPoint &at : {QPoint(255, 0), QPoint(102, 57), QPoint(2, 257)}) {
        if (at != QPoint(255, 0)) { // where the ring stands before anything was chosen
            press(square, at);
        }
        const QImage image = drawn(square);
        QImage expected = canvas({260, 260});
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(2, 2, svPicture(0));
        painter.setPen(QPen(QColor(0xdd, 0xdd, 0xdd), 2));
        painter.setBrush(QColor(0x33, 0x33, 0x33));
        painter.drawEllipse(at, 5, 5);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(80, 80, 80, 200), 2));
        painter.drawRoundedRect(QRectF(3, 3, 254, 254), 2, 2);
        painter.end();
        QCOMPARE(image, expected);
    }
    press(square, {102, 57});
    const QImage image = drawn(square);
    QCOMPARE(image.pixel(102, 57), 0xff333333U);
    QCOMPARE(image.pixel(106, 57), 0xffddddddU);
    QCOMPARE(image.pixel(102, 52), 0xffddddddU);
    QCOMPARE(image.pixel(110, 57), hsv(0, 108, 200).rgb());
    QCOMPARE(image.pixel(259, 259), background);
}

void TestSVSelector::ringIsWholeAtTheEdges_data()
{
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("value");
    QTest::addColumn<QPoint>("marker"); // in the square
    QTest::newRow("a pure colour") << 255 << 255 << QPoint(257, 2);
    QTest::newRow("white") << 0 << 255 << QPoint(2, 2);
    QTest::newRow("black") << 0 << 0 << QPoint(2, 257);
    QTest::newRow("black of a hue") << 255 << 0 << QPoint(257, 257);
    QTest::newRow("right edge") << 255 << 100 << QPoint(257, 157);
    QTest::newRow("inside") << 100 << 100 << QPoint(102, 157);
}

void TestSVSelector::ringIsWholeAtTheEdges()
{
    QFETCH(int, saturation);
    QFETCH(int, value);
    QFETCH(QPoint, marker);
    QWidget panel;
    panel.resize(300, 300);
    // Where it stands it has no room, as in the window; the panel has.
    QWidget column(&panel);
    column.setGeometry(20, 20, 260, 270);
    SVSelector square(&column);
    square.setGeometry(0, 0, 260, 260);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    column.move(25, 22); // it follows
    square.setSaturationValue(saturation, value);
    panel.grab(); // which tells the overflow where the ring is
    const QImage image = panel.grab().toImage();
    const QPoint middle = marker + QPoint(25, 22);
    for (const QPoint &beside : {QPoint(4, 0), QPoint(-5, 0), QPoint(0, 4), QPoint(0, -5)}) {
        const QPoint pen = middle + beside;
        // Within the square's widget its frame is drawn over the ring.
        const bool framed = QRect(25, 22, 260, 260).contains(pen);
        QVERIFY2(framed || image.pixel(pen) == 0xffddddddU,
                 qPrintable(QStringLiteral("%1 %2").arg(pen.x()).arg(pen.y())));
    }
}

void TestSVSelector::ringLetsThePointerThrough()
{
    QWidget panel;
    panel.resize(300, 300);
    SVSelector square(&panel);
    square.setGeometry(20, 20, 260, 260);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(panel.childAt(150, 150), static_cast<QWidget *>(&square));
    QCOMPARE(panel.childAt(17, 17), nullptr);
}

void TestSVSelector::pictureIsRebuiltOnHueChangeOnly()
{
    Opened<SVSelector> square;
    square.resize(260, 260);
    drawn(square);
    const qint64 first = square.cacheImage.cacheKey();
    press(square, {50, 60});
    wheel(square, 120);
    square.setSaturationValue(7, 8);
    drawn(square);
    QCOMPARE(square.cacheImage.cacheKey(), first);
    square.changeHue(QColor(0, 0, 255));
    drawn(square);
    QVERIFY(square.cacheImage.cacheKey() != first);
}

QTEST_MAIN(TestSVSelector)
#include "tst_svselector.moc"
