#include "pickerprobe.h"

#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"

#include <QHBoxLayout>
#include <QTest>

#include <functional>

Q_DECLARE_METATYPE(Qt::MouseButton)

using namespace PickerProbe;

namespace {

/// The three widgets in one window.
struct Panel
{
    Panel()
    {
        auto *const layout = new QHBoxLayout(&window);
        for (ColorWidget *const widget :
             std::initializer_list<ColorWidget *>{strip, square, sample}) {
            widget->setFixedSize(60, 260);
            layout->addWidget(widget);
        }
    }
    QWidget *widget(int index) const { return window.layout()->itemAt(index)->widget(); }

    QWidget window;
    HSelector *strip = new HSelector;
    SVSelector *square = new SVSelector;
    ColorSample *sample = new ColorSample;
};

/// Counts how often a widget is drawn.
class Drawings : public QObject
{
public:
    explicit Drawings(QWidget &watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

using Change = std::function<void(const Panel &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

/// What the picker's widgets take for themselves, leave to others, and draw anew.
class TestPickerEvents : public QObject
{
    Q_OBJECT

private slots:
    void changesAreDrawn_data();
    void changesAreDrawn();
    void keysAreTaken_data();
    void keysAreTaken();
    void squareByEachArrow_data();
    void squareByEachArrow();
    void focusByClickAndTab();
    void focusGoesWithWhatIsHeld_data();
    void focusGoesWithWhatIsHeld();
    void middlePressEndsWithItsButton_data();
    void middlePressEndsWithItsButton();
    void sampleDragged_data();
    void sampleDragged();
};

void TestPickerEvents::changesAreDrawn_data()
{
    QTest::addColumn<int>("drawn"); // which of the three
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, int drawn, const Change &change) {
        QTest::newRow(name) << drawn << change;
    };
    row("hue by the user", 0, [](const Panel &panel) { panel.strip->chooseHue(240); });
    row("hue from outside", 0, [](const Panel &panel) { panel.strip->setHue(240); });
    row("place in the square", 1, [](const Panel &panel) { press(*panel.square, {50, 60}); });
    row("hue of the square", 1,
        [](const Panel &panel) { panel.square->changeHue(QColor(0, 0, 255)); });
    row("sample", 2, [](const Panel &panel) { panel.sample->changeColor(QColor(1, 2, 3)); });
    const auto pass = [](QEvent::Type type) {
        return [type](const Panel &panel) {
            QEvent event(type);
            QApplication::sendEvent(panel.sample, &event);
        };
    };
    row("pointer comes", 2, pass(QEvent::Enter));
    row("pointer goes", 2, pass(QEvent::Leave));
    for (const int widget : {0, 1, 2}) {
        const auto focus = [widget](QEvent::Type type) {
            return [widget, type](const Panel &panel) {
                QFocusEvent event(type, Qt::TabFocusReason);
                QApplication::sendEvent(panel.widget(widget), &event);
            };
        };
        row(qPrintable(QStringLiteral("focus comes to %1").arg(widget)), widget,
            focus(QEvent::FocusIn));
        row(qPrintable(QStringLiteral("focus leaves %1").arg(widget)), widget,
            focus(QEvent::FocusOut));
    }
    row("sample by a key", 2,
        [](const Panel &panel) { sendKey(*panel.sample, QEvent::KeyPress, Qt::Key_Space); });
}

void TestPickerEvents::changesAreDrawn()
{
    QFETCH(int, drawn);
    QFETCH(Change, change);
    Panel panel;
    panel.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel.window));
    QTest::qWait(20); // for what the window's appearance draws
    const Drawings drawings(*panel.widget(drawn));
    change(panel);
    QTRY_VERIFY(drawings.count > 0);
}

void TestPickerEvents::keysAreTaken_data()
{
    QTest::addColumn<int>("widget"); // which of the three
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("taken");
    const auto row = [](const char *name, int widget, int key, bool taken) {
        QTest::newRow(name) << widget << key << taken;
    };
    row("strip, up", 0, Qt::Key_Up, true);
    row("strip, down", 0, Qt::Key_Down, true);
    row("strip, left", 0, Qt::Key_Left, false);
    row("strip, right", 0, Qt::Key_Right, false);
    row("strip, shift", 0, Qt::Key_Shift, false);
    row("strip, ctrl", 0, Qt::Key_Control, false);
    row("strip, escape", 0, Qt::Key_Escape, false);
    row("square, up", 1, Qt::Key_Up, true);
    row("square, down", 1, Qt::Key_Down, true);
    row("square, left", 1, Qt::Key_Left, true);
    row("square, right", 1, Qt::Key_Right, true);
    row("square, space", 1, Qt::Key_Space, false);
    row("sample, space", 2, Qt::Key_Space, true);
    row("sample, return", 2, Qt::Key_Return, true);
    row("sample, enter", 2, Qt::Key_Enter, true);
    row("sample, up", 2, Qt::Key_Up, false);
}

void TestPickerEvents::keysAreTaken()
{
    QFETCH(int, widget);
    QFETCH(int, key);
    const Panel panel;
    QWidget &pressed = *panel.widget(widget);
    QTEST(sendKey(pressed, QEvent::KeyPress, key), "taken");
    QVERIFY(!sendKey(pressed, QEvent::KeyRelease, key));
}

void TestPickerEvents::squareByEachArrow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("saturation"); // from 100
    QTest::addColumn<int>("value");      // from 100
    QTest::addColumn<int>("fastSaturation");
    QTest::addColumn<int>("fastValue");
    QTest::newRow("left") << int(Qt::Key_Left) << 99 << 100 << 90 << 100;
    QTest::newRow("right") << int(Qt::Key_Right) << 101 << 100 << 110 << 100;
    QTest::newRow("up") << int(Qt::Key_Up) << 100 << 101 << 100 << 110;
    QTest::newRow("down") << int(Qt::Key_Down) << 100 << 99 << 100 << 90;
}

