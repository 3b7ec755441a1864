#include "colorpicker/ringoverflow.h"

#include "colorpicker/pickergeometry.h"
#include "colorpicker/pickerpalette.h"

#include <QEvent>
#include <QPainter>

using namespace PickerGeometry;

namespace {

/// How far the ring reaches from its middle, its pen and its soft edge included.
constexpr int reach = ringRadius + ringWidth;

/// The nearest ancestor in which the rings of all markers have room.
QWidget *roomAround(const QWidget &square)
{
    QWidget *ancestor = square.parentWidget();
    const QRect needed = square.rect().adjusted(-reach, -reach, reach, reach);
    while (!ancestor->isWindow()
           && !ancestor->rect().contains(needed.translated(square.mapTo(ancestor, {})))) {
        ancestor = ancestor->parentWidget();
    }
    return ancestor;
}

} // namespace

RingOverflow::RingOverflow(QWidget &ofSquare)
    : QWidget(roomAround(ofSquare))
    , square(ofSquare)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QWidget *moving = &square; moving != parentWidget(); moving = moving->parentWidget()) {
        moving->installEventFilter(this);
    }
    connect(&square, &QObject::destroyed, this, [this] {
        hide(); // there is nothing to paint for any more
        deleteLater();
    });
    followSquare();
    show();
}

void RingOverflow::setMarker(const QPoint &position)
{
    if (marker != position) {
        marker = position;
        update();
    }
}

void RingOverflow::drawRing(QPainter &painter, const QPoint &middle)
{
    painter.setPen(QPen(PickerPalette::outline, ringWidth));
    painter.setBrush(PickerPalette::marker);
    painter.drawEllipse(middle, ringRadius, ringRadius);
}

bool RingOverflow::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        followSquare();
    }
    return false;
}

void RingOverflow::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(reach, reach);
    painter.setClipRegion(QRegion(rect().translated(-reach, -reach)) - QRegion(square.rect()));
    drawRing(painter, marker);
}

void RingOverflow::followSquare()
{
    setGeometry(QRect(square.mapTo(parentWidget(), {}), square.size())
                    .adjusted(-reach, -reach, reach, reach));
    raise();
}
