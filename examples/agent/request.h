#pragma once

#include "examples/agent/answer.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTcpSocket>
#include <QTimer>

namespace agent {

/// How one connection ended.
struct Outcome
{
    enum class Result {
        Answered,  ///< `answer` holds the words
        Malformed, ///< `reason` says what broke the wire format or the time limit
        NoServer,  ///< nobody accepted the connection; `reason` is the system's text
        Silent,    ///< not a single byte before the close or the time limit; `reason` says which
    };
    Result result = Result::NoServer;
    Answer answer;
    QString reason;
};

/// One connection to the Service Server, from connecting to the server's close.
class Request : public QObject
{
    Q_OBJECT

public:
    /// `timeout` in milliseconds, for connecting, reading and the close together.
    explicit Request(int timeout, QObject *parent = nullptr);
    ~Request() override;

    /// To be called once; `finished()` follows exactly once, possibly before this returns.
    void start();

    /// Valid after `finished()`.
    const Outcome &outcome() const { return result; }

signals:
    void finished();

private:
    void read();
    void closed();
    void failed();
    void timedOut();
    void finish(Outcome::Result kind, const QString &reason);
    void finishDecoded();

    QTcpSocket socket;
    QTimer limit; ///< runs until finish()
    QByteArray bytes;
    Outcome result;
    bool connectedOnce = false;
    bool done = false;
};

} // namespace agent
