#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

namespace {

QColor frameOf(QWidget &widget)
{
    const int margin = qobject_cast<const ColorSample *>(&widget) ? 0 : PickerGeometry::margin;
    return widget.grab().toImage().pixelColor(widget.width() / 2, margin + 1);
}

} // namespace

/// The picker without a mouse, and without eyes.
class TestPickerKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void stripByArrows_data();
    void stripByArrows();
    void squareByArrows_data();
    void squareByArrows();
    void samplePressed_data();
    void samplePressed();
    void otherKeysPass();
    void focusIsSeen_data();
    void focusIsSeen();
    void clickShowsNoFocus();
    void returnOfTheWindowShowsNoFocus();
    void stripIsASlider();
    void squareTellsItsValues();
    void sampleIsAButton();
    void fieldsCanBeLeft();
    void pickerTakesTheFocusAndGivesItBack();
    void mouseLeavesNoMark_data();
    void mouseLeavesNoMark();

private:
    template<class Widget> Widget *get(const char *name) const { return world->get<Widget>(name); }
    QString rgb() const { return get<QLineEdit>("leRGB")->text(); }

    std::unique_ptr<TestWindow> world;
};

void TestPickerKeys::init()
{
    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=0 128 128\n"
                         "P751LEDStripe=true\n");
    MainWindow &window = world->start();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    get<QAbstractButton>("colorpick1")->click();
}

void TestPickerKeys::cleanup()
{
    world.reset();
}

void TestPickerKeys::stripByArrows_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("hue"); // from 180
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("up") << Qt::Key_Up << none << 179;
    QTest::newRow("down") << Qt::Key_Down << none << 181;
    QTest::newRow("shift up") << Qt::Key_Up << shift << 170;
    QTest::newRow("shift down") << Qt::Key_Down << shift << 190;
    QTest::newRow("left") << Qt::Key_Left << none << 180;
}

void TestPickerKeys::stripByArrows()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    auto *const strip = get<HSelector>("hSelector");
    QCOMPARE(strip->hue(), 180);
    QTest::keyClick(strip, key, modifiers);
    QTEST(strip->hue(), "hue");
    QCOMPARE(get<ColorSample>("colorSample")->color().hsvHue(), strip->hue());
}

void TestPickerKeys::squareByArrows_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("saturation"); // from 255
    QTest::addColumn<int>("value");      // from 128
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("up") << Qt::Key_Up << none << 255 << 129;
    QTest::newRow("down") << Qt::Key_Down << none << 255 << 127;
    QTest::newRow("left") << Qt::Key_Left << none << 254 << 128;
    QTest::newRow("right, at the edge") << Qt::Key_Right << none << 255 << 128;
    QTest::newRow("shift up") << Qt::Key_Up << shift << 255 << 138;
    QTest::newRow("shift down") << Qt::Key_Down << shift << 255 << 118;
    QTest::newRow("shift left") << Qt::Key_Left << shift << 245 << 128;
}

void TestPickerKeys::squareByArrows()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    auto *const square = get<SVSelector>("svSelector");
    QTest::keyClick(square, key, modifiers);
    QTEST(square->saturation(), "saturation");
    QTEST(square->value(), "value");
    QCOMPARE(get<ColorSample>("colorSample")->color(), square->color());
}

void TestPickerKeys::samplePressed_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void TestPickerKeys::samplePressed()
{
    QFETCH(Qt::Key, key);
    auto *const sample = get<ColorSample>("colorSample");
    const QSignalSpy presses(sample, SIGNAL(samplePressedLeft()));
    QTest::keyClick(sample, key);
    QCOMPARE(presses.size(), 1);
}

void TestPickerKeys::otherKeysPass()
{
    for (const char *name : {"hSelector", "svSelector", "colorSample"}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(get<QWidget>(name), &event);
        QVERIFY2(!event.isAccepted(), name);
    }
}

void TestPickerKeys::focusIsSeen_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"hSelector", "svSelector", "colorSample"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestPickerKeys::focusIsSeen()
{
    QFETCH(QByteArray, name);
    auto *const widget = get<QWidget>(name.constData());
    get<QWidget>("pushButton")->setFocus();
    const QColor resting = frameOf(*widget);
    widget->setFocus(Qt::TabFocusReason);
    QCOMPARE(QApplication::focusWidget(), widget);
    QVERIFY(frameOf(*widget) != resting);
    QVERIFY(frameOf(*widget).lightness() > 240);
    get<QWidget>("pushButton")->setFocus();
    QCOMPARE(frameOf(*widget), resting);
}

void TestPickerKeys::clickShowsNoFocus()
{
    const std::initializer_list<std::pair<const char *, Qt::Key>> keys{
        {"hSelector", Qt::Key_Up},    {"hSelector", Qt::Key_Down},    {"svSelector", Qt::Key_Left},
        {"svSelector", Qt::Key_Down}, {"colorSample", Qt::Key_Space},
    };
    for (const auto &[name, key] : keys) {
        auto *const widget = get<QWidget>(name);
        get<QWidget>("pushButton")->setFocus();
        const QColor resting = frameOf(*widget);
        QTest::mouseClick(widget, Qt::LeftButton, {}, {20, 40});
        widget->setFocus(Qt::MouseFocusReason);
        QCOMPARE(QApplication::focusWidget(), widget);
        QCOMPARE(frameOf(*widget), resting);
        QTest::keyClick(widget, key);
        QVERIFY2(frameOf(*widget) != resting, name);
    }
}

