#include "tests/support/serviceclient.h"

#include <QEventLoop>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

QByteArray ServiceClient::readAnswer(int timeoutMs, quint16 port)
{
    QTcpSocket socket;
    QEventLoop loop;
    // disconnected() alone is not the end: what arrived with it may still have to be read.
    QObject::connect(&socket, &QTcpSocket::stateChanged, &loop, [&loop](auto state) {
        if (state == QAbstractSocket::UnconnectedState) {
            loop.quit();
        }
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    socket.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), port);
    loop.exec();
    return socket.readAll();
}

QString ServiceClient::lineOf(const QByteArray &answer)
{
    const QString malformed = QStringLiteral("malformed: ") + QString::fromLatin1(answer.toHex());
    const auto byteAt = [&](int offset) {
        return static_cast<uchar>(answer.at(offset));
    };
    if (answer.size() < 6) {
        return malformed;
    }
    const int following = byteAt(0) << 8 | byteAt(1);
    const qint64 textBytes = qint64{byteAt(2)} << 24 | byteAt(3) << 16 | byteAt(4) << 8 | byteAt(5);
    if (following != answer.size() - 2 || textBytes != answer.size() - 6 || textBytes % 2 != 0) {
        return malformed;
    }
    QString line;
    for (int offset = 6; offset < answer.size(); offset += 2) {
        line += QChar(static_cast<ushort>(byteAt(offset) << 8 | byteAt(offset + 1)));
    }
    return line;
}
