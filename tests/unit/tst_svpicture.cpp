#include "colorpicker/colormodel.h"
#include "colorpicker/pickergeometry.h"
#include "colorpicker/pickerpalette.h"
#include "colorpicker/svpicture.h"

#include <QColor>
#include <QTest>

class TestSvPicture : public QObject
{
    Q_OBJECT

private slots:
    void everyPixelIsWhatQColorGives_data();
    void everyPixelIsWhatQColorGives();
    void fullCircleIsRed();
    void sizes();
    void palette();
    void modelNumbers();
    void markersAndValues_data();
    void markersAndValues();
    void hueMarkers_data();
    void hueMarkers();
    void valuesBeyondTheirRange();
};

void TestSvPicture::everyPixelIsWhatQColorGives_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("grey") << -1 << -1;
    for (int hue = 0; hue < 360; hue += 60) {
        QTest::addRow("%d to %d", hue, hue + 59) << hue << hue + 59;
    }
    QTest::newRow("360") << 360 << 360;
}

void TestSvPicture::everyPixelIsWhatQColorGives()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QColor color;
    for (int hue = first; hue <= last; ++hue) {
        const QImage picture = svPicture(hue);
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QCOMPARE(picture.size(), QSize(256, 256));
        for (int value = 0; value < 256; ++value) {
            const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(255 - value));
            for (int saturation = 0; saturation < 256; ++saturation) {
                color.setHsv(hue, saturation, value);
                if (row[saturation] != color.rgb()) {
                    const QString message = QStringLiteral("HSV(%1, %2, %3) is %4, not %5")
                                                .arg(hue)
                                                .arg(saturation)
                                                .arg(value)
                                                .arg(color.rgb(), 8, 16)
                                                .arg(row[saturation], 8, 16);
                    QFAIL(qPrintable(message));
                }
            }
        }
    }
}

void TestSvPicture::fullCircleIsRed()
{
    QCOMPARE(svPicture(360), svPicture(0));
    QCOMPARE(svPicture(360).pixel(255, 0), 0xffff0000U);
}

void TestSvPicture::sizes()
{
    using namespace PickerGeometry;
    QCOMPARE(hueRange, 360);
    QCOMPARE(svRange, 255);
    QCOMPARE(hueStep, 1.0 / 360);
    QCOMPARE(margin, 2);
    QCOMPARE(cornerRadius, 10);
    QCOMPARE(frameWidth, 2);
    QCOMPARE(pixmapOrigin, QPoint(2, 2));
    QCOMPARE(stripWidth, 40);
    QCOMPARE(hueTop, 2);
    QCOMPARE(hueBottom, 362);
    QCOMPARE(arrowLength, 10);
    QCOMPARE(arrowTipHalfHeight, 1);
    QCOMPARE(arrowBaseHalfHeight, 5);
    QCOMPARE(squareSize, 256);
    QCOMPARE(svLow, 2);
    QCOMPARE(svHigh, 257);
    QCOMPARE(ringRadius, 5);
    QCOMPARE(ringWidth, 2);
    QCOMPARE(slowWheelStep, 1);
    QCOMPARE(fastWheelStep, 10);
}

void TestSvPicture::palette()
{
    QCOMPARE(PickerPalette::outline, QColor(QStringLiteral("#ddd")));
    QCOMPARE(PickerPalette::marker, QColor(QStringLiteral("#333")));
    QCOMPARE(PickerPalette::middle, QColor(QStringLiteral("#555")));
    QCOMPARE(PickerPalette::focus, QColor(QStringLiteral("#fff")));
    QCOMPARE(PickerPalette::restingFrame, QColor(80, 80, 80, 200));
    QCOMPARE(PickerPalette::hoveredFrame, QColor(30, 30, 30, 220));
}

void TestSvPicture::modelNumbers()
{
    QCOMPARE(int(ColorModel::Hsv), 0);
    QCOMPARE(int(ColorModel::Rgb), 1);
    QCOMPARE(int(ColorModel::Cmyk), 2);
    QCOMPARE(int(ColorModel::Hex), 3);
}

void TestSvPicture::markersAndValues_data()
{
    QTest::addColumn<QPoint>("marker");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("value");
    QTest::addColumn<QPoint>("placed");
    QTest::addColumn<bool>("inside");

    QTest::newRow("top left") << QPoint(2, 2) << 0 << 255 << QPoint(2, 2) << true;
    QTest::newRow("bottom right") << QPoint(257, 257) << 255 << 0 << QPoint(257, 257) << true;
    QTest::newRow("inside") << QPoint(102, 57) << 100 << 200 << QPoint(102, 57) << true;
    QTest::newRow("above") << QPoint(102, 1) << 100 << 255 << QPoint(102, 2) << false;
    QTest::newRow("below") << QPoint(102, 258) << 100 << 0 << QPoint(102, 257) << false;
    QTest::newRow("left") << QPoint(1, 57) << 0 << 200 << QPoint(2, 57) << false;
    QTest::newRow("right") << QPoint(258, 57) << 255 << 200 << QPoint(257, 57) << false;
    QTest::newRow("far") << QPoint(-900, 900) << 0 << 0 << QPoint(2, 257) << false;
}

void TestSvPicture::markersAndValues()
{
    using namespace PickerGeometry;
    QFETCH(QPoint, marker);
    const int saturation = saturationAt(marker.x());
    const int value = valueAt(marker.y());
    QTEST(saturation, "saturation");
    QTEST(value, "value");
    QTEST(markerOf(saturation, value), "placed");
    QTEST(isInSquare(marker), "inside");
}

void TestSvPicture::hueMarkers_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("placed");

    QTest::newRow("above the widget") << -20 << 0 << 2;
    QTest::newRow("0") << 0 << 0 << 2;
    QTest::newRow("1") << 1 << 0 << 2;
    QTest::newRow("first pixel") << 2 << 0 << 2;
    QTest::newRow("second pixel") << 3 << 1 << 3;
    QTest::newRow("middle") << 182 << 180 << 182;
    QTest::newRow("last but one") << 361 << 359 << 361;
    QTest::newRow("last") << 362 << 360 << 362;
    QTest::newRow("below") << 500 << 360 << 362;
}

void TestSvPicture::hueMarkers()
{
    using namespace PickerGeometry;
    QFETCH(int, y);
    const int hue = hueAt(y);
    QTEST(hue, "hue");
    QTEST(markerOfHue(hue), "placed");
    QCOMPARE(markerOfHue(-1), 2);
}

/// As a screen reader may ask for.
void TestSvPicture::valuesBeyondTheirRange()
{
    using namespace PickerGeometry;
    QCOMPARE(markerOfHue(500), 362);
    QCOMPARE(markerOfHue(-500), 2);
    QCOMPARE(markerOf(300, -45), QPoint(257, 257));
    QCOMPARE(markerOf(-45, 300), QPoint(2, 2));
}

QTEST_GUILESS_MAIN(TestSvPicture)
#include "tst_svpicture.moc"
