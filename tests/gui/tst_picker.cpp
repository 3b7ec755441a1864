#include "colorpicker/basiccolors.h"
#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/pickergeometry.h"
#include "colorpicker/svselector.h"
#include "lighting/devicewords.h"
#include "tests/gui/pickerfields.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

using namespace PickerFields;

Q_DECLARE_METATYPE(SettingKey)

class TestPicker : public QObject
{
    Q_OBJECT

private slots:
    void targets_data();
    void targets();
    void cancelStoresNothing();
    void wholeKeyboardWritesFourKeys();
    void basicColors_data();
    void basicColors();
    void chosenPurpleIsNotRecognised();
    void enteredPurpleBecomesTheOther();
    void enteredTextIsNormalised();
    void greyUntilAnotherHue_data();
    void greyUntilAnotherHue();
    void textThatIsNoColourIsStoredAsTyped();
    void selectField();
    void windowGoesWhileTyping();
    void zoneWithoutAColourIsBlack();
    void basicColorChosenTwice_data();
    void basicColorChosenTwice();
    void chosenColourStaysListed();

private:
    /// What the next change of the brightness goes by.
    static QStringList colours(const LightingState &state);

    /// Whether every pixel of the square's picture, as the window shows it, is a grey.
    static bool squareIsGrey(const TestWindow &world)
    {
        using namespace PickerGeometry;
        const QImage shown = world.get<SVSelector>("svSelector")
                                 ->grab()
                                 .toImage()
                                 .copy(margin, margin, squareSize, squareSize);
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const QRgb pixel = shown.pixel(x, y);
                if (qRed(pixel) != qGreen(pixel) || qGreen(pixel) != qBlue(pixel)) {
                    return false;
                }
            }
        }
        return true;
    }
};

QStringList TestPicker::colours(const LightingState &state)
{
    return {state.leftZoneColor, state.centerZoneColor, state.rightZoneColor, state.singleZoneColor,
            state.stripeLidColor};
}

void TestPicker::targets_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("prompt");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<SettingKey>("key");
    const auto row = [](const char *button, const char *prompt, const char *loaded,
                        const SettingKey &key) {
        QTest::newRow(button) << QString::fromLatin1(button) << QString::fromLatin1(prompt)
                              << QString::fromLatin1(loaded) << key;
    };
    row("colorpick1", "Select Left Keyboard Zone Color:", "1 2 3", SettingKeys::leftColour);
    row("colorpick2", "Select Center Keyboard Zone Color:", "4 5 6", SettingKeys::centreColour);
    row("colorpick3", "Select Right Keyboard Zone Color:", "7 8 9", SettingKeys::rightColour);
    row("colorpick4", "Select Keyboard Color:", "", SettingKeys::singleColour);
    row("colorpick5", "Select Stripe / LCD Lid Color:", "10 20 30", SettingKeys::stripeLid);
}

void TestPicker::targets()
{
    QFETCH(QString, button);
    QFETCH(SettingKey, key);
    TestWindow world;
    open(world, qPrintable(button),
         "Zone1Color=1 2 3\nZone2Color=4 5 6\nZone3Color=7 8 9\nStripeLid=10 20 30\n"
         "P751LEDStripe=true\n");
    QVERIFY(!world.get<QWidget>("colorpickframe")->isHidden());
    QVERIFY(world.get<QWidget>("tabWidget")->isHidden());
    QVERIFY(world.get<QWidget>("tabWidget_2")->isHidden());
    QTEST(world.get<QLabel>("label_8")->text(), "prompt");
    QTEST(text(world, "leRGB"), "loaded");
    QCOMPARE(world.get<QComboBox>("comboBox_BasicColors")->currentIndex(), 0);
    QStringList kept = colours(world.window->lightingState());

    enter(world, "leRGB", "0 0 255");
    world.get<QAbstractButton>("pushButton")->click();
    QVERIFY(world.get<QWidget>("colorpickframe")->isHidden());
    QVERIFY(!world.get<QWidget>("tabWidget")->isHidden());
    QVERIFY(!world.get<QWidget>("tabWidget_2")->isHidden());
    QCOMPARE(world.stored(key), QStringLiteral("0 0 255"));
    const int target = button.rightRef(1).toInt();
    for (int i = 0; i < kept.size(); ++i) {
        if (i == target - 1 || (target == 4 && i < 3)) { // the whole keyboard is all three zones
            kept[i] = QStringLiteral("0 0 255");
        }
    }
    QCOMPARE(colours(world.window->lightingState()), kept);
}

