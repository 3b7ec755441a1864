#include "colorpicker/hselector.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

using namespace PickerGeometry;

HSelector::HSelector(QWidget *parent)
    : ColorWidget(parent)
{}

void HSelector::setHue(int degrees)
{
    const int stored = currentHue == hueRange ? 0 : currentHue;
    const QColor color = hsv(degrees, currentSaturation, currentValue);
    if (color.hue() == stored) {
        return;
    }
    currentHue = color.hue();
    currentColor = color;
    emit hueChanged(color);
    announceChange();
    update();
}

void HSelector::mousePressEvent(QMouseEvent *event)
{
    if (takeMiddlePress(event)) {
        return;
    }
    marker.setY(event->pos().y());
    recompute();
}

void HSelector::mouseMoveEvent(QMouseEvent *event)
{
    if (middlePressed) {
        return;
    }
    marker.setY(event->pos().y());
    recompute();
}

void HSelector::mouseReleaseEvent(QMouseEvent *event)
{
    takeRelease(event);
}

void HSelector::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y();
    const int step = stepSize(event->modifiers());
    moveMarker(delta > 0 ? -step : delta < 0 ? step : 0);
    event->accept();
}

void HSelector::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        showFocus();
        moveMarker(-stepSize(event->modifiers()));
        break;
    case Qt::Key_Down:
        showFocus();
        moveMarker(stepSize(event->modifiers()));
        break;
    default:
        ColorWidget::keyPressEvent(event);
    }
}

void HSelector::moveMarker(int pixels)
{
    marker.setY(markerOfHue(currentHue)); // as drawn, also when nothing was drawn since the change
    marker.ry() += pixels;
    recompute();
}

void HSelector::chooseHue(int degrees)
{
    marker.setY(markerOfHue(degrees));
    recompute();
}

void HSelector::recompute()
{
    currentHue = hueAt(marker.y());
    currentColor = hsv(currentHue, currentSaturation, currentValue);
    emit hueChanged(currentColor);
    announceChange();
    update();
}

void HSelector::drawStrip(int stripHeight)
{
    cachePixmap = QPixmap(stripWidth, stripHeight);
    QLinearGradient gradient(0, margin, 0, height() - margin);
    QGradientStops stops;
    for (int i = 0; i < hueRange; ++i) {
        QColor color;
        color.setHsvF(i * hueStep, stripSaturation, stripValue, 1.0);
        stops.append({i * hueStep, color});
    }
    gradient.setStops(stops);
    QPainter painter(&cachePixmap);
    painter.fillRect(cachePixmap.rect(), gradient);
    cacheValid = true;
}

void HSelector::paintEvent(QPaintEvent *)
{
    const int stripHeight = height() - 2 * margin;
    if (stripHeight <= 0) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!cacheValid || cachePixmap.height() != stripHeight) {
        drawStrip(stripHeight);
    }
    painter.drawPixmap(pixmapOrigin, cachePixmap);

    marker.setY(markerOfHue(currentHue));
    const int tip = width() - arrowLength;
    const int edge = width();
    const int y = marker.y();
    const QPolygon arrow({QPoint(tip, y + arrowTipHalfHeight), QPoint(tip, y - arrowTipHalfHeight),
                          QPoint(edge, y - arrowBaseHalfHeight),
                          QPoint(edge, y + arrowBaseHalfHeight)});
    painter.setPen(Qt::NoPen);
    painter.setBrush(PickerPalette::marker);
    painter.drawPolygon(arrow);

    drawFrame(painter, QRect(pixmapOrigin, QSize(stripWidth, stripHeight)), frameWidth,
              cornerRadius, shownFrameColor());
}
