#pragma once

#include "tests/support/patience.h"
#include "tests/support/testpaths.h"

#include <QByteArray>
#include <QDataStream>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QVector>
#include <QtTest>

#include <functional>

constexpr quint16 port = 52316;

/// The wire format: both lengths and the text, all big-endian.
inline QByteArray frame(const QString &text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << quint16(4 + 2 * text.size()) << quint32(2 * text.size());
    for (const QChar c : text) {
        stream << quint16(c.unicode());
    }
    return bytes;
}

/// Serves the connections it gets one after another; the last answer is repeated for ever.
class Server : public QObject
{
public:
    struct Reply
    {
        QByteArray bytes;
        bool byteAtATime = false;
        bool close = true;
    };

    Server()
    {
        QObject::connect(&server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = server.nextPendingConnection()) {
                QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                times.append(clock.elapsed());
                answer(socket, replies.value(qMin(times.size(), replies.size()) - 1));
            }
        });
        clock.start();
    }

    bool listen() { return server.listen(QHostAddress(QStringLiteral("127.0.0.9")), port); }
    void stop() { server.close(); }

    QVector<Reply> replies;
    QVector<qint64> times; ///< when each connection came, in milliseconds
    std::function<void(int)> onAnswered = [](int) {
    }; ///< called with the number of connections, before the close

private:
    void answer(QTcpSocket *socket, const Reply &reply)
    {
        if (reply.byteAtATime) {
            drip(socket, reply);
            return;
        }
        socket->write(reply.bytes);
        finish(socket, reply);
    }

    void drip(QTcpSocket *socket, const Reply &reply)
    {
        auto *pace = new QTimer(socket);
        QObject::connect(pace, &QTimer::timeout, socket,
                         [this, socket, reply, pace, place = 0]() mutable {
                             if (place == reply.bytes.size()) {
                                 pace->stop();
                                 finish(socket, reply);
                                 return;
                             }
                             socket->write(reply.bytes.constData() + place, 1);
                             socket->flush();
                             ++place;
                         });
        pace->start(1);
    }

    void finish(QTcpSocket *socket, const Reply &reply) const
    {
        onAnswered(times.size());
        if (reply.close) {
            socket->disconnectFromHost();
        }
    }

    QTcpServer server;
    QElapsedTimer clock;
};

inline QVector<Server::Reply> repliesOf(const QStringList &texts)
{
    QVector<Server::Reply> replies;
    for (const QString &text : texts) {
        replies += Server::Reply{frame(text)};
    }
    return replies;
}

/// The program under test; killed when the test ends before it does.
class Agent
{
public:
    explicit Agent(const QStringList &arguments)
    {
        process.start(TestPaths::helper(QStringLiteral(LUMIKEY_AGENT_PATH)), arguments);
    }
    ~Agent()
    {
        process.kill();
        process.waitForFinished();
    }

    /// Its exit code; -1 when it does not end by itself.
    int exitCode()
    {
        const bool ended =
            QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, patienceMs);
        const bool normal = process.error() == QProcess::UnknownError
                            && process.exitStatus() == QProcess::NormalExit;
        return ended && normal ? process.exitCode() : -1;
    }

    /// Everything it has written so far, with the line ends of Unix.
    QString output() { return text(outputBytes += process.readAllStandardOutput()); }
    QString errors() { return text(errorBytes += process.readAllStandardError()); }

    bool running() const { return process.state() == QProcess::Running; }

private:
    static QString text(const QByteArray &bytes)
    {
        return QString::fromUtf8(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }

    QProcess process;
    QByteArray outputBytes;
    QByteArray errorBytes;
};
