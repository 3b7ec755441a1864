#pragma once

#include <QtGlobal>

/// Where the program is reached by agents. The default is the one place where they look for it;
/// tests have places of their own.
struct ServiceEndpoint
{
    const char *address = "127.0.0.9";
    quint16 port = 52316; ///< 0: any that is free
};
