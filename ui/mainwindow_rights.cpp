#include "ui/mainwindow.h"

#include "app/primaryrole.h"
#include "system/firmwarelibrary.h"
#include "system/platform.h"
#include "ui/messages.h"
#include "ui/trayicon.h"

#include <QDebug>

BOOL MainWindow::IsAppRunningAsAdminMode()
{
    return platform.isElevated() ? 1 : 0;
}

void MainWindow::requestadmin()
{
    // First, or the elevated copy would find this one running and leave.
    primaryRole.handOver();
    // The system keeps the icon of a process that ends without taking it away.
    shell.trayIcon->hide();
    const Platform::Relaunch outcome = platform.relaunchElevated();
    if (outcome == Platform::Relaunch::Launched) {
        platform.endProcess(1);
        return;
    }
    shell.trayIcon->show();
    primaryRole.takeBack();
    if (outcome == Platform::Relaunch::Declined) {
        qDebug("User did not allow elevation");
    }
}

void MainWindow::installmof()
{
    if (!ask(this, Messages::installFirmwareLibrary)) {
        close();
        return;
    }
    FirmwareLibrary library(platform);
    library.install();
    storeWindowPlace(); // which is read as well
    LoadSettings();
}
