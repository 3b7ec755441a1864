#include "app/connectionmessage.h"

#include <QDataStream>

namespace {

constexpr auto streamVersion = QDataStream::Qt_5_6;
constexpr int checksumSize = sizeof(quint16);

quint16 checksumOf(const QByteArray &bytes)
{
    return qChecksum(bytes.constData(), static_cast<uint>(bytes.size()), Qt::ChecksumIso3309);
}

} // namespace

QByteArray encodeConnectionMessage(const QString &serverName, const ConnectionMessage &message)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << serverName.toLatin1() << message.connectionType << message.instanceNumber;
    stream << checksumOf(bytes);
    return bytes;
}

std::optional<ConnectionMessage> decodeConnectionMessage(const QByteArray &bytes,
                                                         const QString &serverName)
{
    const QByteArray fields = bytes.left(bytes.size() - checksumSize);
    QDataStream stream(fields);
    stream.setVersion(streamVersion);
    QByteArray name;
    ConnectionMessage message;
    stream >> name >> message.connectionType >> message.instanceNumber;

    QDataStream checksumStream(bytes.right(checksumSize));
    checksumStream.setVersion(streamVersion);
    quint16 checksum = 0;
    checksumStream >> checksum;

    // The name ends at its first zero byte.
    if (stream.status() != QDataStream::Ok || serverName != QLatin1String(name.constData())
        || checksum != checksumOf(fields)) {
        return std::nullopt;
    }
    return message;
}