void TestPicker::cancelStoresNothing()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    enter(world, "leRGB", "0 0 255");
    world.get<QAbstractButton>("pushButton_2")->click();
    QVERIFY(world.get<QWidget>("colorpickframe")->isHidden());
    QVERIFY(!world.get<QWidget>("tabWidget_2")->isHidden());
    QCOMPARE(world.stored(SettingKeys::leftColour), QStringLiteral("1 2 3"));
    QCOMPARE(world.window->lightingState().leftZoneColor, QStringLiteral("1 2 3"));
    QCOMPARE(world.window->lightingState().leftWord, wordText(0xF0030102));
}

void TestPicker::wholeKeyboardWritesFourKeys()
{
    TestWindow world;
    open(world, "colorpick4");
    enter(world, "leRGB", "255 0 0");
    world.get<QAbstractButton>("pushButton")->click();
    for (const SettingKey &key : {SettingKeys::leftColour, SettingKeys::centreColour,
                                  SettingKeys::rightColour, SettingKeys::singleColour}) {
        QCOMPARE(world.stored(key), QStringLiteral("255 0 0"));
    }
    QCOMPARE(world.stored(SettingKeys::singleColourLast), QStringLiteral("true"));
    const LightingState &state = world.window->lightingState();
    QVERIFY(state.singleColorSelected);
    QCOMPARE(state.leftWord, wordText(0xF000FF00));
    QCOMPARE(state.centreWord, wordText(0xF100FF00));
    QCOMPARE(state.rightWord, wordText(0xF200FF00));
}

void TestPicker::basicColors_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("opensOn");
    const auto row = [](const char *name, const char *chosen, const char *opensOn) {
        QTest::newRow(name) << QString::fromLatin1(chosen) << QString::fromLatin1(opensOn);
    };
    row("Red", "255 0 0", "255 0 0");
    row("White", "255 255 255", "255 255 255");
    row("Blue", "0 0 255", "0 0 255");
    row("Cyan", "0 255 255", "0 255 255");
    row("Purple", "155 0 255", "153 0 255");
    row("Yellow", "255 255 0", "255 255 0");
    row("Green", "0 255 0", "0 255 0");
    row("Orange", "255 85 0", "255 85 0");
}

void TestPicker::basicColors()
{
    QFETCH(QString, chosen);
    QFETCH(QString, opensOn);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    TestWindow world;
    open(world, "colorpick1", "Zone2Color=" + opensOn.toLatin1() + '\n');
    auto *const list = world.get<QComboBox>("comboBox_BasicColors");
    list->setCurrentIndex(list->findText(name));
    QCOMPARE(text(world, "leRGB"), chosen);
    QCOMPARE(basicColorText(list->currentIndex()), chosen);
    list->setCurrentIndex(0);
    QCOMPARE(text(world, "leRGB"), chosen); // "None" changes nothing

    world.get<QAbstractButton>("colorpick2")->click(); // retargets the open picker
    QCOMPARE(list->currentText(), name);
    QCOMPARE(basicColorIndex(opensOn), list->currentIndex());
}

void TestPicker::chosenPurpleIsNotRecognised()
{
    TestWindow world;
    open(world, "colorpick1");
    auto *const list = world.get<QComboBox>("comboBox_BasicColors");
    list->setCurrentIndex(5);
    world.get<QAbstractButton>("pushButton")->click();
    QCOMPARE(world.stored(SettingKeys::leftColour), QStringLiteral("155 0 255"));
    world.get<QAbstractButton>("colorpick1")->click();
    QCOMPARE(list->currentText(), QStringLiteral("None"));
}

