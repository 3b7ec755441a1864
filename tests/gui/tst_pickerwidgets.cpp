#include "pickerprobe.h"

#include "colorpicker/colorprocessor.h"
#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"

#include <QPainter>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(const QMetaObject *)

using namespace PickerProbe;

namespace {

class Frames : public ColorWidget
{
public:
    using ColorWidget::drawFrame;
};

} // namespace

class TestPickerWidgets : public QObject
{
    Q_OBJECT

private slots:
    void startValues();
    void frame_data();
    void frame();
    void middlePress_data();
    void middlePress();
    void modifierSignals();
    void modifierKeys();
    void sampleColor();
    void sampleDrawing();
    void sampleHover();
    void sampleClicks_data();
    void sampleClicks();
    void signaturesForTheWiringExist_data();
    void signaturesForTheWiringExist();
};

void TestPickerWidgets::startValues()
{
    const Opened<ColorWidget> base;
    QCOMPARE(base.color(), hsv(0, 255, 255));
    QCOMPARE(base.hue(), 0);
    QCOMPARE(base.saturation(), 255);
    QCOMPARE(base.value(), 255);
    QCOMPARE(base.marker, QPoint(0, 0));
    QCOMPARE(base.frameColor, QColor(80, 80, 80, 200));
    QCOMPARE(base.stripSaturation, 1.0);
    QCOMPARE(base.stripValue, 1.0);
    QVERIFY(!base.middlePressed && !base.cacheValid && !base.ctrlHeld && !base.shiftHeld);
    QVERIFY(base.cachePixmap.isNull());
    QVERIFY(base.cacheImage.isNull());
    QCOMPARE(Opened<SVSelector>().marker, QPoint(255, 0));
    QCOMPARE(Opened<HSelector>().marker, QPoint(0, 0));
    QCOMPARE(Opened<ColorSample>().frameColor, QColor(80, 80, 80, 200));
}

void TestPickerWidgets::frame_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("given");
    QTest::addColumn<QRectF>("inner");
    QTest::addColumn<double>("radius");
    QTest::newRow("1: half a pixel off, given radius")
        << 1 << 10 << QRectF(5.5, 6.5, 59, 39) << 10.0;
    QTest::newRow("2: width as radius") << 2 << 10 << QRectF(6, 7, 58, 38) << 2.0;
    QTest::newRow("3: half a pixel off, given radius")
        << 3 << 10 << QRectF(6.5, 7.5, 57, 37) << 10.0;
    QTest::newRow("3: corners that the pen rounds") << 3 << 0 << QRectF(6.5, 7.5, 57, 37) << 0.0;
    QTest::newRow("4: width as radius") << 4 << 10 << QRectF(7, 8, 56, 36) << 4.0;
}

void TestPickerWidgets::frame()
{
    QFETCH(int, width);
    QFETCH(int, given);
    QFETCH(QRectF, inner);
    QFETCH(double, radius);
    const QColor color(200, 100, 50, 200);
    QImage image = canvas({80, 60});
    QImage expected = image;
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        Frames::drawFrame(painter, QRect(5, 6, 60, 40), width, given, color);
    }
    {
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
        painter.drawRoundedRect(inner, radius, radius);
    }
    QCOMPARE(image, expected);
    QVERIFY(image.pixel(30, 6) != background);
    QCOMPARE(image.pixel(30, 6 + width), background);
    QCOMPARE(image.pixel(30, 5), background);
}

void TestPickerWidgets::middlePress_data()
{
    QTest::addColumn<bool>("strip");
    QTest::newRow("strip") << true;
    QTest::newRow("square") << false;
}

void TestPickerWidgets::middlePress()
{
    QFETCH(bool, strip);
    const std::unique_ptr<ColorWidget> widget(strip ? static_cast<ColorWidget *>(new HSelector)
                                                    : new SVSelector);
    widget->resize(260, 365);
    press(*widget, {30, 40});
    const QColor before = widget->color();

    // With nobody connected no copy is made; the leak checker watches.
    QVERIFY(!press(*widget, {90, 90}, Qt::MiddleButton));
    QCOMPARE(widget->color(), before);
    move(*widget, {90, 90}, Qt::MiddleButton);
    QCOMPARE(widget->color(), before);
    QVERIFY(!release(*widget, {90, 90}, Qt::MiddleButton));
    move(*widget, {90, 91});
    QVERIFY(widget->color() != before);

    std::unique_ptr<QMouseEvent> copy;
    connect(widget.get(), &ColorWidget::middlePressedSignal, this,
            [&copy](QMouseEvent *e) { copy.reset(e); });
    QVERIFY(!press(*widget, {11, 22}, Qt::MiddleButton));
    QVERIFY(copy != nullptr);
    QCOMPARE(copy->pos(), QPoint(11, 22));
    QCOMPARE(copy->button(), Qt::MiddleButton);
}

