#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QStringList>
#include <QVector>

class QWidget;

/// The window of the running program as a person meets it: seen on the screen, reached with the
/// pointer and the keyboard. Everything goes through tools of the X11 desktop.
namespace ProgramWindow {

/// The windows of other processes that the screen shows, by a regular expression for their titles.
QVector<qulonglong> windows(const QString &title);

/// The one window with the program's title; 0 when none is shown, or several.
qulonglong shown();

/// Where it is on the screen; empty when it is not shown.
QRect geometry();

/// What the screen shows of it.
QImage picture();

/// Moves, presses, types: the arguments of one xdotool command.
void input(const QStringList &arguments);

void click(const QPoint &onScreen);

/// Presses the left button at @p from, moves to @p to in steps, and releases it there.
void drag(const QPoint &from, const QPoint &to);

/// Presses and releases keys, by their X11 names, in the window that has the focus.
void press(const QStringList &keys);

/// Where the middle of widget @p name of @p twin, plus @p offset, is on the screen. The twin is a
/// window of this process laid out like the program's; it is given the program's size.
QPoint onScreen(QWidget &twin, const char *name, const QPoint &offset = {});

} // namespace ProgramWindow
