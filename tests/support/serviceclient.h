#pragma once

#include "lighting/serviceendpoint.h"
#include "tests/support/patience.h"

#include <QByteArray>
#include <QString>

/// A client of the Service Server that reads the wire byte by byte, by its own reading of the
/// format, so that it checks the program's encoder.
namespace ServiceClient {

/// All bytes from connecting until the server closes; empty when there is no server.
/// Runs the event loop, so it also works against a server of the same process.
QByteArray readAnswer(int timeoutMs = patienceMs, quint16 port = ServiceEndpoint().port);

/// The command line of one answer; "malformed: ..." with the bytes in hexadecimal otherwise.
QString lineOf(const QByteArray &answer);

/// Connects, reads and decodes.
inline QString readLine(quint16 port = ServiceEndpoint().port)
{
    return lineOf(readAnswer(patienceMs, port));
}

} // namespace ServiceClient
