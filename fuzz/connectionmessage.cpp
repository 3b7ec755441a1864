#include "app/connectionmessage.h"

#include "fuzz/input.h"
#include "fuzz/require.h"

namespace {

const QString ownName = QStringLiteral("3ECdAM8E8xxbGHGZIIAdzYWnynVE6aNONksqC3CSYqQ=");

bool isSame(const std::optional<ConnectionMessage> &read, const ConnectionMessage &message)
{
    return read && read->connectionType == message.connectionType
           && read->instanceNumber == message.instanceNumber;
}

void checkRoundTrip(const ConnectionMessage &message, int bit)
{
    const QByteArray bytes = encodeConnectionMessage(ownName, message);
    require(isSame(decodeConnectionMessage(bytes, ownName), message), "what is sent is read");
    require(!decodeConnectionMessage(bytes, ownName + QLatin1Char('x')), "others' are not read");

    QByteArray wrong = bytes;
    const int place = bit / 8 % wrong.size();
    wrong[place] = static_cast<char>(wrong.at(place) ^ (1 << bit % 8));
    require(!decodeConnectionMessage(wrong, ownName), "a wrong bit is seen");
}

void checkBytes(const QByteArray &bytes)
{
    const auto read = decodeConnectionMessage(bytes, ownName);
    if (!read) {
        return;
    }
    // A length of the name, the name, a type, a number and a checksum.
    require(bytes.size() >= 4 + ownName.size() + 1 + 4 + 2, "a message has all its fields");
    require(bytes.mid(4).startsWith(ownName.toLatin1()), "a message has the name");
    require(
        isSame(decodeConnectionMessage(encodeConnectionMessage(ownName, *read), ownName), *read),
        "what is read can be sent");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const quint8 kind = input.takeByte();
    if (kind % 3 == 0) {
        const quint8 type = input.takeByte();
        const quint32 number = input.takeNumber();
        checkRoundTrip({type, number}, static_cast<int>(input.takeNumber() % 4096));
        return 0;
    }
    QByteArray bytes = input.takePart();
    if (kind % 3 == 1) { // a right checksum, so that the fields are looked at
        const quint16 checksum =
            qChecksum(bytes.constData(), static_cast<uint>(bytes.size()), Qt::ChecksumIso3309);
        bytes.append(static_cast<char>(checksum >> 8)).append(static_cast<char>(checksum & 0xff));
    }
    checkBytes(bytes);
    return 0;
}
