#include "tests/support/testwindow.h"

#include <QApplication>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

/// The brightness by the pointer: a click in the groove goes there.
class TestBrightnessSlider : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clickInTheGroove_data();
    void clickInTheGroove();
    void dragOnFromThere();
    void clickOnTheHandleChangesNothing();
    void otherButtonsPassBy();
    void disabledStays();
    void keysAndWheelStay();

private:
    /// The handle as the style draws it.
    QRect handle() const
    {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.maximum = slider->maximum();
        option.sliderPosition = slider->value();
        option.sliderValue = slider->value();
        option.subControls = QStyle::SC_All;
        option.state |= QStyle::State_Horizontal;
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                               slider);
    }
    QPoint at(double share) const
    {
        return {static_cast<int>(std::lround((slider->width() - 1) * share)), slider->height() / 2};
    }

    std::unique_ptr<TestWindow> world;
    QSlider *slider = nullptr;
};

void TestBrightnessSlider::init()
{
    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=50\n");
    MainWindow &window = world->start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    slider = world->get<QSlider>("horizontalSlider");
    QCOMPARE(slider->value(), 50);
}

void TestBrightnessSlider::cleanup()
{
    world.reset();
}

void TestBrightnessSlider::clickInTheGroove_data()
{
    QTest::addColumn<double>("share"); // of the slider's width
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("left end") << 0.0 << 0 << 0;
    QTest::newRow("a fifth") << 0.2 << 1 << 25;
    QTest::newRow("four fifths") << 0.8 << 75 << 99;
    QTest::newRow("right end") << 1.0 << 100 << 100;
}

void TestBrightnessSlider::clickInTheGroove()
{
    QFETCH(double, share);
    QFETCH(int, lowest);
    QFETCH(int, highest);
    const QPoint point = at(share);
    QTest::mouseClick(slider, Qt::LeftButton, {}, point);
    QVERIFY2(slider->value() >= lowest && slider->value() <= highest,
             qPrintable(QString::number(slider->value())));
    QCOMPARE(world->stored(SettingKeys::brightLevel), QString::number(slider->value()));
    if (lowest != highest) {
        const int off = handle().center().x() - point.x();
        QVERIFY2(std::abs(off) <= 2, qPrintable(QString::number(off)));
    } else {
        QVERIFY(handle().contains(point));
    }
}

void TestBrightnessSlider::dragOnFromThere()
{
    QTest::mousePress(slider, Qt::LeftButton, {}, at(0.2));
    const int before = slider->value();
    const QPoint to = at(0.4);
    QMouseEvent move(QEvent::MouseMove, to, slider->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(slider, &move);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, to);
    QVERIFY(slider->value() > before + 15);
    QVERIFY(std::abs(handle().center().x() - to.x()) <= 2);
}

void TestBrightnessSlider::clickOnTheHandleChangesNothing()
{
    for (const int x : {handle().left() + 2, handle().center().x(), handle().right() - 2}) {
        QTest::mouseClick(slider, Qt::LeftButton, {}, {x, slider->height() / 2});
        QCOMPARE(slider->value(), 50);
    }
}

void TestBrightnessSlider::otherButtonsPassBy()
{
    QTest::mouseClick(slider, Qt::RightButton, {}, at(0.1));
    QVERIFY(slider->value() >= 49); // as ever: at most a step
}

void TestBrightnessSlider::disabledStays()
{
    slider->setEnabled(false);
    QTest::mouseClick(slider, Qt::LeftButton, {}, at(0.1));
    QCOMPARE(slider->value(), 50);
}

void TestBrightnessSlider::keysAndWheelStay()
{
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(slider->value(), 49);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(slider->value(), 50);
    QWheelEvent up(slider->rect().center(), slider->mapToGlobal(slider->rect().center()), {},
                   {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider, &up);
    QCOMPARE(slider->value(), 50 + std::min(slider->pageStep(), QApplication::wheelScrollLines()));
}

QTEST_MAIN(TestBrightnessSlider)
#include "tst_brightnessslider.moc"
