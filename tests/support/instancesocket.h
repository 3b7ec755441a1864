#pragma once

#include <QString>

#include <memory>

class QLocalSocket;

/// What later starts of the program meet the running one under.
namespace InstanceSocket {

/// A connection to the running program, as any process of its user can have it; ends the test
/// program when nobody listens.
std::unique_ptr<QLocalSocket> connect();

/// The name of the running program's socket.
QString name();

} // namespace InstanceSocket
