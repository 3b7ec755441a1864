#pragma once

#include <QtGlobal>

/// What a process holds of the system at the moment.
struct ResourceUsage
{
    int handles = 0;        ///< files, sockets and whatever else the system counts as such
    int sharedSegments = 0; ///< shared-memory segments on the whole system, where it tells; else 0
    qint64 memory = 0;      ///< bytes that stay with the process
};

ResourceUsage resourceUsage();

/// What another process holds, handles and memory alone; what cannot be found out is 0.
ResourceUsage resourceUsageOf(qint64 processId);
