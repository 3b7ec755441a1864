#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a person does with pointer, keyboard and eyes, done by tests: the real input of the system,
/// and what its screen shows. One implementation a system, chosen by the build.
namespace Desktop {

/// The windows that the screen shows, minimised ones apart, whose title matches a regular
/// expression. They are told by the system's own numbers.
QVector<quintptr> shownWindows(const QString &title);

/// Where a window is on the screen; empty when it is gone.
QRect geometry(quintptr window);

/// The window that has the keyboard; 0 when none has.
quintptr activeWindow();

/// The window that covers all others; 0 when there is none.
quintptr topWindow();

void move(quintptr window, const QPoint &to);

/// What the screen shows there.
QImage picture(const QRect &part);

void movePointer(const QPoint &to);

enum class Button {
    Left,
    Middle,
    Right,
};
void pressButton(Button button);
void releaseButton(Button button);

/// Moves there and presses and releases the left button.
void click(const QPoint &at);

/// One notch of the wheel, away from the user or towards them.
void turnWheel(bool away);

/// Presses and releases keys, one after the other, in the window that has the keyboard: letters,
/// names as "Return" and "Left", and either behind "ctrl+", "alt+" or "shift+".
void press(const QStringList &keys);

} // namespace Desktop
