#include "system/testing/resourceusage.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <malloc.h>

namespace {

int openFiles(const QString &process)
{
    return QDir(QStringLiteral("/proc/%1/fd").arg(process))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ResourceUsage resourceUsage()
{
    ResourceUsage usage;
    usage.handles = openFiles(QStringLiteral("self"));
    usage.sharedSegments = contents(QStringLiteral("/proc/sysvipc/shm")).count('\n') - 1;
    usage.memory = static_cast<qint64>(::mallinfo2().uordblks);
    return usage;
}

ResourceUsage resourceUsageOf(qint64 processId)
{
    ResourceUsage usage;
    usage.handles = openFiles(QString::number(processId));
    const auto map =
        QString::fromLatin1(contents(QStringLiteral("/proc/%1/smaps_rollup").arg(processId)));
    const QRegularExpression line(QStringLiteral("Private_Dirty: +(\\d+) kB"));
    usage.memory = line.match(map).captured(1).toLongLong() * 1024;
    return usage;
}
