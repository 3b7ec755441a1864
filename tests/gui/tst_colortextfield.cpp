#include "colorpicker/colortext.h"

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

class TestColorTextField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startValues();
    void upAndDown_data();
    void upAndDown();
    void upAndDownAreConsumed_data();
    void upAndDownAreConsumed();
    void listenerMayRewriteTheText();
    void typingStillWorks();
    void wheel_data();
    void wheel();
    void tabSelects_data();
    void tabSelects();
    void tabsAreConsumed_data();
    void tabsAreConsumed();
    void tabWithOtherKeysPasses();
    void signalsNamedByTheConventionsExist();

private:
    void wheelOver(int position, int delta);

    std::unique_ptr<QWidget> panel;
    ColorText *field = nullptr;
};

void TestColorTextField::init()
{
    panel = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(panel.get());
    field = new ColorText(panel.get());
    layout->addWidget(field);
    layout->addWidget(new QLineEdit(panel.get())); // where Tab would go otherwise
    panel->resize(300, 120);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QApplication::setActiveWindow(panel.get());
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
}

void TestColorTextField::cleanup()
{
    panel.reset();
}

void TestColorTextField::startValues()
{
    QCOMPARE(field->colorModel(), ColorModel::Hsv);
    QCOMPARE(field->separator(), QStringLiteral(" "));
    QVERIFY(field->text().isEmpty());
}

void TestColorTextField::upAndDown_data()
{
    QTest::addColumn<bool>("hexModel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("newCursor");

    const int up = Qt::Key_Up;
    const int down = Qt::Key_Down;
    QTest::newRow("first beyond 255") << false << "255 0 0" << 1 << up << "256 0 0" << 3;
    QTest::newRow("first down") << false << "255 0 0" << 0 << down << "254 0 0" << 3;
    QTest::newRow("first at 359") << false << "359 0 0" << 0 << up << "359 0 0" << 0;
    QTest::newRow("second at 255") << false << "0 255 0" << 3 << up << "0 255 0" << 3;
    QTest::newRow("third at 0") << false << "9 9 0" << 5 << down << "9 9 0" << 5;
    QTest::newRow("before a blank") << false << "12 34 56" << 2 << up << "13 34 56" << 2;
    QTest::newRow("behind a blank") << false << "12 34 56" << 3 << up << "12 35 56" << 5;
    QTest::newRow("end of the text") << false << "12 34 56" << 8 << down << "12 34 55" << 8;
    QTest::newRow("99 to 100") << false << "0 99 0" << 2 << up << "0 100 0" << 5;
    QTest::newRow("100 to 99") << false << "0 100 0" << 2 << down << "0 99 0" << 4;
    QTest::newRow("last 9 to 10") << false << "0 0 9" << 4 << up << "0 0 10" << 6;
    QTest::newRow("two blanks") << false << "12  34 56" << 0 << up << "12  34 56" << 0;
    QTest::newRow("above 359") << false << "360 0 0" << 0 << down << "360 0 0" << 0;
    QTest::newRow("HEX text, decimal model") << false << "ff0000" << 2 << up << "ff0000" << 2;
    QTest::newRow("empty") << false << "" << 0 << up << "" << 0;
    QTest::newRow("short HEX up") << true << "0e0" << 2 << up << "0f0" << 2;
    QTest::newRow("short HEX at its limit") << true << "0f0" << 2 << up << "0f0" << 2;
    QTest::newRow("long HEX down") << true << "10a000" << 4 << down << "109f00" << 4;
    QTest::newRow("long HEX, last") << true << "10a000" << 5 << up << "10a001" << 5;
    QTest::newRow("long HEX, first") << true << "09a000" << 2 << up << "0aa000" << 2;
    QTest::newRow("invalid HEX") << true << "12345" << 2 << up << "12345" << 2;
    QTest::newRow("hardly any HEX") << true << "12" << 2 << up << "12" << 2;
    QTest::newRow("no HEX") << true << "" << 0 << down << "" << 0;
}

void TestColorTextField::upAndDown()
{
    QFETCH(bool, hexModel);
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(int, key);
    QFETCH(QString, expected);
    QFETCH(int, newCursor);
    if (hexModel) {
        field->setColorModel(ColorModel::Hex);
        field->setSeparator(QString());
    }
    field->setText(text);
    field->setCursorPosition(cursor);
    const QSignalSpy edited(field, SIGNAL(textEdited(QString)));

    QTest::keyClick(field, static_cast<Qt::Key>(key));

    QCOMPARE(field->text(), expected);
    QCOMPARE(field->cursorPosition(), newCursor);
    QCOMPARE(edited.count(), expected == text ? 0 : 1);
    if (!edited.isEmpty()) {
        QCOMPARE(edited.first().first().toString(), expected);
    }
}

void TestColorTextField::upAndDownAreConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("up") << int(Qt::Key_Up);
    QTest::newRow("down") << int(Qt::Key_Down);
}

/// Whether they step or not.
void TestColorTextField::upAndDownAreConsumed()
{
    QFETCH(int, key);
    for (const char *text : {"1 2 3", "no colour"}) {
        field->setText(QString::fromLatin1(text));
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(field, &event);
        QVERIFY(event.isAccepted());
    }
}

void TestColorTextField::listenerMayRewriteTheText()
{
    field->setText(QStringLiteral("10 20 30"));
    field->setCursorPosition(1);
    connect(field, &QLineEdit::textEdited, this, [this] {
        field->setText(field->text()); // leaves the cursor at the end
    });
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(field->text(), QStringLiteral("12 20 30"));
    QCOMPARE(field->cursorPosition(), 2);
}

