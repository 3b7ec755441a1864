#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/effects.h"
#include "lighting/serviceserver.h"
#include "ui/darkstyle.h"
#include "ui/keyboardpictures.h"
#include "ui/zonepages.h"

#include <QTimer>

namespace {

/// How strongly the pictures are tinted, 0..255.
constexpr int tintAlpha = 30;
constexpr int reloadDelayMs = 1000;

constexpr int wholeKeyboardKind = 4;
constexpr int stripeKind = 5;
constexpr int fullPicture = static_cast<int>(KeyboardPicture::Full);

} // namespace

uint MainWindow::GetColour(byte r, byte g, byte b, Zone zone)
{
    return packWord(r, g, b, zone);
}

void MainWindow::SetZoneColor(int kind, const QString &colour)
{
    if (kind >= 1 && kind <= 3) {
        setZoneWord(static_cast<Zone>(kind - 1), colour);
        tintPicture(kind, colour);
        setKeyboardImageColor(0, 0, 0, 0, fullPicture);
        rememberSingleColour(false);
    } else if (kind == wholeKeyboardKind) {
        for (const Zone zone : {Zone::Left, Zone::Centre, Zone::Right}) {
            setZoneWord(zone, colour);
        }
        for (int img = 1; img <= fullPicture; ++img) {
            tintPicture(img, colour);
        }
        rememberSingleColour(true);
    } else if (kind == stripeKind) {
        setZoneWord(Zone::Stripe, colour);
        // Unlike those of the keyboard, its picture shows what the word holds.
        const ColourComponents part = wordColour(lighting.stripeWord.toUInt());
        setKeyboardImageColor(part.red, part.green, part.blue, tintAlpha,
                              static_cast<int>(KeyboardPicture::Stripe));
    }
}

void MainWindow::setZoneWord(Zone zone, const QString &colour)
{
    lighting.wordOf(zone) = wordText(deviceWord(zone, colour, ui->horizontalSlider->value()));
}

void MainWindow::tintPicture(int img, const QString &colour)
{
    const ColourComponents part = scaledComponents(colour, ui->horizontalSlider->value());
    setKeyboardImageColor(part.red, part.green, part.blue, tintAlpha, img);
}

void MainWindow::rememberSingleColour(bool selected)
{
    if (!loadingSettings) {
        settings.writeIfChanged(SettingKeys::singleColourLast, selected);
        lighting.singleColorSelected = selected;
    }
}

void MainWindow::sendFortune()
{
    // Asked only where there is an agent to answer: else the wake sequence would move on unheard.
    serviceServer->answer([this] {
        const LineChoice choice = chooseLine(
            lighting, {ui->backlight_off->isChecked(), ui->horizontalSlider->value(), wake});
        commandLine = choice.line;
        wake = choice.wake;
        return choice.line;
    });
}

void MainWindow::setKeyboardImageColor(int a, int b, int c, int d, int img)
{
    const std::initializer_list<QLabel *> labels{ui->keyboard_left, ui->keyboard_center,
                                                 ui->keyboard_right, ui->keyboard_full,
                                                 ui->stripe_led};
    if (img < 1 || img > static_cast<int>(labels.size())) {
        return;
    }
    const QPixmap picture(pictureFile(static_cast<KeyboardPicture>(img)));
    labels.begin()[img - 1]->setPixmap(tinted(picture, tintColour({a, b, c}, d)));
}

void MainWindow::applyAllColours()
{
    if (lighting.singleColorSelected) {
        SetZoneColor(wholeKeyboardKind, lighting.singleZoneColor);
        return;
    }
    SetZoneColor(1, lighting.leftZoneColor);
    SetZoneColor(2, lighting.centerZoneColor);
    SetZoneColor(3, lighting.rightZoneColor);
}

void MainWindow::brightnessapply()
{
    const int brightness = ui->horizontalSlider->value();
    if (brightness == lastAppliedBrightness) {
        return;
    }
    if (ui->backlight_on->isChecked() && !loadingSettings) {
        SetZoneColor(stripeKind, lighting.stripeLidColor);
        applyAllColours();
    }
    lastAppliedBrightness = brightness;
}

