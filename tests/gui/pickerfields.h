#pragma once

#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>

/// What the tests of the opened colour picker do with its fields.
namespace PickerFields {

/// Starts a window with these settings and opens its picker by one of the buttons.
inline void open(TestWindow &world, const char *button, const QByteArray &settings = {})
{
    world.writeSettings("backlight_on=true\nbrightlevel=100\n" + settings);
    world.start();
    world.get<QAbstractButton>(button)->click();
}

/// What a field shows.
inline QString text(const TestWindow &world, const char *field)
{
    return world.get<QLineEdit>(field)->text();
}

/// Puts a text in as a whole, by the keyboard and the clipboard.
inline void enter(const TestWindow &world, const char *field, const char *text)
{
    auto *const edit = world.get<QLineEdit>(field);
    QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
}

/// Types letter by letter; a "<" is a Backspace, a ">" a Delete.
inline void typeAndErase(QLineEdit &edit, const QString &keys)
{
    for (const QChar key : keys) {
        if (key == QLatin1Char('<')) {
            QTest::keyClick(&edit, Qt::Key_Backspace);
        } else if (key == QLatin1Char('>')) {
            QTest::keyClick(&edit, Qt::Key_Delete);
        } else {
            QTest::keyClick(&edit, key.toLatin1());
        }
    }
}

/// Types a text letter by letter in the place of the old one.
inline void type(const TestWindow &world, const char *field, const QString &keys)
{
    auto *const edit = world.get<QLineEdit>(field);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, keys);
}

} // namespace PickerFields