void TestColorTextField::typingStillWorks()
{
    QTest::keyClicks(field, QStringLiteral("1 2 3"));
    QTest::keyClick(field, Qt::Key_Left);
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(field->text(), QStringLiteral("1 23"));
}

void TestColorTextField::wheelOver(int position, int delta)
{
    // The caret's place for a cursor position is only known for the present cursor.
    field->setCursorPosition(position);
    const QPoint at = field->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QCOMPARE(field->cursorPositionAt(at), position);
    field->setCursorPosition(0);
    QWheelEvent event(at, field->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    QApplication::sendEvent(field, &event);
    QVERIFY(event.isAccepted());
}

void TestColorTextField::wheel_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("delta");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("cursor");

    QTest::newRow("up over the first") << "10 20 30" << 1 << 120 << "11 20 30" << 2;
    QTest::newRow("up over the second") << "10 20 30" << 4 << 120 << "10 21 30" << 5;
    QTest::newRow("down over the third") << "10 20 30" << 7 << -120 << "10 20 29" << 8;
    QTest::newRow("the least delta up") << "10 20 30" << 4 << 1 << "10 21 30" << 5;
    QTest::newRow("no delta counts as down") << "10 20 30" << 4 << 0 << "10 19 30" << 5;
    QTest::newRow("invalid text") << "10 20" << 4 << 120 << "10 20" << 0;
}

void TestColorTextField::wheel()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QFETCH(int, delta);
    field->setText(text);
    const QSignalSpy edited(field, SIGNAL(textEdited(QString)));
    wheelOver(position, delta);
    QTEST(field->text(), "expected");
    QTEST(field->cursorPosition(), "cursor");
    QCOMPARE(edited.count(), field->text() == text ? 0 : 1);
}

void TestColorTextField::tabSelects_data()
{
    QTest::addColumn<bool>("hexModel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<int>("start");

    QTest::newRow("next") << false << "12 34 56" << 1 << true << "34" << 3;
    QTest::newRow("wraps forward") << false << "12 34 56" << 7 << true << "12" << 0;
    QTest::newRow("previous") << false << "12 34 56" << 4 << false << "12" << 0;
    QTest::newRow("wraps backward") << false << "12 34 56" << 0 << false << "56" << 6;
    QTest::newRow("longer number") << false << "1 234 5" << 0 << true << "234" << 2;
    QTest::newRow("invalid") << false << "12 34" << 0 << true << "" << -1;
    QTest::newRow("HEX text, decimal model") << false << "00ff00" << 0 << true << "" << -1;
    QTest::newRow("short HEX") << true << "abc" << 1 << true << "b" << 1;
    QTest::newRow("hardly any HEX") << true << "12" << 1 << true << "" << -1;
    QTest::newRow("long HEX backward") << true << "aabbcc" << 1 << false << "cc" << 4;
}

void TestColorTextField::tabSelects()
{
    QFETCH(bool, hexModel);
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(bool, forward);
    if (hexModel) {
        field->setColorModel(ColorModel::Hex);
        field->setSeparator(QString());
    }
    field->setText(text);
    field->setCursorPosition(cursor);
    if (forward) {
        QTest::keyClick(field, Qt::Key_Tab);
    } else {
        QTest::keyClick(field, Qt::Key_Backtab, Qt::ShiftModifier);
    }
    QTEST(field->selectedText(), "selected");
    QTEST(field->selectionStart(), "start");
    QCOMPARE(field->text(), text);
    QVERIFY(field->hasFocus());
}

void TestColorTextField::tabsAreConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("previous");
    QTest::addColumn<QString>("selected");

    const auto none = Qt::KeyboardModifiers();
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << none << 0 << 0 << "34";
    QTest::newRow("Ctrl+Tab") << int(Qt::Key_Tab) << ctrl << 1 << 0 << "";
    QTest::newRow("Backtab") << int(Qt::Key_Backtab) << none << 0 << 0 << "56";
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << shift << 0 << 0 << "56";
    QTest::newRow("Ctrl+Backtab") << int(Qt::Key_Backtab) << ctrl << 0 << 0 << "56";
    QTest::newRow("Ctrl+Shift+Tab") << int(Qt::Key_Backtab) << ctrlShift << 0 << 1 << "";
}

void TestColorTextField::tabsAreConsumed()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    field->setText(QStringLiteral("12 34 56"));
    field->setCursorPosition(0);
    const QSignalSpy next(field, SIGNAL(focusNextField()));
    const QSignalSpy previous(field, SIGNAL(focusPrevField()));

    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    event.ignore();
    QVERIFY(QApplication::sendEvent(field, &event));

    QVERIFY(event.isAccepted());
    QTEST(next.count(), "next");
    QTEST(previous.count(), "previous");
    QTEST(field->selectedText(), "selected");
    QVERIFY(field->hasFocus());
}

void TestColorTextField::tabWithOtherKeysPasses()
{
    field->setText(QStringLiteral("12 34 56"));
    field->setCursorPosition(0);
    const QSignalSpy next(field, SIGNAL(focusNextField()));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier | Qt::AltModifier);
    QApplication::sendEvent(field, &event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(next.count(), 0);
    QCOMPARE(field->selectedText(), QString());
}

void TestColorTextField::signalsNamedByTheConventionsExist()
{
    const QMetaObject *meta = field->metaObject();
    for (const char *signature : {"textEdited(QString)", "focusNextField()", "focusPrevField()"}) {
        QVERIFY2(meta->indexOfSignal(signature) >= 0, signature);
    }
}

QTEST_MAIN(TestColorTextField)
#include "tst_colortextfield.moc"
