#pragma once

#include <QAbstractEventDispatcher>
#include <QVector>

/// What waits to happen once, without waiting for it.
namespace SingleShots {

/// The times, in milliseconds, of everything that waits.
inline QVector<int> pending()
{
    QVector<int> times;
    auto *const dispatcher = QAbstractEventDispatcher::instance();
    for (QObject *const child : dispatcher->children()) {
        for (const auto &timer : dispatcher->registeredTimers(child)) {
            times += timer.interval;
        }
    }
    return times;
}

/// The times of what an action leaves behind to happen later.
template<class Action> QVector<int> leftBy(const Action &action)
{
    const QVector<int> before = pending();
    action();
    QVector<int> added = pending();
    for (const int time : before) {
        added.removeOne(time);
    }
    return added;
}

} // namespace SingleShots
