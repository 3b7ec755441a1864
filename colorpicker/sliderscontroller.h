#pragma once

#include <QColor>
#include <QObject>

#include <set>

/// Turns the movements of channel sliders into colours of one channel each, and swallows the one
/// movement that a selector itself has caused. Built for a panel with sliders; without one, nothing
/// of this exists.
class SlidersController : public QObject
{
    Q_OBJECT

public:
    /// The channels, in the order of the signals and slots below.
    enum class Channel { Hue, Saturation, Value, Red, Green, Blue, Cyan, Magenta, Yellow, Black };

    explicit SlidersController(QObject *parent = nullptr);

    /// The colour that has only this channel. @param value hue 0..360, everything else 0..255;
    /// outside of that the colour is invalid.
    static QColor pureColor(Channel channel, int value);

signals:
    void RGBChanged(QColor);
    void CMYKChanged(QColor);
    void hueChanged(int);
    void hueChanged(QColor);
    void saturationChanged(int);
    void saturationChanged(QColor);
    void valueChanged(int);
    void valueChanged(QColor);
    void redChanged(int);
    void redChanged(QColor);
    void greenChanged(int);
    void greenChanged(QColor);
    void blueChanged(int);
    void blueChanged(QColor);
    void cyanChanged(int);
    void cyanChanged(QColor);
    void magentaChanged(int);
    void magentaChanged(QColor);
    void yellowChanged(int);
    void yellowChanged(QColor);
    void blackChanged(int);
    void blackChanged(QColor);

public slots:
    // Three of a kind for each channel. With a number: a slider was moved; announces the channel's
    // pure colour, unless a selector caused the movement. With a colour: announces it unchanged.
    // FromSelector: a selector has changed; for the first three channels the slider movement that
    // follows is the selector's own.
    void changeHue(int h);
    void changeHue(const QColor &color);
    void changeHueFromSelector(const QColor &color);
    void changeSaturation(int s);
    void changeSaturation(const QColor &color);
    void changeSaturationFromSelector(const QColor &color);
    void changeValue(int v);
    void changeValue(const QColor &color);
    void changeValueFromSelector(const QColor &color);
    void changeRed(int r);
    void changeRed(const QColor &color);
    void changeRedFromSelector(const QColor &color);
    void changeGreen(int g);
    void changeGreen(const QColor &color);
    void changeGreenFromSelector(const QColor &color);
    void changeBlue(int b);
    void changeBlue(const QColor &color);
    void changeBlueFromSelector(const QColor &color);
    void changeCyan(int c);
    void changeCyan(const QColor &color);
    void changeCyanFromSelector(const QColor &color);
    void changeMagenta(int m);
    void changeMagenta(const QColor &color);
    void changeMagentaFromSelector(const QColor &color);
    void changeYellow(int y);
    void changeYellow(const QColor &color);
    void changeYellowFromSelector(const QColor &color);
    void changeBlack(int k);
    void changeBlack(const QColor &color);
    void changeBlackFromSelector(const QColor &color);

private:
    using Announcement = void (SlidersController::*)(QColor);

    /// Announces the movement of a channel's slider, unless a selector has caused it, which is
    /// forgiven once.
    void takeMovement(Channel channel, int value, Announcement announcement);

    /// The channels whose selector has changed, so that the next movement of their slider is its
    /// own.
    std::set<Channel> awaited;
};