void TestPickerWidgets::modifierSignals()
{
    Opened<SVSelector> square;
    square.setSaturationValue(100, 100);
    emit square.shiftPressed();
    QVERIFY(square.shiftHeld);
    wheel(square, 120);
    QCOMPARE(square.value(), 110);
    emit square.ctrlPressed();
    QVERIFY(square.ctrlHeld);
    wheel(square, 120);
    QCOMPARE(square.saturation(), 110);
    emit square.shiftReleased();
    QVERIFY(!square.shiftHeld);
    wheel(square, -120);
    QCOMPARE(square.saturation(), 109);
    emit square.ctrlReleased();
    QVERIFY(!square.ctrlHeld);
    wheel(square, -120);
    QCOMPARE(square.value(), 109);
    QCOMPARE(square.saturation(), 109);
}

void TestPickerWidgets::modifierKeys()
{
    Opened<HSelector> strip;
    const QSignalSpy shiftPressed(&strip, SIGNAL(shiftPressed()));
    const QSignalSpy shiftReleased(&strip, SIGNAL(shiftReleased()));
    const QSignalSpy ctrlPressed(&strip, SIGNAL(ctrlPressed()));
    const QSignalSpy ctrlReleased(&strip, SIGNAL(ctrlReleased()));
    QTest::keyPress(&strip, Qt::Key_Shift);
    QTest::keyPress(&strip, Qt::Key_Control);
    QTest::keyClick(&strip, Qt::Key_A);
    QVERIFY(strip.shiftHeld && strip.ctrlHeld);
    QTest::keyRelease(&strip, Qt::Key_Shift);
    QVERIFY(!strip.shiftHeld && strip.ctrlHeld);
    QTest::keyRelease(&strip, Qt::Key_Control);
    QVERIFY(!strip.shiftHeld && !strip.ctrlHeld);
    QCOMPARE(shiftPressed.count(), 1);
    QCOMPARE(shiftReleased.count(), 1);
    QCOMPARE(ctrlPressed.count(), 1);
    QCOMPARE(ctrlReleased.count(), 1);

    // A release that happens elsewhere is not missed.
    QTest::keyPress(&strip, Qt::Key_Shift);
    QTest::keyPress(&strip, Qt::Key_Control);
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&strip, &out);
    QVERIFY(!strip.shiftHeld && !strip.ctrlHeld);
}

void TestPickerWidgets::sampleColor()
{
    ColorSample sample;
    const QSignalSpy changed(&sample, SIGNAL(colorChanged(QColor)));
    sample.changeColor(QColor(1, 2, 3));
    QCOMPARE(sample.color(), QColor(1, 2, 3));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(lastColor(changed), QColor(1, 2, 3));
}

void TestPickerWidgets::sampleDrawing()
{
    ColorSample sample;
    sample.resize(260, 60);
    sample.changeColor(QColor(10, 200, 30));
    for (const bool hovered : {false, true}) {
        QEvent event(hovered ? QEvent::Enter : QEvent::Leave);
        QApplication::sendEvent(&sample, &event);
        const QImage image = drawn(sample);
        QImage expected = canvas({260, 60});
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(2, 2, 256, 56, QColor(10, 200, 30));
        painter.setPen(QPen(hovered ? QColor(30, 30, 30, 220) : QColor(80, 80, 80, 200), 2));
        painter.drawRoundedRect(QRectF(1, 1, 258, 58), 2, 2);
        painter.end();
        QCOMPARE(image, expected);
        QCOMPARE(image.pixel(2, 30), QColor(10, 200, 30).rgb());
        QCOMPARE(image.pixel(257, 40), QColor(10, 200, 30).rgb());
        QCOMPARE(image.pixel(130, 57), QColor(10, 200, 30).rgb());
        QVERIFY(image.pixel(1, 30) != QColor(10, 200, 30).rgb());
        QVERIFY(image.pixel(0, 30) != background);
    }
}

