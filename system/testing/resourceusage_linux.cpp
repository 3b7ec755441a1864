#include "system/testing/resourceusage.h"

#include "tests/support/guitest.h"

#include <QDir>

#include <malloc.h>

ResourceUsage resourceUsage()
{
    ResourceUsage usage;
    usage.handles = QDir(QStringLiteral("/proc/self/fd"))
                        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                        .size();
    usage.sharedSegments = readFile(QStringLiteral("/proc/sysvipc/shm")).count('\n') - 1;
    usage.memory = static_cast<qint64>(::mallinfo2().uordblks);
    return usage;
}
