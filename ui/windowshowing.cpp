#include "ui/windowshowing.h"

#include <QWidget>

void WindowShowing::first(QWidget &window, bool stayHidden)
{
    if (stayHidden) {
        // No flash, and nothing left to do for a window manager when a later start shows the
        // window. One that was closed meanwhile has set this itself.
        window.setAttribute(Qt::WA_DontShowOnScreen);
    }
    window.show();
    window.raise();
    window.setFocus(Qt::OtherFocusReason);
    window.activateWindow();
    if (stayHidden) {
        window.hide();
        window.setAttribute(Qt::WA_DontShowOnScreen, false);
    }
}

void WindowShowing::again(QWidget &window)
{
    // Raised before it is shown, so that a minimised window comes back in front.
    window.raise();
    window.show();
    window.showNormal();
    window.activateWindow();
    window.setFocus(Qt::OtherFocusReason);
}
