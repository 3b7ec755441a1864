#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/devicewords.h"
#include "lighting/effects.h"
#include "system/platform.h"
#include "ui/darkstyle.h"
#include "ui/zonepages.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QTimer>

namespace {

constexpr int applyDelayMs = 1000;
constexpr int dimStartDelayMs = 5000;
constexpr int companionPeriodMs = 1000;
constexpr QSize firstWindowSize{630, 630};

/// A stored index that the list does not have selects its first item instead of none.
void selectStored(QComboBox &list, int index)
{
    list.setCurrentIndex(index >= 0 && index < list.count() ? index : 0);
}

} // namespace

void MainWindow::LoadSettings()
{
    loadingSettings = true;
    ui->label_14->hide();
    ui->label_16->hide();
    restoreWindowGeometry();

    ui->Check_CloseHides->setChecked(settings.readSetting(SettingKeys::minimizeClose).toBool());
    ui->Check_StartwithWindows->setChecked(
        platform.autostartValue(QStringLiteral("none"))
        == QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    const bool stripeOption = settings.readSetting(SettingKeys::stripeOption).toBool();
    ui->StartHidden_2->setChecked(stripeOption);
    enableStripePage(stripeOption);
    ui->StartHidden->setChecked(settings.readSetting(SettingKeys::startHidden).toBool());

    const bool perKey = settings.readSetting(SettingKeys::perKey).toBool();
    ui->UsePerKeyApp->setChecked(perKey);
    if (perKey) {
        enterPerKeyMode();
    } else {
        ui->tabWidget_2->setTabVisible(PerKeyPage, false);
        DarkStyle::layOutTabs(ui->tabWidget_2->tabBar());
        lighting.stripeWord = wordText(blackWord(Zone::Stripe));
        lighting.centreWord = wordText(DeviceWords::loading);
        lastActivityMs = now();
        QTimer::singleShot(applyDelayMs, this, SLOT(delayedApply()));
    }
}

void MainWindow::restoreWindowGeometry()
{
    const bool restored =
        restoreGeometry(settings.readSetting(SettingKeys::mainWindowGeometry).toByteArray());
    restoreState(settings.readSetting(SettingKeys::mainWindowState).toByteArray(), 0);
    const QScreen &screen = *QGuiApplication::primaryScreen();
    if (!restored) { // none stored, or none that can be read
        setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, firstWindowSize,
                                        screen.availableGeometry()));
    }
    // A damaged one can be read and still be thousands of screens wide.
    resize(size().boundedTo(screen.virtualSize()));
}

void MainWindow::delayedApply()
{
    const bool backlightOn = settings.readSetting(SettingKeys::backlightOn).toBool();
    if (backlightOn) {
        wake.wakePending = true;
    }
    setLightingControlsEnabled(backlightOn);
    ui->backlight_on->setChecked(backlightOn);
    ui->backlight_off->setChecked(!backlightOn);

    lastActivityMs = now();
    lighting.centreWord = wordText(DeviceWords::applying);
    selectStored(*ui->comboDimValue, settings.readSetting(SettingKeys::dimTimer).toInt());
    ui->horizontalSlider->setValue(settings.readSetting(SettingKeys::brightLevel).toInt());
    savedBrightness = ui->horizontalSlider->value();
    // A tick during loading noted its brightness and applied nothing.
    lastAppliedBrightness = nothingApplied;
    autoDimActive = false; // the slider is the user's again, also where an effect keeps polls off
    showBrightness("%");
    lighting.stripeLidColor = settings.readSetting(SettingKeys::stripeLid).toString();
    SetZoneColor(5, lighting.stripeLidColor);
    ui->touch_mouse_wake->setChecked(settings.readSetting(SettingKeys::touchWake).toBool());
    loadZoneColours();

    ui->CheckBox_AutoDim->setChecked(settings.readSetting(SettingKeys::autoDim).toBool());
    if (ui->CheckBox_AutoDim->isChecked()) {
        QTimer::singleShot(dimStartDelayMs, this, [this] {
            if (ui->CheckBox_AutoDim->isChecked()) { // not taken back meanwhile
                starttimerdelay();
            }
        });
    }
    companionTimer->start(companionPeriodMs);
    loadingSettings = false;
    // After loading, so that the effect's slot applies it.
    applyStoredEffect();
    lastActivityMs = now();
}

void MainWindow::applyStoredEffect()
{
    const int former = ui->Combo_Effect->currentIndex();
    selectStored(*ui->Combo_Effect, settings.readSetting(SettingKeys::effects).toInt());
    const int index = ui->Combo_Effect->currentIndex();
    // The list announces a new index only, but settings that are applied again have taken the
    // effect's looks back, and one chosen while loading has not been applied.
    const bool unapplied = index != 0 || lighting.effectWord != wordText(effects.front().word);
    if (index == former && unapplied) {
        on_Combo_Effect_currentIndexChanged(index);
    }
}

void MainWindow::loadZoneColours()
{
    lighting.singleColorSelected = settings.readSetting(SettingKeys::singleColourLast).toBool();
    if (lighting.singleColorSelected) {
        const QString colour = settings.readSetting(SettingKeys::singleColour).toString();
        lighting.leftZoneColor = colour;
        lighting.centerZoneColor = colour;
        lighting.rightZoneColor = colour;
        lighting.singleZoneColor = colour;
        ui->leRGB->setText(colour);
        SetZoneColor(4, colour);
        return;
    }
    lighting.leftZoneColor = settings.readSetting(SettingKeys::leftColour).toString();
    SetZoneColor(1, lighting.leftZoneColor);
    lighting.centerZoneColor = settings.readSetting(SettingKeys::centreColour).toString();
    SetZoneColor(2, lighting.centerZoneColor);
    lighting.rightZoneColor = settings.readSetting(SettingKeys::rightColour).toString();
    SetZoneColor(3, lighting.rightZoneColor);
    setKeyboardImageColor(0, 0, 0, 0, 4);
    ui->tabWidget_2->setCurrentIndex(ZonesPage);
}

void MainWindow::ShutdownQuit()
{
    settings.writeSetting(SettingKeys::mainWindowGeometry, saveGeometry());
    settings.writeSetting(SettingKeys::mainWindowState, saveState(0));
}

void MainWindow::on_StartHidden_clicked()
{
    settings.writeSetting(SettingKeys::startHidden, ui->StartHidden->isChecked());
}

void MainWindow::on_Check_CloseHides_clicked()
{
    settings.writeSetting(SettingKeys::minimizeClose, ui->Check_CloseHides->isChecked());
}
