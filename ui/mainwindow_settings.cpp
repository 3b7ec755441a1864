#include "ui/mainwindow.h"

#include "lighting/devicewords.h"
#include "lighting/effects.h"
#include "lighting/idletimes.h"
#include "system/platform.h"
#include "ui/colourtargets.h"
#include "ui/darkstyle.h"
#include "ui/messages.h"
#include "ui/windowplace.h"
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

// The settings do not know the lists whose indices they hold.
static_assert(SettingKeys::effects.bounds.highest + 1 == int{effects.size()});
static_assert(SettingKeys::dimTimer.bounds.highest + 1 == int{idleTimesMs.size()});

} // namespace

void MainWindow::LoadSettings()
{
    loadingSettings = true;
    ui->label_14->hide();
    ui->label_16->hide();
    restoreWindowGeometry();

    ui->Check_CloseHides->setChecked(settings.read(SettingKeys::minimizeClose));
    ui->Check_StartwithWindows->setChecked(
        platform.autostartValue(QStringLiteral("none"))
        == QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    const bool stripeOption = settings.read(SettingKeys::stripeOption);
    ui->StartHidden_2->setChecked(stripeOption);
    enableStripePage(stripeOption);
    ui->StartHidden->setChecked(settings.read(SettingKeys::startHidden));

    const bool perKey = settings.read(SettingKeys::perKey);
    ui->UsePerKeyApp->setChecked(perKey);
    if (perKey) {
        enterPerKeyMode();
    } else {
        ui->tabWidget_2->setTabVisible(PerKeyPage, false);
        DarkStyle::layOutTabs(ui->tabWidget_2->tabBar());
        lighting.stripeWord = wordText(blackWord(Zone::Stripe));
        lighting.centreWord = wordText(DeviceWords::loading);
        dim.lastActivity = now();
        QTimer::singleShot(applyDelayMs, this, SLOT(delayedApply()));
    }
}

void MainWindow::restoreWindowGeometry()
{
    const bool restored = restoreGeometry(settings.read(SettingKeys::mainWindowGeometry));
    restoreState(settings.read(SettingKeys::mainWindowState), 0);
    const QScreen &screen = *QGuiApplication::primaryScreen();
    if (!restored) { // none stored, or none that can be read
        setGeometry(
            WindowPlace::movedInto(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                                       firstWindowSize, screen.availableGeometry()),
                                   screen.availableGeometry()));
    }
    // A damaged one can be read and still be thousands of screens wide.
    resize(size().boundedTo(screen.virtualSize()));
}

void MainWindow::delayedApply()
{
    const bool backlightOn = settings.read(SettingKeys::backlightOn);
    if (backlightOn) {
        wake.wakePending = true;
    }
    enableWhatNeedsTheBacklight(backlightOn);
    ui->backlight_on->setChecked(backlightOn);
    ui->backlight_off->setChecked(!backlightOn);

    dim.lastActivity = now();
    lighting.centreWord = wordText(DeviceWords::applying);
    ui->comboDimValue->setCurrentIndex(settings.read(SettingKeys::dimTimer));
    ui->horizontalSlider->setValue(settings.read(SettingKeys::brightLevel));
    dim.userBrightness = ui->horizontalSlider->value();
    // brightnessapply() may have run while loading: it noted the brightness without applying it,
    // and would find nothing new from now on.
    lastAppliedBrightness.reset();
    dim.active = false; // the slider is the user's again, also where an effect keeps polls off
    showBrightness(Messages::brightness);
    lighting.stripeLidColor = settings.read(SettingKeys::stripeLid);
    setColour(ColourTarget::Stripe, lighting.stripeLidColor);
    ui->touch_mouse_wake->setChecked(settings.read(SettingKeys::touchWake));
    loadZoneColours();

    ui->CheckBox_AutoDim->setChecked(settings.read(SettingKeys::autoDim));
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
    dim.lastActivity = now();
}

void MainWindow::applyStoredEffect()
{
    const int former = ui->Combo_Effect->currentIndex();
    ui->Combo_Effect->setCurrentIndex(settings.read(SettingKeys::effects));
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
    lighting.singleColorSelected = settings.read(SettingKeys::singleColourLast);
    if (lighting.singleColorSelected) {
        const QString colour = settings.read(SettingKeys::singleColour);
        for (const ColourTarget zone : keyboardZones) {
            lighting.*rowOf(zone).colour = colour;
        }
        lighting.singleZoneColor = colour;
        ui->leRGB->setText(colour);
        setColour(ColourTarget::Keyboard, colour);
        return;
    }
    for (const ColourTarget zone : keyboardZones) {
        lighting.*rowOf(zone).colour = settings.read(*rowOf(zone).key);
        setColour(zone, lighting.*rowOf(zone).colour);
    }
    ui->tabWidget_2->setCurrentIndex(ZonesPage);
}

void MainWindow::ShutdownQuit()
{
    brightnessStore.storeWaiting();
    storeWindowPlace();
}

void MainWindow::storeWindowPlace()
{
    settings.write(SettingsTogether()
                       .with(SettingKeys::mainWindowGeometry, saveGeometry())
                       .with(SettingKeys::mainWindowState, saveState(0)));
}

void MainWindow::on_StartHidden_clicked()
{
    settings.write(SettingKeys::startHidden, ui->StartHidden->isChecked());
}

void MainWindow::on_Check_CloseHides_clicked()
{
    settings.write(SettingKeys::minimizeClose, ui->Check_CloseHides->isChecked());
}
