#pragma once

#include <QObject>

#include <functional>

/// Hears from logind, on the system bus, when the machine has resumed from sleep. Where there is no
/// bus or no logind it hears nothing.
class LogindWatch : public QObject
{
    Q_OBJECT

public:
    /// @param resumed called on the thread of this object
    explicit LogindWatch(std::function<void()> resumed);

private slots:
    /// @param start true before the machine goes to sleep, false after it has resumed
    void prepareForSleep(bool start);

private:
    std::function<void()> resumed;
};
