#include "colorpicker/colorsample.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

ColorSample::ColorSample(QWidget *parent)
    : ColorWidget(parent)
{}

void ColorSample::changeColor(const QColor &color)
{
    currentColor = color;
    update();
    announceChange();
    emit colorChanged(color);
}

void ColorSample::mouseMovedOnWindow()
{
    windowDragged = true;
}

void ColorSample::mouseReleasedOnWindow()
{
    windowDragged = false;
}

void ColorSample::enterEvent(QEvent *)
{
    frameColor = PickerPalette::hoveredFrame;
    setCursor(Qt::PointingHandCursor);
    update();
}

void ColorSample::leaveEvent(QEvent *)
{
    frameColor = PickerPalette::restingFrame;
    setCursor(Qt::ArrowCursor);
    update();
}

void ColorSample::mousePressEvent(QMouseEvent *event)
{
    pressPosition = event->globalPos();
    event->ignore(); // the window may be dragged by it
}

void ColorSample::mouseMoveEvent(QMouseEvent *event)
{
    // On the screen, since a window that is dragged stays under the pointer.
    const QPoint way = event->globalPos() - pressPosition;
    if (event->buttons() != Qt::NoButton
        && way.manhattanLength() >= QApplication::startDragDistance()) {
        windowDragged = true;
    }
    event->ignore();
}

void ColorSample::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        emit samplePressedMiddle();
        event->accept();
        return;
    }
    if (!windowDragged) {
        if (event->button() == Qt::LeftButton) {
            emit samplePressedLeft();
        } else if (event->button() == Qt::RightButton) {
            emit samplePressedRight();
        }
    }
    windowDragged = false;
    event->ignore();
}

void ColorSample::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        showFocus();
        press();
        break;
    default:
        ColorWidget::keyPressEvent(event);
    }
}

void ColorSample::press()
{
    emit samplePressedLeft();
}

void ColorSample::paintEvent(QPaintEvent *)
{
    using namespace PickerGeometry;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(currentColor);
    painter.drawRect(margin, margin, width() - 2 * margin, height() - 2 * margin);
    drawFrame(painter, rect(), frameWidth, cornerRadius, shownFrameColor());
}
