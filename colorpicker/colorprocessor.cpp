#include "colorpicker/colorprocessor.h"

#include "colorpicker/colortexts.h"
#include "colorpicker/hselector.h"
#include "colorpicker/services.h"
#include "colorpicker/svselector.h"
#include "colorpicker/validator.h"

#include <QClipboard>
#include <QGuiApplication>

ColorProcessor::ColorProcessor(HSelector *hSelector, SVSelector *svSelector, QObject *parent)
    : QObject(parent)
    , hueSelector(hSelector)
    , saturationValueSelector(svSelector)
    , clipboard(QGuiApplication::clipboard())
{}

void ColorProcessor::copyToClipboard(const QString &text)
{
    clipboard->setText(text, QClipboard::Clipboard);
}

QColor ColorProcessor::colorFromRgbText(const QString &text)
{
    return ColorTexts::colorFromRgbText(text);
}

QString ColorProcessor::hexFromColor(const QColor &color)
{
    return ColorTexts::hexFromColor(color);
}

QString ColorProcessor::rgbTextFromColor(const QColor &color)
{
    return ColorTexts::rgbTextFromColor(color);
}

QString ColorProcessor::hexFromClipboard() const
{
    return ColorTexts::hexFromPastedText(clipboard->text(QClipboard::Clipboard));
}

void ColorProcessor::setColor(const QColor &color)
{
    // Read before the selectors announce anything, so that nothing they cause can change it.
    const int hue = color.hue();
    const int saturation = color.saturation();
    const int value = color.value();
    hueSelector->setHue(hue);
    saturationValueSelector->setSaturationValue(saturation, value);
    emit updateFinished();
}

QColor ColorProcessor::setHex(const QString &text)
{
    const QString name = QLatin1Char('#') + text;
    // The second test refuses signs and blanks, which pass as numbers but name no colour.
    if (!Validator::isValidHex(text) || !QColor::isValidColor(name)) {
        return {};
    }
    const QColor color(name);
    setColor(color);
    return color;
}

QColor ColorProcessor::setRGB(const QString &text)
{
    if (!Services::checkFormat(text, ColorModel::Rgb) || !Validator::isValidRgb(text)) {
        return {};
    }
    const QColor color = colorFromRgbText(text);
    setColor(color);
    return color;
}
