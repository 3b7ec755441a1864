#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <functional>

class ColorProcessor;
class HSelector;
class SlidersController;
class SVSelector;

/// What the controller needs of the window that holds the RGB field.
class RgbFieldOwner
{
public:
    virtual QString rgbText() const = 0;
    /// Shows @p text; nobody is told.
    virtual void setRgbText(const QString &text) = 0;
    /// Takes @p RGB as if it had been typed.
    virtual void updateColorRGB(const QString &RGB) = 0;

protected:
    ~RgbFieldOwner() = default;
};

/// Changes one channel of the colour in the RGB field, and keeps sliders, where there are any, from
/// answering to it.
class MainController : public QObject
{
    Q_OBJECT

public:
    /// None of these is owned; all must live longer than this object.
    MainController(HSelector *hSelector, SVSelector *svSelector, ColorProcessor *processor,
                   RgbFieldOwner *window, QObject *parent = nullptr);

    HSelector *hueSelector() const { return hue; }
    SVSelector *saturationValueSelector() const { return saturationValue; }
    /// Null until sliders are attached; the main window attaches none.
    SlidersController *slidersController() const { return sliders; }
    /// @param controller not owned; null detaches.
    void setSlidersController(SlidersController *controller) { sliders = controller; }

signals:
    void hueChanged(QColor);
    void saturationChanged(QColor);
    void valueChanged(QColor);
    void redChanged(QColor);
    void greenChanged(QColor);
    void blueChanged(QColor);
    void cyanChanged(QColor);
    void magentaChanged(QColor);
    void yellowChanged(QColor);
    void blackChanged(QColor);

public slots:
    /// Each takes its one channel of @p color over into the RGB field.
    void changeRed(const QColor &color);
    void changeGreen(const QColor &color);
    void changeBlue(const QColor &color);

private:
    /// @param change changes the field's present colour
    void rewriteField(const std::function<void(QColor &)> &change);

    HSelector *hue;
    SVSelector *saturationValue;
    ColorProcessor *colorProcessor;
    SlidersController *sliders = nullptr;
    RgbFieldOwner *fieldOwner;
};
