#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/idletimes.h"

namespace {

constexpr int pollPeriodMs = 100;

} // namespace

void MainWindow::updateIdleTime()
{
    const int index = ui->comboDimValue->currentIndex();
    if (index >= 0 && index < static_cast<int>(idleTimesMs.size())) {
        dimTimeoutMs = idleTimesMs.at(static_cast<std::size_t>(index));
    }
}

void MainWindow::on_comboDimValue_currentIndexChanged(int index)
{
    settings.writeSetting(SettingKeys::dimTimer, index);
    updateIdleTime();
}

void MainWindow::on_touch_mouse_wake_clicked()
{
    settings.writeSetting(SettingKeys::touchWake, ui->touch_mouse_wake->isChecked());
}

void MainWindow::on_CheckBox_AutoDim_clicked()
{
    const bool checked = ui->CheckBox_AutoDim->isChecked();
    settings.writeSetting(SettingKeys::autoDim, checked);
    if (checked) {
        starttimerdelay();
        showBrightness("% (Auto dim mode)");
        return;
    }
    autoDimActive = false;
    dimTimer->stop();
    ui->horizontalSlider->setValue(savedBrightness);
    ui->horizontalSlider->setEnabled(true);
    showBrightness("%");
}

void MainWindow::starttimerdelay()
{
    lastActivityMs = now();
    updateIdleTime();
    dimTimer->start(pollPeriodMs);
}
