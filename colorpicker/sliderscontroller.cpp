#include "colorpicker/sliderscontroller.h"

SlidersController::SlidersController(QObject *parent)
    : QObject(parent)
{}

QColor SlidersController::pureColor(Channel channel, int value)
{
    switch (channel) {
    case Channel::Hue: {
        QColor color;
        color.setHsv(value, 0, 0); // unlike fromHsv(), takes 360 as 0
        return color;
    }
    case Channel::Saturation:
        return QColor::fromHsv(0, value, 0);
    case Channel::Value:
        return QColor::fromHsv(0, 0, value);
    case Channel::Red:
        return {value, 0, 0};
    case Channel::Green:
        return {0, value, 0};
    case Channel::Blue:
        return {0, 0, value};
    case Channel::Cyan:
        return QColor::fromCmyk(value, 0, 0, 0);
    case Channel::Magenta:
        return QColor::fromCmyk(0, value, 0, 0);
    case Channel::Yellow:
        return QColor::fromCmyk(0, 0, value, 0);
    case Channel::Black:
        return QColor::fromCmyk(0, 0, 0, value);
    }
    return {};
}

void SlidersController::takeMovement(Channel channel, int value, Announcement announcement)
{
    if (awaited.erase(channel) == 0) {
        (this->*announcement)(pureColor(channel, value));
    }
}

void SlidersController::changeHue(int h)
{
    takeMovement(Channel::Hue, h, &SlidersController::hueChanged);
}

void SlidersController::changeHue(const QColor &color)
{
    emit hueChanged(color);
}

void SlidersController::changeHueFromSelector(const QColor & /*color*/)
{
    awaited.insert(Channel::Hue);
}

void SlidersController::changeSaturation(int s)
{
    takeMovement(Channel::Saturation, s, &SlidersController::saturationChanged);
}

void SlidersController::changeSaturation(const QColor &color)
{
    emit saturationChanged(color);
}

void SlidersController::changeSaturationFromSelector(const QColor & /*color*/)
{
    awaited.insert(Channel::Saturation);
}

void SlidersController::changeValue(int v)
{
    takeMovement(Channel::Value, v, &SlidersController::valueChanged);
}

void SlidersController::changeValue(const QColor &color)
{
    emit valueChanged(color);
}

void SlidersController::changeValueFromSelector(const QColor & /*color*/)
{
    awaited.insert(Channel::Value);
}

void SlidersController::changeRed(int r)
{
    takeMovement(Channel::Red, r, &SlidersController::redChanged);
}

void SlidersController::changeRed(const QColor &color)
{
    emit redChanged(color);
}

void SlidersController::changeRedFromSelector(const QColor & /*color*/) {}

void SlidersController::changeGreen(int g)
{
    takeMovement(Channel::Green, g, &SlidersController::greenChanged);
}

void SlidersController::changeGreen(const QColor &color)
{
    emit greenChanged(color);
}

void SlidersController::changeGreenFromSelector(const QColor & /*color*/) {}

void SlidersController::changeBlue(int b)
{
    takeMovement(Channel::Blue, b, &SlidersController::blueChanged);
}

void SlidersController::changeBlue(const QColor &color)
{
    emit blueChanged(color);
}

void SlidersController::changeBlueFromSelector(const QColor & /*color*/) {}

void SlidersController::changeCyan(int c)
{
    takeMovement(Channel::Cyan, c, &SlidersController::cyanChanged);
}

void SlidersController::changeCyan(const QColor &color)
{
    emit cyanChanged(color);
}

void SlidersController::changeCyanFromSelector(const QColor & /*color*/) {}

void SlidersController::changeMagenta(int m)
{
    takeMovement(Channel::Magenta, m, &SlidersController::magentaChanged);
}

void SlidersController::changeMagenta(const QColor &color)
{
    emit magentaChanged(color);
}

void SlidersController::changeMagentaFromSelector(const QColor & /*color*/) {}

void SlidersController::changeYellow(int y)
{
    takeMovement(Channel::Yellow, y, &SlidersController::yellowChanged);
}

void SlidersController::changeYellow(const QColor &color)
{
    emit yellowChanged(color);
}

void SlidersController::changeYellowFromSelector(const QColor & /*color*/) {}

void SlidersController::changeBlack(int k)
{
    takeMovement(Channel::Black, k, &SlidersController::blackChanged);
}

void SlidersController::changeBlack(const QColor &color)
{
    emit blackChanged(color);
}

void SlidersController::changeBlackFromSelector(const QColor & /*color*/) {}