void TestPickerWidgets::sampleHover()
{
    Opened<ColorSample> sample;
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&sample, &enter);
    QCOMPARE(sample.frameColor, QColor(30, 30, 30, 220));
    QCOMPARE(sample.cursor().shape(), Qt::PointingHandCursor);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&sample, &leave);
    QCOMPARE(sample.frameColor, QColor(80, 80, 80, 200));
    QCOMPARE(sample.cursor().shape(), Qt::ArrowCursor);
}

void TestPickerWidgets::sampleClicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("dragged");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("middle");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("leftAfterwards"); // does the next left release count?
    QTest::newRow("left") << Qt::LeftButton << false << 1 << 0 << 0 << false << 1;
    QTest::newRow("right") << Qt::RightButton << false << 0 << 1 << 0 << false << 1;
    QTest::newRow("middle") << Qt::MiddleButton << false << 0 << 0 << 1 << true << 1;
    QTest::newRow("side button") << Qt::BackButton << false << 0 << 0 << 0 << false << 1;
    QTest::newRow("left ends a drag") << Qt::LeftButton << true << 0 << 0 << 0 << false << 1;
    QTest::newRow("right in a drag") << Qt::RightButton << true << 0 << 0 << 0 << false << 1;
    QTest::newRow("middle in a drag") << Qt::MiddleButton << true << 0 << 0 << 1 << true << 0;
}

void TestPickerWidgets::sampleClicks()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, dragged);
    ColorSample sample;
    sample.resize(260, 60);
    const QSignalSpy left(&sample, SIGNAL(samplePressedLeft()));
    const QSignalSpy right(&sample, SIGNAL(samplePressedRight()));
    const QSignalSpy middle(&sample, SIGNAL(samplePressedMiddle()));
    if (dragged) {
        sample.mouseMovedOnWindow();
    }
    QVERIFY(!press(sample, {9, 9}, button));
    const bool accepted = release(sample, {9, 9}, button);
    QTEST(accepted, "accepted");
    QTEST(left.count(), "left");
    QTEST(right.count(), "right");
    QTEST(middle.count(), "middle");

    const int before = left.count();
    release(sample, {9, 9});
    QTEST(left.count() - before, "leftAfterwards");

    sample.mouseMovedOnWindow();
    sample.mouseReleasedOnWindow();
    release(sample, {9, 9});
    QVERIFY(left.count() > before);
}

void TestPickerWidgets::signaturesForTheWiringExist_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<QByteArray>("signature");
    const auto add = [](const QMetaObject &meta, const char *signature) {
        QTest::addRow("%s::%s", meta.className(), signature) << &meta << QByteArray(signature);
    };
    add(ColorWidget::staticMetaObject, "middlePressedSignal(QMouseEvent*)");
    add(ColorWidget::staticMetaObject, "shiftPressed()");
    add(ColorWidget::staticMetaObject, "shiftReleased()");
    add(ColorWidget::staticMetaObject, "ctrlPressed()");
    add(ColorWidget::staticMetaObject, "ctrlReleased()");
    add(HSelector::staticMetaObject, "hueChanged(QColor)");
    add(SVSelector::staticMetaObject, "colorChanged(QColor)");
    add(SVSelector::staticMetaObject, "saturationChanged(QColor)");
    add(SVSelector::staticMetaObject, "valueChanged(QColor)");
    add(SVSelector::staticMetaObject, "changeHue(QColor)");
    add(ColorSample::staticMetaObject, "colorChanged(QColor)");
    add(ColorSample::staticMetaObject, "samplePressedLeft()");
    add(ColorSample::staticMetaObject, "samplePressedRight()");
    add(ColorSample::staticMetaObject, "samplePressedMiddle()");
    add(ColorSample::staticMetaObject, "changeColor(QColor)");
    add(ColorSample::staticMetaObject, "mouseMovedOnWindow()");
    add(ColorSample::staticMetaObject, "mouseReleasedOnWindow()");
    add(ColorProcessor::staticMetaObject, "updateFinished()");
}

void TestPickerWidgets::signaturesForTheWiringExist()
{
    QFETCH(const QMetaObject *, meta);
    QFETCH(QByteArray, signature);
    QVERIFY(meta->indexOfMethod(signature.constData()) >= 0);
}

QTEST_MAIN(TestPickerWidgets)
#include "tst_pickerwidgets.moc"
