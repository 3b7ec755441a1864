// Publishes brightnesses for Lumikey: the number of each line that it reads. Stands on Qt 5's Core.
#include <QtCore>

#include <cstring>
#include <iostream>
#include <string>

int main()
{
    QSharedMemory segment(QStringLiteral("DashportSharedMem"));
    if (!segment.create(4096) && !segment.attach()) {
        qCritical() << segment.errorString();
        return 1;
    }
    for (std::string line; std::getline(std::cin, line);) {
        const int brightness = qBound(0, QByteArray::fromStdString(line).toInt(), 100);
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly); // big-endian; length and UTF-16
        stream << QStringLiteral(",%1").arg(brightness);
        segment.lock();
        std::memcpy(segment.data(), bytes.constData(), std::size_t(bytes.size()));
        segment.unlock();
    }
}
