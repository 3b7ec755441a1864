// Stands in for the companion application: publishes a shared-memory segment as it does, from a
// process of its own. Obeys one command a line on standard input and answers each with "ok" or with
// what went wrong; ends with its input.
//
//   create SIZE   a new segment in place of the old one
//   write HEX     bytes at the start of the segment, under its lock
//   lock, unlock  the segment's lock
//   withdraw      no segment any more

#include <QByteArray>
#include <QSharedMemory>
#include <QString>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

namespace {

bool create(QSharedMemory &memory, int size)
{
    memory.detach();
    if (memory.create(size)) {
        return true;
    }
    // Left behind by one that was killed: it goes with the last who leaves it.
    return memory.attach() && memory.detach() && memory.create(size);
}

bool write(QSharedMemory &memory, const QByteArray &bytes)
{
    if (bytes.size() > memory.size() || !memory.lock()) {
        return false;
    }
    std::memcpy(memory.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return memory.unlock();
}

bool obey(QSharedMemory &memory, const QByteArray &command, const QByteArray &argument)
{
    if (command == "create") {
        return create(memory, argument.toInt());
    }
    if (command == "write") {
        return write(memory, QByteArray::fromHex(argument));
    }
    if (command == "lock") {
        return memory.lock();
    }
    if (command == "unlock") {
        return memory.unlock();
    }
    return command == "withdraw" && memory.detach();
}

} // namespace

int main()
{
    QSharedMemory memory(QStringLiteral("DashportSharedMem"));
    for (std::string text; std::getline(std::cin, text);) {
        const QList<QByteArray> words = QByteArray::fromStdString(text).trimmed().split(' ');
        const bool done = obey(memory, words.value(0), words.value(1));
        std::puts(done ? "ok" : qPrintable(QStringLiteral("failed: ") + memory.errorString()));
        std::fflush(stdout);
    }
    return 0;
}
