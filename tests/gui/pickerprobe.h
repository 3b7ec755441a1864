#pragma once

#include "colorpicker/colorwidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

/// What the tests of the picker widgets share: looking inside, drawing into a picture, and sending
/// events.
namespace PickerProbe {

constexpr QRgb background = 0xff2a2a2a;

/// A widget with its protected state open.
template<class Widget> class Opened : public Widget
{
public:
    using Widget::cacheImage;
    using Widget::cachePixmap;
    using Widget::cacheValid;
    using Widget::ctrlHeld;
    using Widget::currentSaturation;
    using Widget::currentValue;
    using Widget::frameColor;
    using Widget::marker;
    using Widget::middlePressed;
    using Widget::shiftHeld;
    using Widget::stripSaturation;
    using Widget::stripValue;
};

inline QImage canvas(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(background);
    return image;
}

inline QImage drawn(QWidget &widget)
{
    QImage image = canvas(widget.size());
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// Sends one mouse event. @return whether the widget accepted it.
inline bool sendMouse(QWidget &widget, QEvent::Type type, const QPoint &at,
                      Qt::MouseButton button = Qt::LeftButton)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, widget.mapToGlobal(at), isMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

inline bool press(QWidget &widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonPress, at, button);
}

inline bool move(QWidget &widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseMove, at, button);
}

inline bool release(QWidget &widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonRelease, at, button);
}

inline void wheel(QWidget &widget, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    QVERIFY(event.isAccepted());
}

/// Sends one key event. @return whether the widget accepted it.
inline bool sendKey(QWidget &widget, QEvent::Type type, int key,
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

inline QColor lastColor(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QColor() : spy.last().first().value<QColor>();
}

inline QColor hsv(int hue, int saturation, int value)
{
    QColor color;
    color.setHsv(hue, saturation, value);
    return color;
}

} // namespace PickerProbe
