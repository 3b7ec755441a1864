#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QVector>

class QTcpSocket;

/// An update server on a free port of the loopback, in the thread that made it: whoever waits for
/// it must run the event loop. Every request is given the same answer.
class VersionServer : public QObject
{
    Q_OBJECT

public:
    /// What becomes of the connection once the answer is written.
    enum class Then {
        Close,
        KeepOpen,
    };

    VersionServer();

    /// Scheme, host and port, as the branding file names them.
    QString address() const;

    /// A whole answer with its length.
    void answerWith(const QByteArray &body, const QByteArray &status = "200 OK",
                    const QByteArray &headers = {});

    QByteArray answer; ///< written as it is
    Then then = Then::Close;
    int pieceBytes = 0;           ///< when above 0, the answer goes out in pieces of this size
    int pauseMs = 0;              ///< between two pieces
    QVector<QByteArray> requests; ///< their heads, complete

private slots:
    void welcome();

private:
    void read(QTcpSocket *client, QByteArray &head);
    void write(QTcpSocket *client, int from);

    QTcpServer server;
};