void TestPickerEvents::squareByEachArrow()
{
    QFETCH(int, key);
    SVSelector square;
    square.setSaturationValue(100, 100);
    const QSignalSpy changed(&square, SIGNAL(colorChanged(QColor)));
    sendKey(square, QEvent::KeyPress, key);
    QTEST(square.saturation(), "saturation");
    QTEST(square.value(), "value");
    QCOMPARE(changed.count(), 1);
    square.setSaturationValue(100, 100);
    sendKey(square, QEvent::KeyPress, key, Qt::ShiftModifier);
    QTEST(square.saturation(), "fastSaturation");
    QTEST(square.value(), "fastValue");
}

void TestPickerEvents::focusByClickAndTab()
{
    const Panel panel;
    for (const int widget : {0, 1, 2}) {
        QCOMPARE(panel.widget(widget)->focusPolicy(), Qt::StrongFocus);
    }
}

void TestPickerEvents::focusGoesWithWhatIsHeld_data()
{
    QTest::addColumn<bool>("shift");
    QTest::addColumn<bool>("ctrl");
    QTest::newRow("nothing") << false << false;
    QTest::newRow("shift") << true << false;
    QTest::newRow("ctrl") << false << true;
    QTest::newRow("both") << true << true;
}

void TestPickerEvents::focusGoesWithWhatIsHeld()
{
    QFETCH(bool, shift);
    QFETCH(bool, ctrl);
    HSelector strip;
    if (shift) {
        sendKey(strip, QEvent::KeyPress, Qt::Key_Shift);
    }
    if (ctrl) {
        sendKey(strip, QEvent::KeyPress, Qt::Key_Control);
    }
    const QSignalSpy shiftReleased(&strip, SIGNAL(shiftReleased()));
    const QSignalSpy ctrlReleased(&strip, SIGNAL(ctrlReleased()));
    for (int i = 0; i < 2; ++i) { // the second time nothing is held any more
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(&strip, &out);
        QCOMPARE(shiftReleased.count(), shift ? 1 : 0);
        QCOMPARE(ctrlReleased.count(), ctrl ? 1 : 0);
    }
}

