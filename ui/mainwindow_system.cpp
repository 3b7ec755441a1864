#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "system/platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace {

/// Opens the chassis maker's packaged application for keyboards with a light under each key.
const QString perKeyCommand =
    QStringLiteral("explorer.exe shell:AppsFolder\\CLEVOCO.LedKeyboardSetting_6h6z29zh29qx0!App");

} // namespace

void MainWindow::startPerKeyApplication()
{
    QStringList words = QProcess::splitCommand(perKeyCommand);
    const QString program = words.takeFirst();
    QProcess::startDetached(program, words);
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
    } else {
        platform.removeAutostartValue();
    }
}