void TestPicker::enteredPurpleBecomesTheOther()
{
    TestWindow world;
    open(world, "colorpick1");
    enter(world, "leRGB", "153 0 255");
    world.get<QAbstractButton>("pushButton")->click();
    QCOMPARE(world.stored(SettingKeys::leftColour), QStringLiteral("153 0 255"));
    world.get<QAbstractButton>("colorpick1")->click();
    QCOMPARE(world.get<QComboBox>("comboBox_BasicColors")->currentText(), QStringLiteral("Purple"));
    QCOMPARE(text(world, "leRGB"), QStringLiteral("155 0 255"));
}

void TestPicker::enteredTextIsNormalised()
{
    TestWindow world;
    open(world, "colorpick1");
    enter(world, "leRGB", "  255 ,  0   0 ");
    QCOMPARE(text(world, "leRGB"), QStringLiteral("255 0 0"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("ff0000"));
}

void TestPicker::greyUntilAnotherHue_data()
{
    QTest::addColumn<bool>("byStrip");
    QTest::newRow("in the strip") << true;
    QTest::newRow("by typing") << false;
}

void TestPicker::greyUntilAnotherHue()
{
    QFETCH(bool, byStrip);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 0 255\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowActive(world.window.get()));
    auto *const strip = world.get<HSelector>("hSelector");
    auto *const square = world.get<SVSelector>("svSelector");
    QVERIFY(!squareIsGrey(world));

    type(world, "leRGB", QStringLiteral("128 128 128"));
    QCOMPARE(text(world, "leRGB"), QStringLiteral("128 128 128"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("808080"));
    QCOMPARE(strip->hue(), -1);
    QVERIFY(squareIsGrey(world));
    // Another place in the square is another grey.
    QTest::mouseClick(square, Qt::LeftButton, Qt::NoModifier, {200, 57});
    QCOMPARE(text(world, "leRGB"), QStringLiteral("200 200 200"));
    QVERIFY(squareIsGrey(world));

    if (byStrip) {
        QTest::mouseClick(strip, Qt::LeftButton, Qt::NoModifier,
                          {strip->width() / 2, strip->height() / 2});
    } else {
        type(world, "leRGB", QStringLiteral("0 255 0"));
    }
    QVERIFY(strip->hue() > 0);
    QVERIFY(!squareIsGrey(world));
    const QColor chosen = world.get<ColorSample>("colorSample")->color();
    QCOMPARE(chosen.hue(), strip->hue());
    QCOMPARE(text(world, "leHex"), chosen.name().mid(1));
}

void TestPicker::textThatIsNoColourIsStoredAsTyped()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(world.window.get()));
    auto *const field = world.get<QLineEdit>("leRGB");
    field->setCursorPosition(0);
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(field->text(), QStringLiteral("256 0 0"));
    const QPoint at = field->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    for (int step = 257; step <= 300; ++step) {
        QWheelEvent up(at, field->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &up);
    }
    QCOMPARE(field->text(), QStringLiteral("300 0 0"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("ff0000"));
    QCOMPARE(world.get<ColorSample>("colorSample")->color().rgb(), QColor(Qt::red).rgb());
    QCOMPARE(world.get<SVSelector>("svSelector")->color().rgb(), QColor(Qt::red).rgb());
    QCOMPARE(world.get<HSelector>("hSelector")->hue(), 0);
    world.get<QAbstractButton>("pushButton")->click();
    QCOMPARE(world.stored(SettingKeys::leftColour), QStringLiteral("300 0 0"));
    QCOMPARE(world.window->lightingState().leftWord, wordText(0xF0002C00)); // 300 in eight bits
}

void TestPicker::selectField()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowActive(world.window.get()));
    auto *const field = world.get<QLineEdit>("leRGB");
    world.window->selectField(field);
    QVERIFY(field->hasFocus());
    QCOMPARE(field->selectedText(), QStringLiteral("255 0 0"));
}

