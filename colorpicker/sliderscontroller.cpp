#include "colorpicker/sliderscontroller.h"

#include <utility>

SlidersController::SlidersController(QObject *parent)
    : QObject(parent)
{
    guards.fill(true);
}

QColor SlidersController::pureColor(Channel channel, int value)
{
    QColor color;
    switch (channel) {
    case Channel::Hue:
        color.setHsv(value, 0, 0); // unlike fromHsv(), takes 360 as 0
        return color;
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
    return color;
}

bool &SlidersController::guard(Channel channel)
{
    return guards.at(static_cast<std::size_t>(channel));
}

bool SlidersController::takeMovement(Channel channel)
{
    return std::exchange(guard(channel), true);
}

void SlidersController::changeHue(int h)
{
    if (takeMovement(Channel::Hue)) {
        emit hueChanged(pureColor(Channel::Hue, h));
    }
}

void SlidersController::changeHue(const QColor &color)
{
    emit hueChanged(color);
}

void SlidersController::changeHueFromSelector(const QColor & /*color*/)
{
    guard(Channel::Hue) = false;
}

void SlidersController::changeSaturation(int s)
{
    if (takeMovement(Channel::Saturation)) {
        emit saturationChanged(pureColor(Channel::Saturation, s));
    }
}

void SlidersController::changeSaturation(const QColor &color)
{
    emit saturationChanged(color);
}

void SlidersController::changeSaturationFromSelector(const QColor & /*color*/)
{
    guard(Channel::Saturation) = false;
}

void SlidersController::changeValue(int v)
{
    if (takeMovement(Channel::Value)) {
        emit valueChanged(pureColor(Channel::Value, v));
    }
}

void SlidersController::changeValue(const QColor &color)
{
    emit valueChanged(color);
}

void SlidersController::changeValueFromSelector(const QColor & /*color*/)
{
    guard(Channel::Value) = false;
}

void SlidersController::changeRed(int r)
{
    if (takeMovement(Channel::Red)) {
        emit redChanged(pureColor(Channel::Red, r));
    }
}

void SlidersController::changeRed(const QColor &color)
{
    emit redChanged(color);
}

void SlidersController::changeRedFromSelector(const QColor & /*color*/) {}

void SlidersController::changeGreen(int g)
{
    if (takeMovement(Channel::Green)) {
        emit greenChanged(pureColor(Channel::Green, g));
    }
}

void SlidersController::changeGreen(const QColor &color)
{
    emit greenChanged(color);
}

void SlidersController::changeGreenFromSelector(const QColor & /*color*/) {}

void SlidersController::changeBlue(int b)
{
    if (takeMovement(Channel::Blue)) {
        emit blueChanged(pureColor(Channel::Blue, b));
    }
}

void SlidersController::changeBlue(const QColor &color)
{
    emit blueChanged(color);
}

void SlidersController::changeBlueFromSelector(const QColor & /*color*/) {}

void SlidersController::changeCyan(int c)
{
    if (takeMovement(Channel::Cyan)) {
        emit cyanChanged(pureColor(Channel::Cyan, c));
    }
}

void SlidersController::changeCyan(const QColor &color)
{
    emit cyanChanged(color);
}

void SlidersController::changeCyanFromSelector(const QColor & /*color*/) {}

void SlidersController::changeMagenta(int m)
{
    if (takeMovement(Channel::Magenta)) {
        emit magentaChanged(pureColor(Channel::Magenta, m));
    }
}

void SlidersController::changeMagenta(const QColor &color)
{
    emit magentaChanged(color);
}

void SlidersController::changeMagentaFromSelector(const QColor & /*color*/) {}

void SlidersController::changeYellow(int y)
{
    if (takeMovement(Channel::Yellow)) {
        emit yellowChanged(pureColor(Channel::Yellow, y));
    }
}

void SlidersController::changeYellow(const QColor &color)
{
    emit yellowChanged(color);
}

void SlidersController::changeYellowFromSelector(const QColor & /*color*/) {}

void SlidersController::changeBlack(int k)
{
    if (takeMovement(Channel::Black)) {
        emit blackChanged(pureColor(Channel::Black, k));
    }
}

void SlidersController::changeBlack(const QColor &color)
{
    emit blackChanged(color);
}

void SlidersController::changeBlackFromSelector(const QColor & /*color*/) {}
