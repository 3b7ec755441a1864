#include "ui/mainwindow.h"

#include "app/primaryrole.h"
#include "system/platform.h"
#include "ui/messages.h"

#include <QDebug>
#include <QFile>
#include <QProcess>

namespace {

constexpr int commandTimeoutMs = 30000;

/// Runs a command line to its end, or for half a minute; how it went is not looked at.
void run(QProcess &process, const char *commandLine)
{
    QStringList words = QProcess::splitCommand(QString::fromLatin1(commandLine));
    const QString program = words.takeFirst();
    process.start(program, words, QIODevice::ReadWrite);
    process.waitForFinished(commandTimeoutMs);
}

} // namespace

BOOL MainWindow::IsAppRunningAsAdminMode()
{
    return platform.isElevated() ? 1 : 0;
}

void MainWindow::requestadmin()
{
    // First, or the elevated copy would find this one running and leave.
    primaryRole.handOver();
    const Platform::Relaunch outcome = platform.relaunchElevated();
    if (outcome == Platform::Relaunch::Launched) {
        platform.endProcess(1);
        return;
    }
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
    // All three live until the end: one that is still running after its wait is not cut short
    // before the others have had their turn.
    QProcess stopService;
    QProcess registration;
    QProcess startService;
    run(stopService, "net stop winmgmt /y");
    QFile::copy(QStringLiteral("installer//CLEVOMOF.dll"),
                QStringLiteral("C://Windows//SysWOW64//clevomof.dll"));
    run(registration, "regsvr32 /s C:/Windows/SysWOW64/clevomof.dll");
    platform.setFirmwareInterfaceLibrary(QStringLiteral("syswow64\\clevomof.dll"));
    run(startService, "net start winmgmt");
    storeWindowPlace(); // which is read as well
    LoadSettings();
}