void MainWindow::on_horizontalSlider_valueChanged(int /*value*/)
{
    showBrightness("%");
    if (!dim.active) {
        dim.userBrightness = ui->horizontalSlider->value();
        settings.write(SettingKeys::brightLevel, dim.userBrightness);
    }
}

void MainWindow::showBrightness(const char *suffix)
{
    ui->label_2->setText(QStringLiteral("Brightness Level: %1%2")
                             .arg(ui->horizontalSlider->value())
                             .arg(QLatin1String(suffix)));
}

void MainWindow::setLightingControlsEnabled(bool enabled)
{
    ui->horizontalSlider->setEnabled(enabled);
    ui->tabWidget_2->setEnabled(enabled);
    ui->Combo_Effect->setEnabled(enabled);
    ui->CheckBox_AutoDim->setEnabled(enabled);
    ui->comboDimValue->setEnabled(enabled);
}

void MainWindow::on_backlight_off_clicked()
{
    if (!loadingSettings && ui->backlight_off->isChecked()) {
        lighting.blacken();
        settings.write(SettingKeys::backlightOff, true);
        settings.write(SettingKeys::backlightOn, false);
    }
    setLightingControlsEnabled(false);
}

void MainWindow::on_backlight_on_clicked()
{
    if (!loadingSettings && ui->backlight_on->isChecked()) {
        wake.wakePending = true;
        // The stripe deliberately stays black until its colour or the brightness changes.
        applyAllColours();
        settings.write(SettingKeys::backlightOn, true);
        settings.write(SettingKeys::backlightOff, false);
    }
    setLightingControlsEnabled(true);
}

void MainWindow::on_Combo_Effect_currentIndexChanged(int index)
{
    if (!loadingSettings && isEffectIndex(index)) {
        const bool chosen = index != 0;
        showEffect(chosen);
        if (!chosen) {
            ui->tabWidget_2->setCurrentIndex(lighting.singleColorSelected ? SinglePage : ZonesPage);
            applyAllColours();
        }
        lighting.effectWord = wordText(effects.at(static_cast<std::size_t>(index)).word);
    }
    settings.write(SettingKeys::effects, index);
}

void MainWindow::showEffect(bool chosen)
{
    ui->label_14->setVisible(chosen);
    ui->label_16->setVisible(chosen);
    const std::initializer_list<QWidget *> colourWidgets{
        ui->label_13,       ui->keyboard_full, ui->colorpick4,    ui->label_9,
        ui->label_10,       ui->label_11,      ui->keyboard_left, ui->keyboard_center,
        ui->keyboard_right, ui->colorpick1,    ui->colorpick2,    ui->colorpick3,
    };
    for (QWidget *widget : colourWidgets) {
        widget->setVisible(!chosen);
    }
    ui->horizontalSlider->setEnabled(!chosen);
    ui->CheckBox_AutoDim->setEnabled(!chosen);
    ui->comboDimValue->setEnabled(!chosen);
    showBrightness(chosen ? "% (disabled for Effects)" : "%");
}

void MainWindow::on_StartHidden_2_clicked()
{
    const bool checked = ui->StartHidden_2->isChecked();
    if (checked) {
        // Never made invisible again: unchecking only disables the page, on purpose.
        ui->tabWidget_2->setTabVisible(StripePage, true);
    }
    settings.write(SettingKeys::stripeOption, checked);
    enableStripePage(checked);
    SetStyle();
}

void MainWindow::enableStripePage(bool enabled)
{
    ui->tabWidget_2->setTabEnabled(StripePage, enabled);
    DarkStyle::layOutTabs(ui->tabWidget_2->tabBar());
}

void MainWindow::suspendresumeaction()
{
    dim.lastActivity = now();
    lighting.blacken();
    if (settings.read(SettingKeys::backlightOn)) {
        wake.wakePending = true;
    }
    QTimer::singleShot(reloadDelayMs, this, [this] {
        storeWindowPlace(); // else the window would go to where it was when the program last ended
        LoadSettings();
    });
}
