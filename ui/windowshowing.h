#pragma once

class QWidget;

/// How the program itself shows its window. The orders differ from each other and from those of the
/// tray and of an update, on purpose.
namespace WindowShowing {

/// The first time.
/// @param stayHidden shows nothing, and yet leaves the window as one that was shown
void first(QWidget &window, bool stayHidden);

/// When somebody has started the program once more.
void again(QWidget &window);

} // namespace WindowShowing
