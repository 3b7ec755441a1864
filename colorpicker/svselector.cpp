#include "colorpicker/svselector.h"

#include "colorpicker/ringoverflow.h"
#include "colorpicker/svpicture.h"

#include <QKeyEvent>
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
    announceChange();
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
    const int size = stepSize(event->modifiers());
    const int step = delta > 0 ? size : delta < 0 ? -size : 0;
    moveMarker(wheelIsHorizontal(event) ? QPoint(step, 0) : QPoint(0, -step));
    event->accept();
}

void SVSelector::keyPressEvent(QKeyEvent *event)
{
    QPoint way;
    switch (event->key()) {
    case Qt::Key_Left:
        way.setX(-1);
        break;
    case Qt::Key_Right:
        way.setX(1);
        break;
    case Qt::Key_Up:
        way.setY(-1);
        break;
    case Qt::Key_Down:
        way.setY(1);
        break;
    default:
        ColorWidget::keyPressEvent(event);
        return;
    }
    showFocus();
    moveMarker(way * stepSize(event->modifiers()));
}

void SVSelector::moveMarker(const QPoint &pixels)
{
    marker += pixels;
    recompute();
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
    announceChange();
    emit colorChanged(currentColor);
    emit saturationChanged(currentColor);
    emit valueChanged(currentColor);
}

void SVSelector::showEvent(QShowEvent * /*event*/)
{
    if (!ringOverflow && parentWidget()) {
        ringOverflow = new RingOverflow(*this);
    }
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

    RingOverflow::drawRing(painter, marker);
    if (ringOverflow) {
        ringOverflow->setMarker(marker);
    }

    drawFrame(painter, QRect(pixmapOrigin, QSize(squareSize, squareSize)), frameWidth, cornerRadius,
              shownFrameColor());
}
