#pragma once

#include <QtGlobal>

/// The task bar of Windows, and what it goes by.
namespace TaskBar {

/// The window of a process that has a button there; 0 when none is shown.
quintptr windowOf(qint64 processId);

/// Whether a window says that it may be minimised.
bool offersMinimising(quintptr window);

bool isMinimised(quintptr window);

/// Sends what a click on a window's button sends: a minimised one is to be restored, another one
/// minimised if it may be. Returns at once.
void click(quintptr window);

} // namespace TaskBar
