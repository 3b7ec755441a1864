#include "colorpicker/maincontroller.h"

#include "colorpicker/colorprocessor.h"
#include "colorpicker/sliderscontroller.h"

MainController::MainController(HSelector *hSelector, SVSelector *svSelector,
                               ColorProcessor *processor, RgbFieldOwner *window, QObject *parent)
    : QObject(parent)
    , hue(hSelector)
    , saturationValue(svSelector)
    , colorProcessor(processor)
    , fieldOwner(window)
{}

void MainController::changeRed(const QColor &color)
{
    rewriteField([&color](QColor &shown) { shown.setRed(color.red()); });
}

void MainController::changeGreen(const QColor &color)
{
    rewriteField([&color](QColor &shown) { shown.setGreen(color.green()); });
}

void MainController::changeBlue(const QColor &color)
{
    rewriteField([&color](QColor &shown) { shown.setBlue(color.blue()); });
}

void MainController::rewriteField(const std::function<void(QColor &)> &change)
{
    QColor color = colorProcessor->colorFromRgbText(fieldOwner->rgbText());
    change(color);
    if (sliders) {
        sliders->disconnect(SIGNAL(RGBChanged(QColor)));
    }
    const QString text = colorProcessor->rgbTextFromColor(color);
    fieldOwner->setRgbText(text);
    fieldOwner->updateColorRGB(text);
    if (sliders) {
        for (const char *const slot :
             {SLOT(changeRedFromSelector(QColor)), SLOT(changeGreenFromSelector(QColor)),
              SLOT(changeBlueFromSelector(QColor))}) {
            connect(sliders, SIGNAL(RGBChanged(QColor)), sliders, slot);
        }
    }
}
