#include "tests/support/smalldisk.h"

#include "system/testing/roughhandling.h"
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
    return std::unique_ptr<SmallDisk>(new SmallDisk(mountPoint));
}

SmallDisk::SmallDisk(const QString &mountPoint)
    // With its drive, where there are drives: a test may move to another one.
    : disk(QFileInfo(mountPoint).absoluteFilePath())
    , documents(TestSystem::moveDocuments(disk))
{
    clear(); // of what a test has left that was ended in the middle
    if (QDir(ProgramProcess::documents()) != QDir(disk)) {
        qFatal("the documents are not at %s", qPrintable(disk));
    }
}

SmallDisk::~SmallDisk()
{
    clear();
}

void SmallDisk::clear() const
{
    setWritable(true);
    makeRoom();
    QDir(disk + QStringLiteral("/Corvane")).removeRecursively();
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
            qFatal("%s is no small disk", qPrintable(disk));
        }
    }
}

void SmallDisk::makeRoom() const
{
    QFile::remove(filler());
}

bool SmallDisk::setWritable(bool writable) const
{
    return RoughHandling::setDiskWritable(disk, writable);
}
