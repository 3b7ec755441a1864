#include "colorpicker/hextyping.h"
#include "tests/gui/pickerfields.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTest>

#include <functional>

namespace {

/// A field that writes three digits out as six, like the picker's, and knows no other rule.
struct Field
{
    Field()
    {
        new HexTyping(&edit);
        QObject::connect(&edit, &QLineEdit::textEdited, &edit, [this](const QString &text) {
            if (text.size() != 3) {
                return;
            }
            const int cursor = edit.cursorPosition();
            QString written;
            for (const QChar digit : text.toLower()) {
                written += digit;
                written += digit;
            }
            edit.setText(written);
            edit.setCursorPosition(2 * cursor);
        });
    }
    void type(const QString &keys) { PickerFields::typeAndErase(edit, keys); }
    QLineEdit edit;
};

using Meanwhile = std::function<void(Field &)>;

} // namespace

Q_DECLARE_METATYPE(Meanwhile)

/// Which key goes on from three digits that were written out, and which does not.
class TestHexTyping : public QObject
{
    Q_OBJECT

private slots:
    void keys_data();
    void keys();
    void meanwhile_data();
    void meanwhile();
};

void TestHexTyping::keys_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("typed"); // at the start of it
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursor");
    const auto row = [](const char *name, const char *before, const char *typed, const char *after,
                        int cursor) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(typed)
                            << QString::fromLatin1(after) << cursor;
    };
    row("three digits", "", "123", "112233", 6);
    row("least digit", "", "1230", "1230", 4);
    row("greatest digit", "", "123f", "123f", 4);
    row("greatest digit, capital", "", "123F", "123F", 4);
    row("beyond the digits", "", "123g", "112233g", 7);
    row("far beyond the digits", "", "123v", "112233v", 7);
    row("blank", "", "123 ", "112233 ", 7);
    row("sign", "", "123+", "112233+", 7);
    row("erased behind the last", "", "123<", "12", 2);
    row("erased behind the first", "80", "1<", "80", 0);
    row("nothing to erase", "123", "<", "123", 0);
    row("erased before the first", "0123", "><", "112233", 0);
    row("deleted behind the last", "", "123>", "112233", 6);
    row("deleted behind the first", "80", "1>", "10", 1);
    row("deleted behind the second", "8", "12>", "12", 2);
    row("goes on behind the first", "80", "12", "1280", 2);
    row("two digits", "", "12<", "1", 1);
}

void TestHexTyping::keys()
{
    QFETCH(QString, before);
    QFETCH(QString, typed);
    Field field;
    field.edit.setText(before);
    field.edit.setCursorPosition(0);
    field.type(typed);
    QTEST(field.edit.text(), "after");
    QTEST(field.edit.cursorPosition(), "cursor");
}

void TestHexTyping::meanwhile_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Meanwhile>("meanwhile");
    QTest::addColumn<QString>("after"); // a "4"
    const auto row = [](const char *name, const char *typed, const char *after,
                        const Meanwhile &meanwhile) {
        QTest::newRow(name) << QString::fromLatin1(typed) << meanwhile
                            << QString::fromLatin1(after);
    };
    row("nothing", "123", "1234", [](Field &) {});
    row("a modifier is pressed", "123", "1234",
        [](Field &field) { QTest::keyClick(&field.edit, Qt::Key_Shift); });
    row("there and back", "123", "1234", [](Field &field) {
        QTest::keyClick(&field.edit, Qt::Key_Left);
        QTest::keyClick(&field.edit, Qt::Key_Right);
    });
    row("elsewhere in the text", "123", "4112233",
        [](Field &field) { QTest::keyClick(&field.edit, Qt::Key_Home); });
    row("another colour", "123", "abcdef4",
        [](Field &field) { field.edit.setText(QStringLiteral("abcdef")); });
    row("two digits written out", "12", "11224",
        [](Field &field) { field.edit.setText(QStringLiteral("1122")); });
    row("away and back", "123", "1122334", [](Field &field) {
        QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
        QApplication::sendEvent(&field.edit, &in);
    });
    row("selected", "123", "11224", [](Field &field) { field.edit.setSelection(4, 2); });
}

void TestHexTyping::meanwhile()
{
    QFETCH(QString, typed);
    QFETCH(Meanwhile, meanwhile);
    Field field;
    field.type(typed);
    meanwhile(field);
    QTest::keyClick(&field.edit, Qt::Key_4);
    QTEST(field.edit.text(), "after");
}

QTEST_MAIN(TestHexTyping)
#include "tst_hextyping.moc"
