#pragma once

#include <QString>

#include <memory>

class QLocalSocket;

/// The local socket by which a later start of the program tells the running one of itself.
namespace InstanceSocket {

/// A connection to the running program, as any process of its user can have it; ends the test
/// program when nobody listens.
std::unique_ptr<QLocalSocket> connect();

/// The name of the running program's socket.
QString name();

} // namespace InstanceSocket
