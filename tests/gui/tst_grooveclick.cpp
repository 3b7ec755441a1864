#include "ui/grooveclick.h"

#include <QApplication>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QtTest>

#include <optional>

namespace {

constexpr int lowest = 200;
constexpr int middle = 250;
constexpr int highest = 300;

/// Has a groove that does not begin at the edge, and a handle that moves two pixels a step.
class SliderStyle : public QProxyStyle
{
public:
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override
    {
        const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control != CC_Slider || slider == nullptr) {
            return QProxyStyle::subControlRect(control, option, part, widget);
        }
        if (!told) {
            told = *slider;
        }
        if (part == SC_SliderGroove) {
            return {40, 10, 220, 8};
        }
        const int moved =
            sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition, 200);
        return {40 + moved, 4, 20, 20};
    }

    mutable std::optional<QStyleOptionSlider> told; ///< of the first question
};

} // namespace

/// Where a click goes on a slider whose every pixel is known.
class TestGrooveClick : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void goesThere_data();
    void goesThere();
    void othersPassBy_data();
    void othersPassBy();
    void disabledStays();
    void styleIsToldTheWholeState();

private:
    void send(QEvent::Type type, Qt::MouseButton button, int x) const
    {
        const QPoint at(x, 14);
        QMouseEvent event(type, at, slider->mapToGlobal(at), button, button, Qt::NoModifier);
        QApplication::sendEvent(slider.get(), &event);
    }

    SliderStyle style;
    std::unique_ptr<QSlider> slider;
};

void TestGrooveClick::init()
{
    slider = std::make_unique<QSlider>(Qt::Horizontal);
    slider->setStyle(&style);
    slider->setRange(lowest, highest);
    slider->setValue(middle);
    slider->resize(300, 30);
    new GrooveClick(slider.get());
    style.told.reset();
}

void TestGrooveClick::cleanup()
{
    slider.reset();
}

void TestGrooveClick::goesThere_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("beside the groove's left") << 10 << lowest;
    QTest::newRow("half a handle from the left") << 50 << lowest;
    QTest::newRow("a step further") << 52 << lowest + 1;
    QTest::newRow("a good way further") << 80 << lowest + 15;
    QTest::newRow("left of the handle") << 138 << lowest + 44;
    QTest::newRow("the handle's left edge") << 140 << middle;
    QTest::newRow("the handle's right edge") << 159 << middle;
    QTest::newRow("right of the handle") << 160 << middle + 5;
    QTest::newRow("a step from the right") << 248 << highest - 1;
    QTest::newRow("half a handle from the right") << 250 << highest;
    QTest::newRow("beside the groove's right") << 290 << highest;
}

void TestGrooveClick::goesThere()
{
    QFETCH(int, x);
    QFETCH(int, value);
    send(QEvent::MouseButtonPress, Qt::LeftButton, x);
    QCOMPARE(slider->value(), value);
    send(QEvent::MouseButtonRelease, Qt::LeftButton, x);
    QCOMPARE(slider->value(), value);
}

void TestGrooveClick::othersPassBy_data()
{
    QTest::addColumn<int>("type");   // QEvent::Type
    QTest::addColumn<int>("button"); // Qt::MouseButton
    QTest::newRow("another button") << int(QEvent::MouseButtonPress) << int(Qt::RightButton);
    QTest::newRow("a release alone") << int(QEvent::MouseButtonRelease) << int(Qt::LeftButton);
    QTest::newRow("a movement alone") << int(QEvent::MouseMove) << int(Qt::LeftButton);
}

void TestGrooveClick::othersPassBy()
{
    QFETCH(int, type);
    QFETCH(int, button);
    send(QEvent::Type(type), Qt::MouseButton(button), 80);
    QCOMPARE(slider->value(), middle);
}

void TestGrooveClick::disabledStays()
{
    slider->setEnabled(false);
    send(QEvent::MouseButtonPress, Qt::LeftButton, 80);
    QCOMPARE(slider->value(), middle);
}

/// As the slider itself tells it.
void TestGrooveClick::styleIsToldTheWholeState()
{
    slider->setTracking(false);
    slider->setSliderPosition(middle + 20);
    style.told.reset();
    send(QEvent::MouseButtonPress, Qt::LeftButton, 80);
    QVERIFY(style.told);
    QCOMPARE(style.told->rect, slider->rect());
    QCOMPARE(style.told->orientation, Qt::Horizontal);
    QCOMPARE(style.told->minimum, lowest);
    QCOMPARE(style.told->maximum, highest);
    QCOMPARE(style.told->sliderPosition, middle + 20);
    QCOMPARE(style.told->sliderValue, middle);
    QVERIFY(style.told->state.testFlag(QStyle::State_Horizontal));
    QVERIFY(style.told->state.testFlag(QStyle::State_Enabled));
}

QTEST_MAIN(TestGrooveClick)
#include "tst_grooveclick.moc"
