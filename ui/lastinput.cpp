#include "ui/lastinput.h"

#include <QEvent>
#include <QWidget>

LastInput::LastInput(QObject *parent)
    : QObject(parent)
{}

void LastInput::watch(QWidget &widget)
{
    widget.installEventFilter(this);
}

bool LastInput::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        mouse = true;
    } else if (event->type() == QEvent::KeyPress) {
        mouse = false;
    }
    return false;
}
