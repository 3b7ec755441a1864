#pragma once

#include <QRect>
#include <QVector>

/// Where a window may be on the screens; all in the same pixels.
namespace WindowPlace {

/// @p window moved as little as it takes to lie within @p available; its top left corner, with what
/// it is dragged by, is there in any case.
QRect movedInto(QRect window, const QRect &available);

/// Whether anything of @p window is to be seen.
/// @param screens what windows may cover of each
bool isOnAScreen(const QRect &window, const QVector<QRect> &screens);

} // namespace WindowPlace
