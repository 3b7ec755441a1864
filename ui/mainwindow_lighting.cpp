#include "ui/mainwindow.h"

#include "lighting/effects.h"
#include "lighting/serviceserver.h"
#include "ui/colourhub.h"
#include "ui/colourtargets.h"
#include "ui/darkstyle.h"
#include "ui/messages.h"
#include "ui/texts.h"
#include "ui/zonepages.h"

#include <QTimer>

namespace {

/// How strongly the pictures are tinted, 0..255.
constexpr int tintAlpha = 30;
constexpr int reloadDelayMs = 1000;

} // namespace

uint MainWindow::GetColour(byte r, byte g, byte b, Zone zone)
{
    return packWord(r, g, b, zone);
}

void MainWindow::SetZoneColor(int kind, const QString &colour)
{
    if (const auto target = colourTarget(kind)) {
        setColour(*target, colour);
    }
}

void MainWindow::setColour(ColourTarget target, const QString &colour)
{
    switch (target) {
    case ColourTarget::Left:
    case ColourTarget::Centre:
    case ColourTarget::Right:
        colourZone(rowOf(target), colour);
        showUncoloured(rowOf(ColourTarget::Keyboard));
        rememberSingleColour(false);
        break;
    case ColourTarget::Keyboard:
        for (const ColourTarget zone : keyboardZones) {
            colourZone(rowOf(zone), colour);
        }
        tintPreview(rowOf(target), colour);
        rememberSingleColour(true);
        break;
    case ColourTarget::Stripe:
        setZoneWord(Zone::Stripe, colour);
        // Unlike those of the keyboard, its picture shows what the word holds.
        showPreview(rowOf(target), tintColour(wordColour(lighting.stripeWord.toUInt()), tintAlpha));
        showInHub(*(*ui.*rowOf(target).opener), colour);
        break;
    }
}

void MainWindow::colourZone(const ColourTargetRow &row, const QString &colour)
{
    setZoneWord(*row.zone, colour);
    tintPreview(row, colour);
}

void MainWindow::setZoneWord(Zone zone, const QString &colour)
{
    lighting.wordOf(zone) = wordText(deviceWord(zone, colour, ui->horizontalSlider->value()));
}

void MainWindow::tintPreview(const ColourTargetRow &row, const QString &colour)
{
    showPreview(row,
                tintColour(scaledComponents(colour, ui->horizontalSlider->value()), tintAlpha));
    showInHub(*(*ui.*row.opener), colour);
}

void MainWindow::showUncoloured(const ColourTargetRow &row)
{
    showPreview(row, Qt::transparent);
    showInHub(*(*ui.*row.opener), QString());
}

void MainWindow::showPreview(const ColourTargetRow &row, const QColor &tint)
{
    (*ui.*row.preview)->setPixmap(tinted(previewPictures.of(row.picture), tint));
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
    if (const auto target = colourTarget(img)) {
        showPreview(rowOf(*target), tintColour({a, b, c}, d));
    }
}

void MainWindow::applyAllColours()
{
    if (lighting.singleColorSelected) {
        setColour(ColourTarget::Keyboard, lighting.singleZoneColor);
        return;
    }
    for (const ColourTarget zone : keyboardZones) {
        setColour(zone, lighting.*rowOf(zone).colour);
    }
}

void MainWindow::brightnessapply()
{
    const int brightness = ui->horizontalSlider->value();
    if (lastAppliedBrightness == brightness) {
        return;
    }
    if (ui->backlight_on->isChecked() && !loadingSettings) {
        setColour(ColourTarget::Stripe, lighting.stripeLidColor);
        applyAllColours();
    }
    lastAppliedBrightness = brightness;
}

void MainWindow::on_horizontalSlider_valueChanged(int /*value*/)
{
    showBrightness(Messages::brightness);
    if (!dim.active) {
        dim.userBrightness = ui->horizontalSlider->value();
        brightnessStore.choose(dim.userBrightness, ui->horizontalSlider->isSliderDown());
    }
}

void MainWindow::showBrightness(const char *text)
{
    ui->label_2->setText(translated(text).arg(ui->horizontalSlider->value()));
}

void MainWindow::enableWhatNeedsTheBacklight(bool enabled)
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
        settings.write(SettingsTogether()
                           .with(SettingKeys::backlightOff, true)
                           .with(SettingKeys::backlightOn, false));
    }
    enableWhatNeedsTheBacklight(false);
}

void MainWindow::on_backlight_on_clicked()
{
    if (!loadingSettings && ui->backlight_on->isChecked()) {
        wake.wakePending = true;
        // The stripe deliberately stays black until its colour or the brightness changes.
        applyAllColours();
        settings.write(SettingsTogether()
                           .with(SettingKeys::backlightOn, true)
                           .with(SettingKeys::backlightOff, false));
    }
    enableWhatNeedsTheBacklight(true);
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
    // From the rows of the pictures down to the ends, so that they are in the middle: what is above
    // those rows the sheet takes off below. Not while they are hidden: they would hold rows open.
    const int rows = chosen ? -1 : 1;
    ui->gridLayout_13->addWidget(ui->label_14, 1, 0, rows, 1);
    ui->gridLayout_6->addWidget(ui->label_16, 1, 1, rows, 1);
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
    showBrightness(chosen ? Messages::brightnessUnderEffects : Messages::brightness);
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