void TestPickerEvents::middlePressEndsWithItsButton_data()
{
    QTest::addColumn<int>("widget");
    QTest::newRow("strip") << 0;
    QTest::newRow("square") << 1;
}

void TestPickerEvents::middlePressEndsWithItsButton()
{
    QFETCH(int, widget);
    const Panel panel;
    auto &pressed = static_cast<ColorWidget &>(*panel.widget(widget));
    press(pressed, {20, 100});
    const QColor before = pressed.color();
    press(pressed, {20, 20}, Qt::MiddleButton);
    for (const Qt::MouseButton other : {Qt::LeftButton, Qt::RightButton, Qt::BackButton}) {
        QVERIFY(!release(pressed, {20, 20}, other));
        move(pressed, {20, 20});
        QCOMPARE(pressed.color(), before);
    }
    QVERIFY(!release(pressed, {20, 20}, Qt::MiddleButton));
    move(pressed, {20, 20});
    QVERIFY(pressed.color() != before);
}

void TestPickerEvents::sampleDragged_data()
{
    QTest::addColumn<Qt::MouseButton>("button"); // held on the way
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("isClick");
    const int enough = QApplication::startDragDistance();
    QTest::newRow("not at all") << Qt::LeftButton << QPoint() << true;
    QTest::newRow("hardly") << Qt::LeftButton << QPoint(enough - 1, 0) << true;
    QTest::newRow("far enough") << Qt::LeftButton << QPoint(enough, 0) << false;
    QTest::newRow("far enough, back") << Qt::LeftButton << QPoint(-enough, 0) << false;
    QTest::newRow("far enough, down") << Qt::LeftButton << QPoint(0, enough) << false;
    QTest::newRow("hardly, aslant") << Qt::LeftButton << QPoint(-2, enough - 3) << true;
    QTest::newRow("far enough, aslant") << Qt::LeftButton << QPoint(3, 3 - enough) << false;
    QTest::newRow("right button, hardly") << Qt::RightButton << QPoint(0, 1 - enough) << true;
    QTest::newRow("right button, far enough") << Qt::RightButton << QPoint(0, -enough) << false;
    QTest::newRow("no button") << Qt::NoButton << QPoint(5 * enough, 0) << true;
}

void TestPickerEvents::sampleDragged()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, way);
    QFETCH(bool, isClick);
    const Qt::MouseButton clicked = button == Qt::NoButton ? Qt::LeftButton : button;
    ColorSample sample;
    sample.resize(260, 60);
    sample.setMouseTracking(true); // else it hears of no way without a button
    const QSignalSpy left(&sample, SIGNAL(samplePressedLeft()));
    const QSignalSpy right(&sample, SIGNAL(samplePressedRight()));
    const QPoint start(40, 30);
    QVERIFY(!press(sample, start, clicked));
    QVERIFY(!move(sample, start + way, button));
    QVERIFY(!release(sample, start + way, clicked));
    QCOMPARE(left.count(), isClick && clicked == Qt::LeftButton ? 1 : 0);
    QCOMPARE(right.count(), isClick && clicked == Qt::RightButton ? 1 : 0);

    // Back at the start it has been a drag none the less; the next click is one.
    press(sample, start, clicked);
    move(sample, start + way, button);
    move(sample, start, button);
    release(sample, start, clicked);
    press(sample, start, clicked);
    release(sample, start, clicked);
    QCOMPARE(left.count() + right.count(), isClick ? 3 : 1);
}

QTEST_MAIN(TestPickerEvents)
#include "tst_pickerevents.moc"
