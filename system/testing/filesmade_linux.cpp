#include "system/testing/filesmade.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>

FilesMade::FilesMade(const QString &folder)
    : watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (::inotify_add_watch(watch, QFile::encodeName(folder).constData(), IN_CREATE) < 0) {
        qFatal("cannot watch %s", qPrintable(folder));
    }
}

FilesMade::~FilesMade()
{
    ::close(watch);
}

QStringList FilesMade::taken() const
{
    QStringList names;
    std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t size = ::read(watch, buffer.data(), buffer.size());
        if (size <= 0) {
            return names;
        }
        for (ssize_t at = 0; at < size;) {
            inotify_event event = {};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            names += QFile::decodeName(buffer.data() + at + sizeof event);
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
}