void TestPickerKeys::returnOfTheWindowShowsNoFocus()
{
    auto *const strip = get<HSelector>("hSelector");
    const QColor resting = frameOf(*strip);
    for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::OtherFocusReason}) {
        QFocusEvent in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(strip, &in);
        QCOMPARE(frameOf(*strip) != resting, reason == Qt::OtherFocusReason);
    }
}

void TestPickerKeys::stripIsASlider()
{
    auto *const strip = get<HSelector>("hSelector");
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(strip);
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QAccessibleValueInterface *const value = accessible->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 360);
    QCOMPARE(value->minimumStepSize().toInt(), 1);
    QCOMPARE(value->currentValue().toInt(), 180);
    value->setCurrentValue(240);
    QCOMPARE(value->currentValue().toInt(), 240);
    QCOMPARE(rgb(), QStringLiteral("0 0 128"));
    strip->setHue(-1); // a grey
    QCOMPARE(value->currentValue().toInt(), 0);
}

void TestPickerKeys::squareTellsItsValues()
{
    auto *const square = get<SVSelector>("svSelector");
    const QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(square);
    QCOMPARE(accessible->role(), QAccessible::ColorChooser);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Saturation and value"));
    QCOMPARE(accessible->text(QAccessible::Description),
             QStringLiteral("Saturation 255, value 128"));
    square->setSaturationValue(1, 2);
    QCOMPARE(accessible->text(QAccessible::Description), QStringLiteral("Saturation 1, value 2"));
}

void TestPickerKeys::sampleIsAButton()
{
    auto *const sample = get<ColorSample>("colorSample");
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(sample);
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Selected color"));
    QCOMPARE(accessible->text(QAccessible::Description), QStringLiteral("#008080"));
    QVERIFY(accessible->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    const QSignalSpy presses(sample, SIGNAL(samplePressedLeft()));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(presses.size(), 1);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(presses.size(), 1);
    QCOMPARE(QApplication::focusWidget(), sample);
}

void TestPickerKeys::fieldsCanBeLeft()
{
    auto *const first = get<QLineEdit>("leRGB");
    auto *const second = get<QLineEdit>("leHex");
    first->setFocus();
    second->setSelection(0, 2);          // as a screen reader may have left it
    QTest::keyClick(first, Qt::Key_Tab); // stays in the field
    QCOMPARE(QApplication::focusWidget(), first);
    QTest::keyClick(first, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), second);
    QCOMPARE(second->selectedText(), second->text());
    QTest::keyClick(second, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), get<QWidget>("comboBox_BasicColors"));
    second->setFocus();
    const Qt::KeyboardModifiers back = Qt::ControlModifier | Qt::ShiftModifier;
    QTest::keyClick(second, Qt::Key_Backtab, back);
    QCOMPARE(QApplication::focusWidget(), first);
    QCOMPARE(first->selectedText(), first->text());
    QTest::keyClick(first, Qt::Key_Backtab, back);
    QCOMPARE(QApplication::focusWidget(), get<QWidget>("colorSample"));
}

void TestPickerKeys::pickerTakesTheFocusAndGivesItBack()
{
    QCOMPARE(QApplication::focusWidget(), get<QWidget>("svSelector"));
    get<QAbstractButton>("pushButton_2")->click();
    QCOMPARE(QApplication::focusWidget(), get<QWidget>("colorpick1"));
}

void TestPickerKeys::mouseLeavesNoMark_data()
{
    QTest::addColumn<QByteArray>("opener");
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("closer");
    QTest::newRow("Apply Value") << QByteArray("colorpick1") << 1 << QByteArray("pushButton");
    QTest::newRow("Cancel") << QByteArray("colorpick1") << 1 << QByteArray("pushButton_2");
    QTest::newRow("centre") << QByteArray("colorpick2") << 1 << QByteArray("pushButton");
    QTest::newRow("right") << QByteArray("colorpick3") << 1 << QByteArray("pushButton");
    QTest::newRow("keyboard") << QByteArray("colorpick4") << 0 << QByteArray("pushButton");
    QTest::newRow("stripe") << QByteArray("colorpick5") << 2 << QByteArray("pushButton");
}

/// The focus is marked for those who came by the keyboard, in both directions.
void TestPickerKeys::mouseLeavesNoMark()
{
    QFETCH(QByteArray, opener);
    QFETCH(int, page);
    QFETCH(QByteArray, closer);
    auto *const open = get<QWidget>(opener.constData());
    auto *const square = get<SVSelector>("svSelector");
    auto *const close = get<QWidget>(closer.constData());
    get<QAbstractButton>("pushButton_2")->click();
    get<QWidget>("backlight_on")->setFocus();
    get<QTabWidget>("tabWidget_2")->setCurrentIndex(page);
    const QImage unmarked = open->grab().toImage();

    QTest::mouseClick(open, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), square);
    QVERIFY(frameOf(*square).lightness() < 240);
    QTest::mouseClick(close, Qt::LeftButton);
    QVERIFY(open->grab().toImage() == unmarked);

    open->setFocus(Qt::TabFocusReason);
    QTest::keyClick(open, Qt::Key_Space);
    QCOMPARE(QApplication::focusWidget(), square);
    QVERIFY(frameOf(*square).lightness() > 240);
    QTest::keyClick(close, Qt::Key_Space);
    QCOMPARE(QApplication::focusWidget(), open);
    QVERIFY(open->grab().toImage() != unmarked);

    QTest::keyClick(open, Qt::Key_Space);
    QTest::mouseClick(close, Qt::LeftButton); // the last one counts
    QVERIFY(open->grab().toImage() == unmarked);
}

QTEST_MAIN(TestPickerKeys)
#include "tst_pickerkeys.moc"
