#include "ui/grooveclick.h"

#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

GrooveClick::GrooveClick(QSlider *watchedSlider)
    : QObject(watchedSlider)
    , slider(watchedSlider)
{
    slider->installEventFilter(this);
}

bool GrooveClick::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && slider->isEnabled()) {
        const auto *const press = static_cast<QMouseEvent *>(event);
        if (press->button() == Qt::LeftButton) {
            goTo(press->pos());
        }
    }
    // The slider then takes it for a press on the handle, which is there by now.
    return false;
}

void GrooveClick::goTo(const QPoint &position)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.state |= QStyle::State_Horizontal;
    const auto rectOf = [&](QStyle::SubControl control) {
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, control, slider);
    };
    const QRect handle = rectOf(QStyle::SC_SliderHandle);
    if (handle.contains(position)) {
        return;
    }
    const QRect groove = rectOf(QStyle::SC_SliderGroove);
    slider->setValue(QStyle::sliderValueFromPosition(
        slider->minimum(), slider->maximum(), position.x() - groove.left() - handle.width() / 2,
        groove.width() - handle.width()));
}
