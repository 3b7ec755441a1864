#include "ui/windowplace.h"

#include <algorithm>

QRect WindowPlace::movedInto(QRect window, const QRect &available)
{
    window.moveRight(std::min(window.right(), available.right()));
    window.moveBottom(std::min(window.bottom(), available.bottom()));
    window.moveLeft(std::max(window.left(), available.left()));
    window.moveTop(std::max(window.top(), available.top()));
    return window;
}

bool WindowPlace::isOnAScreen(const QRect &window, const QVector<QRect> &screens)
{
    return std::any_of(screens.begin(), screens.end(),
                       [&](const QRect &screen) { return screen.intersects(window); });
}
