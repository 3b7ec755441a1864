#include "tests/support/testwindow.h"

#include <QApplication>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <functional>

Q_DECLARE_METATYPE(std::function<void(class TestBrightnessSlider &)>)

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
    void heldHandleIsStoredNowAndThen();
    void heldHandleLosesNothing_data();
    void heldHandleLosesNothing();
    void othersAreStoredAtOnce();

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

    /// Moves the pointer with the left button held down; no event loop runs meanwhile.
    void drag(double share) const
    {
        const QPoint to = at(share);
        QMouseEvent move(QEvent::MouseMove, to, slider->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
    }
    void turnWheel() const
    {
        const QPoint middle = slider->rect().center();
        QWheelEvent up(middle, slider->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &up);
    }
    QString stored() const { return world->stored(SettingKeys::brightLevel); }
    QString shown() const { return QString::number(slider->value()); }

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
    QCOMPARE(stored(), shown());
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
    drag(0.4);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, at(0.4));
    QVERIFY(slider->value() > before + 15);
    QVERIFY(std::abs(handle().center().x() - at(0.4).x()) <= 2);
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
    turnWheel();
    QCOMPARE(slider->value(), 50 + std::min(slider->pageStep(), QApplication::wheelScrollLines()));
}

/// Each write waits for the disk, so of the steps that follow each other quickly one in a tenth of
/// a second is stored.
void TestBrightnessSlider::heldHandleIsStoredNowAndThen()
{
    QTest::mousePress(slider, Qt::LeftButton, {}, at(0.8));
    const QString first = stored();
    QCOMPARE(first, shown());
    for (const double share : {0.7, 0.6, 0.5}) {
        drag(share);
        QVERIFY(shown() != first);
        QCOMPARE(stored(), first);
    }
    QTRY_COMPARE(stored(), shown()); // the handle stands still, and is still held
    drag(0.4);
    QVERIFY(stored() != shown());
    QTest::mouseRelease(slider, Qt::LeftButton, {}, at(0.4));
    QCOMPARE(stored(), shown());
}

void TestBrightnessSlider::heldHandleLosesNothing_data()
{
    using End = std::function<void(TestBrightnessSlider &)>;
    QTest::addColumn<End>("end");
    const auto row = [](const char *name, const End &end) {
        QTest::newRow(name) << end;
    };
    row("let go", [](TestBrightnessSlider &test) {
        QTest::mouseRelease(test.slider, Qt::LeftButton, {}, test.at(0.3));
    });
    row("let go elsewhere", [](TestBrightnessSlider &test) {
        QTest::mouseRelease(test.slider, Qt::LeftButton, {}, {test.slider->width() / 3, -500});
    });
    row("disabled", [](TestBrightnessSlider &test) { test.slider->setEnabled(false); });
    row("the program ends", [](TestBrightnessSlider &test) { test.world->window->ShutdownQuit(); });
}

void TestBrightnessSlider::heldHandleLosesNothing()
{
    QFETCH(std::function<void(TestBrightnessSlider &)>, end);
    QTest::mousePress(slider, Qt::LeftButton, {}, at(0.8));
    drag(0.3);
    QVERIFY(stored() != shown());
    end(*this);
    QCOMPARE(stored(), shown());
}

void TestBrightnessSlider::othersAreStoredAtOnce()
{
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(slider, Qt::Key_Left);
        QCOMPARE(stored(), shown());
        turnWheel();
        QCOMPARE(stored(), shown());
        slider->setValue(10 * step); // as the companion application and screen readers do
        QCOMPARE(stored(), shown());
    }
}

QTEST_MAIN(TestBrightnessSlider)
#include "tst_brightnessslider.moc"
