#include "pickerprobe.h"

#include "colorpicker/hselector.h"

#include <QPainter>
#include <QTest>

using namespace PickerProbe;

namespace {

QImage expectedStrip(int height, int markerY)
{
    QImage expected = canvas({54, height});
    {
        QLinearGradient gradient(0, 2, 0, height - 2);
        for (int i = 0; i < 360; ++i) {
            gradient.setColorAt(i / 360.0, QColor::fromHsvF(i / 360.0, 1.0, 1.0, 1.0));
        }
        QPixmap pixmap(40, height - 4);
        QPainter onPixmap(&pixmap);
        onPixmap.fillRect(0, 0, 40, height - 4, gradient);
        onPixmap.end();
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawPixmap(2, 2, pixmap);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x33, 0x33, 0x33));
        painter.drawPolygon(
            QPolygon({{44, markerY + 1}, {44, markerY - 1}, {54, markerY - 5}, {54, markerY + 5}}));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(80, 80, 80, 200), 2));
        painter.drawRoundedRect(QRectF(3, 3, 38, height - 6), 2, 2);
    }
    return expected;
}

} // namespace

class TestHSelector : public QObject
{
    Q_OBJECT

private slots:
    void hueByMouse_data();
    void hueByMouse();
    void hueByWheel_data();
    void hueByWheel();
    void hueFromOutside_data();
    void hueFromOutside();
    void colourKeepsTheStripsOwnValues();
    void stripDrawing_data();
    void stripDrawing();
    void tallStripDrawing();
    void stripDrawingOfOtherValues();
    void stripFollowsTheHeight();
    void stripWithoutRoom_data();
    void stripWithoutRoom();
};

void TestHSelector::hueByMouse_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("hue");
    QTest::newRow("above") << -30 << 0;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 0;
    QTest::newRow("2") << 2 << 0;
    QTest::newRow("3") << 3 << 1;
    QTest::newRow("122") << 122 << 120;
    QTest::newRow("361") << 361 << 359;
    QTest::newRow("362") << 362 << 360;
    QTest::newRow("500") << 500 << 360;
}

void TestHSelector::hueByMouse()
{
    QFETCH(int, y);
    QFETCH(int, hue);
    for (const bool byMove : {false, true}) {
        HSelector strip;
        strip.resize(54, 365);
        const QSignalSpy changed(&strip, SIGNAL(hueChanged(QColor)));
        QVERIFY(byMove ? move(strip, {20, y}) : press(strip, {20, y}, Qt::RightButton));
        QCOMPARE(strip.hue(), hue);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(lastColor(changed), hsv(hue, 255, 255));
        QCOMPARE(strip.color(), hsv(hue, 255, 255));
        QVERIFY(!release(strip, {20, y}));
        QCOMPARE(changed.count(), 1);
    }
}

void TestHSelector::hueByWheel_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("delta");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("hue");

    const auto none = Qt::KeyboardModifiers();
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("up") << 100 << 120 << none << 99;
    QTest::newRow("down") << 100 << -120 << none << 101;
    QTest::newRow("still") << 100 << 0 << none << 100;
    QTest::newRow("least up") << 100 << 1 << none << 99;
    QTest::newRow("least down") << 100 << -1 << none << 101;
    QTest::newRow("up with shift") << 100 << 120 << shift << 90;
    QTest::newRow("down with shift") << 100 << -120 << shift << 110;
    QTest::newRow("ctrl means nothing")
        << 100 << 120 << Qt::KeyboardModifiers(Qt::ControlModifier) << 99;
    QTest::newRow("at the top") << 0 << 120 << none << 0;
    QTest::newRow("from the top") << 0 << -120 << shift << 10;
    QTest::newRow("over the bottom") << 355 << -120 << shift << 360;
    QTest::newRow("at the bottom") << 360 << -120 << none << 360;
    QTest::newRow("from the bottom") << 360 << 120 << none << 359;
}

void TestHSelector::hueByWheel()
{
    QFETCH(int, start);
    QFETCH(int, delta);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    HSelector strip;
    strip.resize(54, 365);
    press(strip, {20, start + 2});
    QCOMPARE(strip.hue(), start);
    const QSignalSpy changed(&strip, SIGNAL(hueChanged(QColor)));
    wheel(strip, delta, modifiers);
    QTEST(strip.hue(), "hue");
    QCOMPARE(changed.count(), 1);

    // Turning on beyond an end stores up no way back.
    HSelector pressedOutside;
    pressedOutside.resize(54, 365);
    press(pressedOutside, {20, 500});
    wheel(pressedOutside, 120);
    QCOMPARE(pressedOutside.hue(), 359);
}

void TestHSelector::hueFromOutside_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("hue");
    QTest::addColumn<bool>("announced");
    QTest::newRow("other") << 10 << 200 << 200 << true;
    QTest::newRow("same") << 10 << 10 << 10 << false;
    QTest::newRow("grey") << 10 << -1 << -1 << true;
    QTest::newRow("360 counts as 0") << 360 << 0 << 360 << false;
    QTest::newRow("from 360") << 360 << 5 << 5 << true;
    QTest::newRow("360 reads back as 0") << 0 << 360 << 0 << false;
    QTest::newRow("360 over another") << 10 << 360 << 0 << true;
}

