#include "colorpicker/colorwidget.h"

#include "colorpicker/pickeraccessible.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QWheelEvent>

ColorWidget::ColorWidget(QWidget *parent)
    : QWidget(parent)
    , currentColor(hsv(currentHue, PickerGeometry::svRange, PickerGeometry::svRange))
{
    PickerAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    connect(this, SIGNAL(shiftPressed()), this, SLOT(pressShift()));
    connect(this, SIGNAL(shiftReleased()), this, SLOT(releaseShift()));
    connect(this, SIGNAL(ctrlPressed()), this, SLOT(pressCtrl()));
    connect(this, SIGNAL(ctrlReleased()), this, SLOT(releaseCtrl()));
}

void ColorWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift) {
        emit shiftPressed();
    } else if (event->key() == Qt::Key_Control) {
        emit ctrlPressed();
    }
    QWidget::keyPressEvent(event);
}

void ColorWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift) {
        emit shiftReleased();
    } else if (event->key() == Qt::Key_Control) {
        emit ctrlReleased();
    }
    QWidget::keyReleaseEvent(event);
}

void ColorWidget::focusInEvent(QFocusEvent *event)
{
    // A click or the window's return says nothing of the keyboard.
    if (event->reason() != Qt::MouseFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        showFocus();
    }
}

void ColorWidget::focusOutEvent(QFocusEvent *event)
{
    focusShown = false;
    // The releases of keys still held go to another widget.
    if (shiftHeld) {
        emit shiftReleased();
    }
    if (ctrlHeld) {
        emit ctrlReleased();
    }
    QWidget::focusOutEvent(event);
}

void ColorWidget::showFocus()
{
    focusShown = true;
    update();
}

QColor ColorWidget::shownFrameColor() const
{
    return focusShown ? PickerPalette::focus : frameColor;
}

void ColorWidget::announceChange()
{
    PickerAccessible::announceChange(*this);
}

QColor ColorWidget::hsv(int degrees, int saturation, int value)
{
    QColor color;
    color.setHsv(degrees, saturation, value); // unlike fromHsv(), takes 360 as 0
    return color;
}

void ColorWidget::drawFrame(QPainter &painter, const QRect &rect, int width, int radius,
                            const QColor &color)
{
    QPen pen(color, width);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const int inset = width / 2;
    const QRectF inner(rect.x() + inset, rect.y() + inset, rect.width() - width,
                       rect.height() - width);
    if (width % 2 == 1) {
        painter.drawRoundedRect(inner.translated(0.5, 0.5), radius, radius);
    } else {
        painter.drawRoundedRect(inner, width, width);
    }
}

bool ColorWidget::takeMiddlePress(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton) {
        return false;
    }
    middlePressed = true;
    event->ignore();
    if (isSignalConnected(QMetaMethod::fromSignal(&ColorWidget::middlePressedSignal))) {
        emit middlePressedSignal(new QMouseEvent(*event));
    }
    return true;
}

void ColorWidget::takeRelease(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        middlePressed = false;
    }
    event->ignore();
}

// The keyboard focus is usually in a text field, so the keys' own events do not come here; the
// wheel's event tells which modifiers are down.
int ColorWidget::stepSize(Qt::KeyboardModifiers modifiers) const
{
    const bool fast = shiftHeld || modifiers.testFlag(Qt::ShiftModifier);
    return fast ? PickerGeometry::fastWheelStep : PickerGeometry::slowWheelStep;
}

bool ColorWidget::wheelIsHorizontal(const QWheelEvent *event) const
{
    return ctrlHeld || event->modifiers().testFlag(Qt::ControlModifier);
}
