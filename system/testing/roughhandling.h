#pragma once

#include <QString>

#include <memory>

/// What tests do to handles, sockets and files that Qt has no call for.
namespace RoughHandling {

/// Lets this process have as many files and sockets open as the system gives to anyone.
void raiseHandleLimit();

/// Whether a running process may have more handles than it has. False where the system cannot
/// forbid it.
bool setMoreHandlesAllowed(qint64 processId, bool allowed);

/// Connects and closes so many times in a row, without waiting for anything in between.
void comeAndGo(const char *address, quint16 port, int clients);

/// Sends no more, and goes on reading.
void shutDownWriting(qintptr socketDescriptor);

/// Opens a file so that nobody else can, until what is returned goes; null where the system lets
/// everybody in.
std::shared_ptr<void> holdAlone(const QString &path);

/// Lets a mounted disk be written to, or forbids it. False where tests cannot do either.
bool setDiskWritable(const QString &mountPoint, bool writable);

} // namespace RoughHandling
