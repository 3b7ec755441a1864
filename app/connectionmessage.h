#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// What a later start tells the primary copy first of all.
struct ConnectionMessage
{
    enum Type : quint8 {
        InvalidConnection = 0, ///< never sent
        NewStart = 1,          ///< a process that will leave
        SecondaryStart = 2,    ///< a process that stays
    };

    quint8 connectionType = InvalidConnection; ///< a Type, or any other number that was sent
    quint32 instanceNumber = 0;                ///< the sender's
};

/// The bytes to send: the name, both fields, and a checksum over them.
QByteArray encodeConnectionMessage(const QString &serverName, const ConnectionMessage &message);

/// Reads all that arrived as one message; nothing when it is malformed, when it is for another name
/// or when its checksum is wrong.
/// @param bytes may hold anything; its last two are taken as the checksum
std::optional<ConnectionMessage> decodeConnectionMessage(const QByteArray &bytes,
                                                         const QString &serverName);
