#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "system/platform.h"
#include "ui/darkstyle.h"
#include "ui/messages.h"
#include "ui/zonepages.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace {

/// Opens the chassis maker's packaged application for keyboards with a light under each key.
constexpr const char *perKeyCommand =
    "explorer.exe shell:AppsFolder\\CLEVOCO.LedKeyboardSetting_6h6z29zh29qx0!App";

// Placed beside the program by its installation.
constexpr const char *perKeyInstaller = "PERKEY/RunAsAdministrator.bat";
constexpr const char *uninstaller = "Uninstall.exe";

} // namespace

void MainWindow::offerElevation(const Message &question)
{
    if (ask(this, question)) {
        requestadmin();
    }
}

void MainWindow::startDetached(const QString &program, const QStringList &arguments)
{
    auto *const process = new QProcess(this);
    process->setProgram(program);
    process->setArguments(arguments);
    process->startDetached();
}

QString MainWindow::besideProgram(const char *path) const
{
    // Absolute: what lies in the current directory may be anybody's, and it is to run with rights.
    return platform.programFolder() + QLatin1Char('/') + QLatin1String(path);
}

void MainWindow::startPerKeyApplication()
{
    QStringList words = QProcess::splitCommand(QString::fromLatin1(perKeyCommand));
    const QString program = words.takeFirst();
    startDetached(program, words);
}

void MainWindow::on_colorpick5_3_clicked()
{
    startPerKeyApplication();
}

void MainWindow::on_Check_StartwithWindows_clicked()
{
    if (ui->Check_StartwithWindows->isChecked()) {
        platform.setAutostartValue(
            QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
        platform.removeAutostartVeto();
    } else {
        platform.removeAutostartValue();
    }
}

void MainWindow::on_pushButton_3_clicked()
{
    if (IsAppRunningAsAdminMode() != 0) {
        startDetached(besideProgram(uninstaller), {});
    } else {
        offerElevation(Messages::uninstallNeedsRights);
    }
}

void MainWindow::on_UsePerKeyApp_clicked()
{
    if (!ui->UsePerKeyApp->isChecked()) {
        settings.write(SettingKeys::perKey, false);
        leavePerKeyMode();
        if (loadingSettings) {
            delayedApply(); // as after a start in the mode: nothing has been applied yet
        }
    } else if (IsAppRunningAsAdminMode() != 0) {
        enterPerKeyMode();
        settings.write(SettingKeys::perKey, true);
        QProcess::execute(besideProgram(perKeyInstaller), {});
    } else {
        // Whatever the answer, the box stays checked while the stored mode stays off, on purpose.
        offerElevation(Messages::perKeyNeedsRights);
    }
}

void MainWindow::enterPerKeyMode()
{
    enableWhatPerKeyModeReplaces(false);
    for (const int page : {SinglePage, ZonesPage, StripePage}) {
        ui->tabWidget_2->setTabVisible(page, false);
    }
    ui->tabWidget_2->setTabVisible(PerKeyPage, true);
    // With the backlight off the pages are disabled; the one that is left is to be used.
    ui->tabWidget_2->setEnabled(true);
    DarkStyle::layOutTabs(ui->tabWidget_2->tabBar());
}

void MainWindow::leavePerKeyMode()
{
    enableWhatPerKeyModeReplaces(true);
    ui->tabWidget_2->setTabVisible(SinglePage, true);
    ui->tabWidget_2->setTabVisible(ZonesPage, true);
    if (ui->StartHidden_2->isChecked()) {
        ui->tabWidget_2->setTabVisible(StripePage, true);
    }
    ui->tabWidget_2->setTabVisible(PerKeyPage, false);
    DarkStyle::layOutTabs(ui->tabWidget_2->tabBar());
}

void MainWindow::enableWhatPerKeyModeReplaces(bool enabled)
{
    const std::initializer_list<QWidget *> lightingControls{
        ui->horizontalSlider, ui->backlight_on,     ui->backlight_off, ui->touch_mouse_wake,
        ui->StartHidden_2,    ui->CheckBox_AutoDim, ui->comboDimValue, ui->Combo_Effect,
    };
    for (QWidget *control : lightingControls) {
        control->setEnabled(enabled);
    }
}