void TestHSelector::hueFromOutside()
{
    QFETCH(int, stored);
    QFETCH(int, given);
    QFETCH(int, hue);
    QFETCH(bool, announced);
    HSelector strip;
    strip.resize(54, 365);
    press(strip, {20, stored + 2});
    const QSignalSpy changed(&strip, SIGNAL(hueChanged(QColor)));
    strip.setHue(given);
    QCOMPARE(strip.hue(), hue);
    QCOMPARE(changed.count(), announced ? 1 : 0);
    QCOMPARE(strip.color(), hsv(hue, 255, 255));
    if (announced) {
        QCOMPARE(lastColor(changed), strip.color());
    }
}

void TestHSelector::colourKeepsTheStripsOwnValues()
{
    Opened<HSelector> strip;
    strip.resize(54, 365);
    strip.currentSaturation = 100;
    strip.currentValue = 50;
    press(strip, {20, 62});
    QCOMPARE(strip.color(), hsv(60, 100, 50));
    strip.setHue(200);
    QCOMPARE(strip.color(), hsv(200, 100, 50));
}

void TestHSelector::stripDrawing_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("markerY");
    QTest::newRow("grey") << -1 << 2;
    QTest::newRow("top") << 0 << 2;
    QTest::newRow("middle") << 180 << 182;
    QTest::newRow("bottom") << 360 << 362;
}

void TestHSelector::stripDrawing()
{
    QFETCH(int, hue);
    QFETCH(int, markerY);
    Opened<HSelector> strip;
    strip.resize(54, 365);
    if (hue == -1) {
        strip.setHue(-1);
    } else {
        press(strip, {20, hue + 2});
    }
    const QImage image = drawn(strip);
    QCOMPARE(strip.marker.y(), markerY);

    QCOMPARE(image, expectedStrip(365, markerY));

    // The wedge is wide at the edge and narrow at its tip.
    QCOMPARE(image.pixel(53, markerY), 0xff333333U);
    QCOMPARE(image.pixel(52, markerY > 5 ? markerY - 3 : markerY + 3), 0xff333333U);
    QCOMPARE(image.pixel(45, markerY), 0xff333333U);
    QCOMPARE(image.pixel(45, markerY > 5 ? markerY - 4 : markerY + 3), background);
    QCOMPARE(image.pixel(43, markerY), background);
    // Hues run downwards, red first.
    QCOMPARE(qRed(image.pixel(20, 5)), 255);
    QVERIFY(qGreen(image.pixel(20, 124)) > 250 && qRed(image.pixel(20, 124)) < 5);
    QVERIFY(qBlue(image.pixel(20, 244)) > 250 && qGreen(image.pixel(20, 244)) < 5);
}

/// So tall that the last of the gradient's colours is to be seen.
void TestHSelector::tallStripDrawing()
{
    HSelector strip;
    strip.resize(54, 3604);
    QCOMPARE(drawn(strip), expectedStrip(3604, 2));
}

void TestHSelector::stripDrawingOfOtherValues()
{
    Opened<HSelector> strip;
    strip.resize(54, 365);
    strip.stripSaturation = 0.5;
    strip.stripValue = 0.8;
    drawn(strip);
    // The strip begins with red, which the margin above the gradient has, too.
    QCOMPARE(strip.cachePixmap.toImage().pixel(20, 0), QColor::fromHsvF(0.0, 0.5, 0.8).rgb());
}

void TestHSelector::stripFollowsTheHeight()
{
    Opened<HSelector> strip;
    strip.resize(54, 365);
    drawn(strip);
    QCOMPARE(strip.cachePixmap.size(), QSize(40, 361));
    const qint64 key = strip.cachePixmap.cacheKey();
    drawn(strip);
    QCOMPARE(strip.cachePixmap.cacheKey(), key);
    strip.cacheValid = false;
    drawn(strip);
    QVERIFY(strip.cachePixmap.cacheKey() != key);
    QVERIFY(strip.cacheValid);
    strip.resize(54, 400);
    drawn(strip);
    QCOMPARE(strip.cachePixmap.size(), QSize(40, 396));
}

void TestHSelector::stripWithoutRoom_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isDrawn");
    QTest::newRow("less than its margins") << 3 << false;
    QTest::newRow("its margins alone") << 4 << false;
    QTest::newRow("a pixel more") << 5 << true;
}

void TestHSelector::stripWithoutRoom()
{
    QFETCH(int, height);
    HSelector strip;
    strip.resize(54, height);
    const QImage image = drawn(strip);
    QTEST(image != canvas({54, height}), "isDrawn");
}

QTEST_MAIN(TestHSelector)
#include "tst_hselector.moc"
