#include "system/filelock.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned long retryAfterMs = 2;

class HeldLock
{
public:
    HeldLock(QByteArray filePath, int fileDescriptor)
        : path(std::move(filePath))
        , descriptor(fileDescriptor)
    {}
    /// The file goes while the lock is held: whoever waits for it then finds that it is gone.
    ~HeldLock()
    {
        ::unlink(path.constData());
        ::close(descriptor);
    }
    Q_DISABLE_COPY(HeldLock)

private:
    QByteArray path;
    int descriptor;
};

/// Whether the path still names the open file.
bool isSameFile(const QByteArray &path, int descriptor)
{
    struct stat named = {};
    struct stat opened = {};
    return ::stat(path.constData(), &named) == 0 && ::fstat(descriptor, &opened) == 0
           && named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

} // namespace

std::shared_ptr<void> FileLock::acquire(const QString &path, int timeoutMs)
{
    const QByteArray name = QFile::encodeName(path);
    QElapsedTimer waiting;
    waiting.start();
    while (true) {
        const int descriptor =
            ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (descriptor < 0) {
            return nullptr;
        }
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isSameFile(name, descriptor)) {
            return std::make_shared<HeldLock>(name, descriptor);
        }
        ::close(descriptor);
        if (waiting.hasExpired(timeoutMs)) {
            return nullptr;
        }
        QThread::msleep(retryAfterMs);
    }
}
