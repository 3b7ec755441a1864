#include "system/firmwarelibrary.h"

#include "system/platform.h"

#include <QFile>

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

FirmwareLibrary::FirmwareLibrary(Platform &system)
    : platform(system)
{}

void FirmwareLibrary::install()
{
    run(stopService, "net stop winmgmt /y");
    QFile::copy(QStringLiteral("installer//CLEVOMOF.dll"),
                QStringLiteral("C://Windows//SysWOW64//clevomof.dll"));
    run(registration, "regsvr32 /s C:/Windows/SysWOW64/clevomof.dll");
    platform.setFirmwareInterfaceLibrary(QStringLiteral("syswow64\\clevomof.dll"));
    run(startService, "net start winmgmt");
}
