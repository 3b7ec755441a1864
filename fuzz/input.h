#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// One input of a fuzzer, taken apart from its front. What is missing at the end reads as zero.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : bytes(reinterpret_cast<const char *>(data), static_cast<int>(size))
    {}

    quint8 takeByte()
    {
        const quint8 first = bytes.isEmpty() ? quint8{0} : static_cast<quint8>(bytes.at(0));
        bytes.remove(0, 1);
        return first;
    }

    /// Four bytes, the first one highest.
    quint32 takeNumber()
    {
        quint32 number = 0;
        for (int i = 0; i < 4; ++i) {
            number = number << 8 | takeByte();
        }
        return number;
    }

    /// Everything up to the first line that is only "====", which is dropped, or to the end.
    QByteArray takePart()
    {
        const QByteArray border("\n====\n");
        const int end = bytes.indexOf(border);
        const QByteArray part = end < 0 ? bytes : bytes.left(end);
        bytes = end < 0 ? QByteArray() : bytes.mid(end + border.size());
        return part;
    }

    /// The same as text, from UTF-8.
    QString takeText() { return QString::fromUtf8(takePart()); }

private:
    QByteArray bytes;
};

/// What a target exports under the names that the fuzzer knows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
