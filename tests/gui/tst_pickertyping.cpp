#include "colorpicker/colorsample.h"
#include "tests/gui/pickerfields.h"
#include "tests/support/testwindow.h"

#include <QLineEdit>
#include <QTest>

using namespace PickerFields;

/// Colours typed into the picker's fields, which are written anew at each letter.
class TestPickerTyping : public QObject
{
    Q_OBJECT

private slots:
    void typedLetterByLetter_data();
    void typedLetterByLetter();
    void blankThatEndsNoNumber();
    void overtyping_data();
    void overtyping();
    void hexIsEntered();
    void hexLetterByLetter_data();
    void hexLetterByLetter();
    void hexAfterAnotherEdit();
    void hexOvertyping_data();
    void hexOvertyping();
    void hashIsTaken_data();
    void hashIsTaken();
    void typedHashIsLeftOut();
    void numbersKeepApart_data();
    void numbersKeepApart();
    void blankGoesWithTheFocus();
};

void TestPickerTyping::typedLetterByLetter_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QColor>("colour");
    const QColor before(1, 2, 3);
    QTest::newRow("blanks") << "153 0 255"
                            << "153 0 255" << QColor(153, 0, 255);
    QTest::newRow("commas") << "0,128,255"
                            << "0 128 255" << QColor(0, 128, 255);
    QTest::newRow("too many blanks") << "  7   8  9 "
                                     << "7 8 9" << QColor(7, 8, 9);
    QTest::newRow("two numbers") << "7 8"
                                 << "7 8" << before;
    QTest::newRow("four numbers") << "7 8 9 1"
                                  << "7 8 91" << QColor(7, 8, 91);
}

void TestPickerTyping::typedLetterByLetter()
{
    QFETCH(QString, keys);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    type(world, "leRGB", keys);
    QTEST(text(world, "leRGB"), "field");
    QTEST(world.get<ColorSample>("colorSample")->color(), "colour");
}

void TestPickerTyping::blankThatEndsNoNumber()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    type(world, "leRGB", QStringLiteral("7 8"));
    auto *const edit = world.get<QLineEdit>("leRGB");
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Space); // takes the place of the selected text
    QCOMPARE(edit->text(), QString());
    QTest::keyClick(edit, Qt::Key_Space);
    QCOMPARE(edit->text(), QString());
}

void TestPickerTyping::overtyping_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("cursor");
    QTest::newRow("first number") << 0 << 3 << "12"
                                  << "12 0 77" << 2;
    QTest::newRow("middle number") << 4 << 1 << "128"
                                   << "255 128 77" << 7;
    QTest::newRow("behind a zero") << 5 << 0 << "34"
                                   << "255 34 77" << 6;
    QTest::newRow("last number") << 6 << 2 << "9"
                                 << "255 0 9" << 7;
}

/// The cursor stays where the user types, also where each letter makes another valid colour.
void TestPickerTyping::overtyping()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, keys);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 77\n");
    auto *const edit = world.get<QLineEdit>("leRGB");
    edit->setCursorPosition(start);
    if (length > 0) {
        edit->setSelection(start, length);
    }
    QTest::keyClicks(edit, keys);
    QTEST(edit->text(), "field");
    QTEST(edit->cursorPosition(), "cursor");
}

