#include "tests/support/smalldisk.h"

#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/testsystem.h"

#include <QDir>
#include <QFile>

#include <utility>

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

SmallDisk::SmallDisk(QString mountPoint, QString settingsFolder)
    : disk(std::move(mountPoint))
    , folder(std::move(settingsFolder))
{
    clear(); // of what a test has left that was ended in the middle
    TestSystem::runDesktopTool(QStringLiteral("ln"),
                               {QStringLiteral("-sfn"), disk, TestSystem::pathOnDesktop(folder)});
    writeFile(filler(), "x");
    const QByteArray seen =
        TestSystem::runDesktopTool(QStringLiteral("cat"), {disk + QStringLiteral("/filler")});
    makeRoom();
    if (seen != "x") {
        qFatal("the small disk is not at %s", qPrintable(folder));
    }
}

SmallDisk::~SmallDisk()
{
    clear();
    TestSystem::runDesktopTool(QStringLiteral("rm"),
                               {QStringLiteral("-f"), TestSystem::pathOnDesktop(folder)});
}

void SmallDisk::clear() const
{
    setWritable(true);
    for (const char *entry : {"filler", "Lumikey"}) {
        TestSystem::runDesktopTool(
            QStringLiteral("rm"),
            {QStringLiteral("-rf"), disk + QLatin1Char('/') + QLatin1String(entry)});
    }
}

void SmallDisk::fill() const
{
    QFile file(filler());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qFatal("cannot fill the small disk");
    }
    const QByteArray page(4096, 'x');
    constexpr int farTooMany = 1000;
    for (int pages = 0; file.write(page) == page.size(); ++pages) {
        if (pages == farTooMany) {
            qFatal("%s is no small disk", qPrintable(folder));
        }
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
