#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

class QWidget;

/// The window of the running program as a person meets it: seen on the screen and reached with the
/// pointer.
namespace ProgramWindow {

/// The one window with the program's title; 0 when none is shown, or several.
quintptr shown();

/// Where it is on the screen; empty when it is not shown.
QRect geometry();

/// What the screen shows of it.
QImage picture();

void click(const QPoint &onScreen);

/// Presses the left button at @p from, moves to @p to in steps, and releases it there.
void drag(const QPoint &from, const QPoint &to);

/// Where the middle of widget @p name of @p twin, plus @p offset, is on the screen. The twin is a
/// window of this process laid out like the program's; it is given the program's size.
QPoint onScreen(QWidget &twin, const char *name, const QPoint &offset = {});

} // namespace ProgramWindow
