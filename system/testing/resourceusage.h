#pragma once

#include <QtGlobal>

/// What this process holds of the system at the moment.
struct ResourceUsage
{
    int handles = 0;        ///< files, sockets and whatever else the system counts as such
    int sharedSegments = 0; ///< shared-memory segments on the whole system, where it tells; else 0
    qint64 memory = 0;      ///< bytes that stay with the process
};

ResourceUsage resourceUsage();
