#include "colorpicker/svselector.h"

#include "colorpicker/pickerpalette.h"
#include "colorpicker/svpicture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

using namespace PickerGeometry;

SVSelector::SVSelector(QWidget *parent)
    : ColorWidget(parent)
{
    marker.setX(svRange); // on purpose not on the start colour; every placing puts it right
}

void SVSelector::setSaturationValue(int saturation, int value)
{
    currentSaturation = saturation;
    currentValue = value;
    placeMarker();
    recompute();
}

void SVSelector::changeHue(const QColor &color)
{
    cacheValid = false;
    currentHue = color.hue();
    placeMarker();
    currentColor = hsv(currentHue, currentSaturation, currentValue);
    update();
    emit colorChanged(currentColor);
}

void SVSelector::mousePressEvent(QMouseEvent *event)
{
    if (!takeMiddlePress(event)) {
        followPointer(event->pos());
    }
}

void SVSelector::mouseMoveEvent(QMouseEvent *event)
{
    if (!middlePressed) {
        followPointer(event->pos());
    }
}

void SVSelector::mouseReleaseEvent(QMouseEvent *event)
{
    setCursor(Qt::ArrowCursor);
    takeRelease(event);
}

void SVSelector::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y();
    const int step = delta > 0 ? wheelStep(event) : delta < 0 ? -wheelStep(event) : 0;
    if (wheelIsHorizontal(event)) {
        marker.rx() += step;
    } else {
        marker.ry() -= step;
    }
    recompute();
    event->accept();
}

void SVSelector::followPointer(const QPoint &position)
{
    setCursor(isInSquare(position) ? Qt::BlankCursor : Qt::ArrowCursor);
    marker = position;
    recompute();
}

void SVSelector::placeMarker()
{
    marker = markerOf(currentSaturation, currentValue);
}

void SVSelector::recompute()
{
    currentSaturation = saturationAt(marker.x());
    currentValue = valueAt(marker.y());
    placeMarker(); // a pointer outside the square does not take the ring along
    currentColor = hsv(currentHue, currentSaturation, currentValue);
    update();
    emit colorChanged(currentColor);
    emit saturationChanged(currentColor);
    emit valueChanged(currentColor);
}

void SVSelector::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!cacheValid) {
        cacheImage = svPicture(currentHue);
        cacheValid = true;
    }
    painter.drawImage(pixmapOrigin, cacheImage);

    painter.setPen(QPen(PickerPalette::outline, ringWidth));
    painter.setBrush(PickerPalette::marker);
    painter.drawEllipse(marker, ringRadius, ringRadius);

    drawFrame(painter, QRect(pixmapOrigin, QSize(squareSize, squareSize)), frameWidth, cornerRadius,
              frameColor);
}
