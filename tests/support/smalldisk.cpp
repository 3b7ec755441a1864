#include "tests/support/smalldisk.h"

#include "tests/support/programprocess.h"
#include "tests/support/testsystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

std::unique_ptr<SmallDisk> SmallDisk::underTheSettings()
{
    const QString mountPoint = qEnvironmentVariable("LUMIKEY_SMALL_DISK");
    if (mountPoint.isEmpty()) {
        return nullptr;
    }
    QDir().mkpath(ProgramProcess::documents());
    return std::unique_ptr<SmallDisk>(
        new SmallDisk(mountPoint, ProgramProcess::documents() + QStringLiteral("/Corvane")));
}

SmallDisk::SmallDisk(const QString &mountPoint, const QString &settingsFolder)
    : disk(mountPoint)
    , folder(settingsFolder)
{
    TestSystem::runDesktopTool(QStringLiteral("ln"),
                               {QStringLiteral("-sfn"), disk, TestSystem::pathOnDesktop(folder)});
    if (!QFileInfo(folder).isDir()) {
        qFatal("the small disk is not at %s", qPrintable(folder));
    }
}

SmallDisk::~SmallDisk()
{
    setWritable(true);
    for (const char *entry : {"filler", "Lumikey"}) {
        TestSystem::runDesktopTool(
            QStringLiteral("rm"),
            {QStringLiteral("-rf"), disk + QLatin1Char('/') + QLatin1String(entry)});
    }
    TestSystem::runDesktopTool(QStringLiteral("rm"),
                               {QStringLiteral("-f"), TestSystem::pathOnDesktop(folder)});
}

void SmallDisk::fill() const
{
    QFile file(filler());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qFatal("cannot fill the small disk");
    }
    const QByteArray page(4096, 'x');
    while (file.write(page) == page.size()) {
    }
}

void SmallDisk::makeRoom() const
{
    QFile::remove(filler());
}

void SmallDisk::setWritable(bool writable) const
{
    TestSystem::runDesktopTool(QStringLiteral("mount"),
                               {QStringLiteral("-o"),
                                QStringLiteral("remount,") + QLatin1String(writable ? "rw" : "ro"),
                                disk});
}
