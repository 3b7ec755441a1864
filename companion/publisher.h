#pragma once

#include <QSharedMemory>
#include <QString>
#include <QSystemSemaphore>

class Platform;

namespace companion {

/// Publishes in the companion application's segment, as that does: in the one that is there, or in
/// one made for the purpose. What was made goes with this object, unless others have it by then.
class Publisher
{
public:
    /// @param platform not owned; must live longer than the publisher
    explicit Publisher(Platform &platform);

    /// Publishes a brightness, 0..100, under the segment's lock. Waits for a lock that another
    /// process holds, at most two seconds.
    /// @return why it could not be published; empty when it was
    QString publish(int brightness);

private:
    /// What publish() does once it has the lock.
    QString write(int brightness);

    Platform &platform;
    QSystemSemaphore lock; ///< the segment's: there is one for as long as this lives
    QSharedMemory segment;
};

} // namespace companion