void TestPickerTyping::hexIsEntered()
{
    TestWindow world;
    open(world, "colorpick1");
    QTest::keyClicks(world.get<QLineEdit>("leHex"), QStringLiteral("f00"));
    QCOMPARE(text(world, "leRGB"), QStringLiteral("255 0 0")); // as soon as it is three digits
    enter(world, "leHex", "0080ff");
    QCOMPARE(text(world, "leRGB"), QStringLiteral("0 128 255"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("0080ff"));
}

void TestPickerTyping::hexLetterByLetter_data()
{
    QTest::addColumn<QString>("keys"); // a "<" is a Backspace
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("rgb");
    QTest::newRow("six digits") << "123456"
                                << "123456"
                                << "18 52 86";
    QTest::newRow("pairs of the same") << "112233"
                                       << "112233"
                                       << "17 34 51";
    QTest::newRow("capital letters") << "C85AbF"
                                     << "c85abf"
                                     << "200 90 191";
    QTest::newRow("three digits") << "c85"
                                  << "cc8855"
                                  << "204 136 85";
    QTest::newRow("four digits are no colour yet") << "c85a"
                                                   << "c85a"
                                                   << "204 136 85";
    QTest::newRow("the third digit mended") << "c84<5"
                                            << "cc8855"
                                            << "204 136 85";
    QTest::newRow("erased from six to two") << "123456<<<<"
                                            << "12"
                                            << "17 34 51";
    QTest::newRow("erased and typed again") << "123456<<<<<<abcdef"
                                            << "abcdef"
                                            << "171 205 239";
    QTest::newRow("more than six") << "1234567"
                                   << "1234567"
                                   << "18 52 86";
}

void TestPickerTyping::hexLetterByLetter()
{
    QFETCH(QString, keys);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    auto *const edit = world.get<QLineEdit>("leHex");
    edit->selectAll();
    typeAndErase(*edit, keys);
    QTEST(edit->text(), "field");
    QTEST(text(world, "leRGB"), "rgb");
}

/// Three digits that were written out are six like others for who comes back to them.
void TestPickerTyping::hexAfterAnotherEdit()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowActive(world.window.get()));
    auto *const edit = world.get<QLineEdit>("leHex");
    type(world, "leHex", QStringLiteral("123"));
    QTest::mouseClick(edit, Qt::LeftButton, Qt::NoModifier,
                      {edit->width() - 4, edit->height() / 2});
    QCOMPARE(edit->cursorPosition(), 6);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(edit->text(), QStringLiteral("11223"));

    type(world, "leHex", QStringLiteral("123"));
    QTest::keyClick(edit, Qt::Key_Left);
    QTest::keyClick(edit, Qt::Key_4);
    QCOMPARE(edit->text(), QStringLiteral("1122343"));

    type(world, "leHex", QStringLiteral("123"));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_4);
    QCOMPARE(edit->text(), QStringLiteral("4"));

    type(world, "leHex", QStringLiteral("123"));
    QTest::keyClick(edit, Qt::Key_4, Qt::AltModifier); // no typing, whatever it brings along
    QCOMPARE(edit->text().left(6), QStringLiteral("112233"));

    type(world, "leHex", QStringLiteral("123"));
    QKeyEvent two(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("45")); // no one digit
    QCoreApplication::sendEvent(edit, &two);
    QCOMPARE(edit->text(), QStringLiteral("11223345"));

    // Pasted by the button, and come back to.
    world.get<QWidget>("svSelector")->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("#0A0"));
    world.window->pasteHex();
    edit->setFocus();
    edit->end(false);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(edit->text(), QStringLiteral("00aa0"));
}

void TestPickerTyping::hexOvertyping_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("keys"); // a "<" is a Backspace, a ">" a Delete
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("cursor");
    QTest::newRow("first pair") << 0 << 2 << "12"
                                << "12ff80" << 2;
    QTest::newRow("middle pair") << 2 << 2 << "ab"
                                 << "00ab80" << 4;
    QTest::newRow("last pair") << 4 << 2 << "cd"
                               << "00ffcd" << 6;
    QTest::newRow("one digit") << 0 << 1 << "a"
                               << "a0ff80" << 1;
    QTest::newRow("two pairs, by way of three digits") << 0 << 4 << "1234"
                                                       << "123480" << 4;
    QTest::newRow("pair between three digits") << 1 << 4 << "1234"
                                               << "012340" << 5;
    QTest::newRow("erased to three and typed on") << 3 << 0 << "<<<123"
                                                  << "123f80" << 3;
    QTest::newRow("deleted to two") << 0 << 0 << ">>>>"
                                    << "80" << 0;
    QTest::newRow("nothing to erase before three digits") << 3 << 0 << "<<<<"
                                                          << "ff8800" << 0;
    QTest::newRow("capital letter") << 0 << 1 << "A"
                                    << "a0ff80" << 1;
}

void TestPickerTyping::hexOvertyping()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, keys);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 255 128\n");
    auto *const edit = world.get<QLineEdit>("leHex");
    QCOMPARE(edit->text(), QStringLiteral("00ff80"));
    edit->setCursorPosition(start);
    if (length > 0) {
        edit->setSelection(start, length);
    }
    typeAndErase(*edit, keys);
    QTEST(edit->text(), "field");
    QTEST(edit->cursorPosition(), "cursor");
}

