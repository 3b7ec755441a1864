#pragma once

#include <QtGlobal>

#include <memory>

/// The machine's sleep as programs hear of it, made by a process from outside. One implementation
/// a system, chosen by the build.
class SleepNotices
{
public:
    /// How a notice reaches each top-level window. On a system where programs hear of it otherwise
    /// these are the same.
    enum class Delivery {
        Asked,  ///< one window after the other, each waited for
        Told,   ///< all at once, at the window's next look for messages
        Queued, ///< all at once, behind what waits in the queue
    };

    /// Programs that are started from now on hear the notices.
    SleepNotices();
    ~SleepNotices();
    Q_DISABLE_COPY(SleepNotices)

    /// Tells several times of one resume, as the system does. Returns at once.
    void resume(Delivery delivery);
    /// Tells that the machine goes to sleep, and of other things that are no resume.
    void suspend();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