void TestPicker::windowGoesWhileTyping()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowActive(world.window.get()));
    auto *const field = world.get<QLineEdit>("leRGB");
    field->setFocus();
    QVERIFY(field->hasFocus());
    // The field tells of its end as usual, while hardly anything is left of the window.
    bool told = false;
    connect(field, &QLineEdit::editingFinished, field, [&told] { told = true; });
    world.window.reset();
    QVERIFY(told);
}

void TestPicker::zoneWithoutAColourIsBlack()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 255 0\n");
    world.get<QAbstractButton>("colorpick2")->click();
    QCOMPARE(text(world, "leRGB"), QString());
    QCOMPARE(text(world, "leHex"), QString());
    QCOMPARE(world.get<ColorSample>("colorSample")->color().rgb(), QColor(Qt::black).rgb());
    QCOMPARE(world.get<SVSelector>("svSelector")->color().rgb(), QColor(Qt::black).rgb());
    QCOMPARE(world.get<SVSelector>("svSelector")->value(), 0);
    QCOMPARE(world.get<SVSelector>("svSelector")->saturation(), 255);
    QCOMPARE(world.get<HSelector>("hSelector")->hue(), 0);
    QCOMPARE(world.get<QComboBox>("comboBox_BasicColors")->currentText(), QStringLiteral("None"));

    world.get<QAbstractButton>("pushButton")->click();
    QCOMPARE(world.stored(SettingKeys::centreColour), QString());
    world.get<QAbstractButton>("colorpick1")->click(); // and back to a zone that has one
    QCOMPARE(text(world, "leRGB"), QStringLiteral("0 255 0"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("00ff00"));
}

void TestPicker::basicColorChosenTwice_data()
{
    QTest::addColumn<QString>("byHand");
    for (const char *way : {"leRGB", "leHex", "svSelector", "hSelector", "bPasteHex"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

/// A list that still shows a colour's name would not be changed by choosing it again.
void TestPicker::basicColorChosenTwice()
{
    QFETCH(QString, byHand);
    TestWindow world;
    open(world, "colorpick1");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(world.window.get()));
    auto *const list = world.get<QComboBox>("comboBox_BasicColors");
    const int yellow = list->findText(QStringLiteral("Yellow"));
    list->setCurrentIndex(yellow);
    QCOMPARE(text(world, "leRGB"), QStringLiteral("255 255 0"));
    if (byHand == QLatin1String("leRGB")) {
        type(world, "leRGB", QStringLiteral("0 0 255"));
    } else if (byHand == QLatin1String("leHex")) {
        type(world, "leHex", QStringLiteral("0000fe"));
    } else if (byHand == QLatin1String("bPasteHex")) {
        QGuiApplication::clipboard()->setText(QStringLiteral("#123456"));
        world.window->pasteHex();
    } else {
        QTest::mouseClick(world.get<QWidget>(qPrintable(byHand)), Qt::LeftButton, {}, {20, 120});
    }
    QCOMPARE(list->currentText(), QStringLiteral("None"));
    QVERIFY(text(world, "leRGB") != QLatin1String("255 255 0"));
    list->setCurrentIndex(yellow);
    QCOMPARE(text(world, "leRGB"), QStringLiteral("255 255 0"));
    QCOMPARE(list->currentText(), QStringLiteral("Yellow"));
}

/// Whatever lay between the former colour and the chosen one, and by either text of an item.
void TestPicker::chosenColourStaysListed()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=10 200 90\n");
    auto *const list = world.get<QComboBox>("comboBox_BasicColors");
    for (int former = 1; former < list->count(); ++former) {
        for (int index = 1; index < list->count(); ++index) {
            list->setCurrentIndex(former);
            list->setCurrentIndex(index);
            QCOMPARE(list->currentIndex(), index);
            QCOMPARE(text(world, "leRGB"), basicColorText(index));
        }
    }
    list->setCurrentText(QStringLiteral("Purple"));
    enter(world, "leRGB", "153 0 255");
    QCOMPARE(list->currentText(), QStringLiteral("Purple"));
    enter(world, "leRGB", "154 0 255");
    QCOMPARE(list->currentText(), QStringLiteral("None"));
}

QTEST_MAIN(TestPicker)
#include "tst_picker.moc"