void TestPickerTyping::hashIsTaken_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("rgb");
    QTest::newRow("over everything") << "#ff00aa" << 0 << 6 << "ff00aa"
                                     << "255 0 170";
    QTest::newRow("capital letters, two hashes") << "##FF00AA" << 0 << 6 << "ff00aa"
                                                 << "255 0 170";
    QTest::newRow("three digits") << "#0A0" << 0 << 6 << "00aa00"
                                  << "0 170 0";
    QTest::newRow("behind the old colour") << "#ff00aa" << 6 << 0 << "ff00aa"
                                           << "255 0 170";
    QTest::newRow("before the old colour") << "#ff00aa" << 0 << 0 << "ff00aa"
                                           << "255 0 170";
    QTest::newRow("amid the old colour") << "#0A0" << 3 << 0 << "00aa00"
                                         << "0 170 0";
    QTest::newRow("five digits") << "#ff00a" << 0 << 6 << "#ff00a"
                                 << "0 255 128";
    QTest::newRow("no digits") << "#red" << 0 << 6 << "#red"
                               << "0 255 128";
}

/// As others write colours, and as a right click on the sample copies them.
void TestPickerTyping::hashIsTaken()
{
    QFETCH(QString, pasted);
    QFETCH(int, start);
    QFETCH(int, length);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 255 128\n");
    auto *const edit = world.get<QLineEdit>("leHex");
    QGuiApplication::clipboard()->setText(pasted);
    edit->setCursorPosition(start);
    if (length > 0) {
        edit->setSelection(start, length);
    }
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    QTEST(edit->text(), "field");
    QTEST(text(world, "leRGB"), "rgb");
    QCOMPARE(edit->cursorPosition(), edit->text().size());
}

void TestPickerTyping::typedHashIsLeftOut()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=1 2 3\n");
    type(world, "leHex", QStringLiteral("#c85abf"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("c85abf"));
    QCOMPARE(text(world, "leRGB"), QStringLiteral("200 90 191"));
}

void TestPickerTyping::numbersKeepApart_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("keys"); // a "<" is a Backspace, a ">" a Delete
    QTest::addColumn<QString>("field");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("last") << 7 << "<7"
                          << "255 0 7" << QColor(255, 0, 7);
    QTest::newRow("middle") << 5 << "<7"
                            << "255 7 0" << QColor(255, 7, 0);
    QTest::newRow("middle, deleted") << 4 << ">128"
                                     << "255 128 0" << QColor(255, 128, 0);
    QTest::newRow("first") << 3 << "<<<9"
                           << "9 0 0" << QColor(9, 0, 0);
    QTest::newRow("first, deleted") << 0 << ">>>77"
                                    << "77 0 0" << QColor(77, 0, 0);
    QTest::newRow("last, erased") << 7 << "<"
                                  << "255 0 " << QColor(255, 0, 0);
    QTest::newRow("middle, erased") << 5 << "<"
                                    << "255  0" << QColor(255, 0, 0);
    QTest::newRow("first, erased") << 3 << "<<<"
                                   << " 0 0" << QColor(2, 0, 0);
    QTest::newRow("last two") << 7 << "<<<8 9"
                              << "255 8 9" << QColor(255, 8, 9);
    QTest::newRow("everything") << 7 << "<<<<<<<1 2 3"
                                << "1 2 3" << QColor(1, 2, 3);
    QTest::newRow("a blank too many") << 7 << " "
                                      << "255 0 0" << QColor(255, 0, 0);
}

/// An erased number leaves its place to the next: its neighbours do not grow together.
void TestPickerTyping::numbersKeepApart()
{
    QFETCH(int, cursor);
    QFETCH(QString, keys);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    auto *const edit = world.get<QLineEdit>("leRGB");
    edit->setCursorPosition(cursor);
    typeAndErase(*edit, keys);
    QTEST(edit->text(), "field");
    QTEST(world.get<ColorSample>("colorSample")->color(), "colour");
}

void TestPickerTyping::blankGoesWithTheFocus()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    world.window->show();
    QVERIFY(QTest::qWaitForWindowActive(world.window.get()));
    auto *const edit = world.get<QLineEdit>("leRGB");
    edit->setFocus();
    edit->end(false);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(edit->text(), QStringLiteral("255 0 "));
    QTest::keyClick(edit, Qt::Key_Return); // leaves the field to its user
    QCOMPARE(edit->text(), QStringLiteral("255 0 "));
    world.get<QWidget>("leHex")->setFocus();
    QCOMPARE(edit->text(), QStringLiteral("255 0"));
}

QTEST_MAIN(TestPickerTyping)
#include "tst_pickertyping.moc"
