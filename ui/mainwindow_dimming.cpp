#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/idletimes.h"
#include "system/platform.h"
#include "ui/messages.h"

namespace {

constexpr int pollPeriodMs = 100;

} // namespace

void MainWindow::updateIdleTime()
{
    const int index = ui->comboDimValue->currentIndex();
    if (index >= 0 && index < static_cast<int>(idleTimesMs.size())) {
        dim.idleTime = idleTimesMs.at(static_cast<std::size_t>(index));
    }
}

void MainWindow::on_comboDimValue_currentIndexChanged(int index)
{
    settings.write(SettingKeys::dimTimer, index);
    updateIdleTime();
}

void MainWindow::on_touch_mouse_wake_clicked()
{
    settings.write(SettingKeys::touchWake, ui->touch_mouse_wake->isChecked());
}

void MainWindow::on_CheckBox_AutoDim_clicked()
{
    const bool checked = ui->CheckBox_AutoDim->isChecked();
    settings.write(SettingKeys::autoDim, checked);
    if (checked) {
        starttimerdelay();
        showBrightness(Messages::brightnessText(DimPhase::Watching));
        return;
    }
    dim.active = false;
    dimTimer->stop();
    ui->horizontalSlider->setValue(dim.userBrightness);
    ui->horizontalSlider->setEnabled(true);
    showBrightness(Messages::brightness);
}

void MainWindow::starttimerdelay()
{
    dim.lastActivity = now();
    updateIdleTime();
    dimTimer->start(pollPeriodMs);
}

void MainWindow::timerDone()
{
    DimPoll poll;
    poll.now = now();
    const KeyPresses presses = platform.keysPressedSinceLastPoll();
    if (countsAsInput(presses, ui->touch_mouse_wake->isChecked())) {
        dim.lastActivity = now();
    }
    QSlider &slider = *ui->horizontalSlider;
    poll.brightness = slider.value();
    poll.effectChosen = ui->Combo_Effect->currentIndex() != 0;
    const DimStep step = dimStep(dim, poll);

    wake.wakePending = wake.wakePending || step.wake;
    // Raised before the slider moves and cleared after it, so that neither move is the user's.
    dim.active = dim.active || step.state.active;
    slider.setValue(step.brightness);
    dim = step.state;
    if (step.sliderEnabled) {
        slider.setEnabled(*step.sliderEnabled);
    }
    if (step.told) {
        showBrightness(Messages::brightnessText(*step.told));
    }
    if (step.leftOff) {
        lighting.leftWord = wordText(DeviceWords::lightingOff);
        // The words show no brightness now: a wake before the next brightnessapply() may bring back
        // the very value that it applied last.
        lastAppliedBrightness.reset();
    }
}

void MainWindow::loadFromSharedMem()
{
    sharedmemtimer();
}

void MainWindow::sharedmemtimer()
{
    const std::optional<qint32> published = companion.newBrightness();
    if (!published) {
        return;
    }
    QSlider &slider = *ui->horizontalSlider;
    dim.userBrightness = qBound(slider.minimum(), *published, slider.maximum());
    if (!ui->CheckBox_AutoDim->isChecked()) {
        slider.setValue(dim.userBrightness);
        showBrightness(Messages::brightnessFromCompanion);
    }
}
