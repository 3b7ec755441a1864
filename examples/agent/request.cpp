#include "examples/agent/request.h"

#include "examples/agent/options.h"

#include <QHostAddress>
#include <QNetworkProxy>

namespace agent {

Request::Request(int timeout, QObject *parent)
    : QObject(parent)
{
    socket.setProxy(QNetworkProxy::NoProxy);
    limit.setInterval(timeout);
    connect(&socket, &QTcpSocket::connected, this, [this] { connectedOnce = true; });
    connect(&socket, &QTcpSocket::readyRead, this, &Request::read);
    connect(&socket, &QTcpSocket::disconnected, this, &Request::closed);
    connect(&socket, &QTcpSocket::errorOccurred, this, &Request::failed);
    connect(&limit, &QTimer::timeout, this, &Request::timedOut);
}

Request::~Request()
{
    // A socket that is still connected reports its end while it is destroyed, to a half-gone
    // object.
    socket.disconnect(this);
}

void Request::start()
{
    limit.start();
    socket.connectToHost(QHostAddress(QLatin1String(serverAddress)), serverPort);
}

void Request::read()
{
    bytes += socket.readAll();
    if (bytes.size() > largestAnswer) {
        // Malformed whatever follows; no reason to keep more of it.
        finishDecoded();
    }
}

void Request::closed()
{
    read();
    if (bytes.isEmpty()) {
        finish(Outcome::Result::Silent,
               QStringLiteral("the server closed the connection without sending a byte"));
        return;
    }
    finishDecoded();
}

void Request::failed()
{
    if (!connectedOnce) {
        finish(Outcome::Result::NoServer, socket.errorString());
    } else if (socket.error() != QAbstractSocket::RemoteHostClosedError) {
        finish(Outcome::Result::Malformed,
               QStringLiteral("the connection broke: ") + socket.errorString());
    }
    // The server's close is the expected end; closed() follows and decodes.
}

void Request::timedOut()
{
    if (!connectedOnce) {
        finish(Outcome::Result::NoServer,
               QStringLiteral("no connection within %1 ms").arg(limit.interval()));
        return;
    }
    const Decoded decoded = decode(bytes);
    const auto *malformed = std::get_if<Malformed>(&decoded);
    const QString what =
        malformed != nullptr
            ? malformed->why
            : QStringLiteral("the text is complete, but the server's close is missing");
    finish(bytes.isEmpty() ? Outcome::Result::Silent : Outcome::Result::Malformed,
           QStringLiteral("%1 after the time limit of %2 ms").arg(what).arg(limit.interval()));
}

void Request::finishDecoded()
{
    const Decoded decoded = decode(bytes);
    if (const auto *malformed = std::get_if<Malformed>(&decoded)) {
        finish(Outcome::Result::Malformed, malformed->why);
        return;
    }
    result.answer = std::get<Answer>(decoded);
    finish(Outcome::Result::Answered, QString());
}

void Request::finish(Outcome::Result kind, const QString &reason)
{
    if (done) {
        return;
    }
    done = true;
    limit.stop();
    result.result = kind;
    result.reason = reason;
    emit finished();
}

} // namespace agent
