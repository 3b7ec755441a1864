#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

class Platform;

/// Tells when the user has unlocked the session. The keys of the password reach no program, so
/// nothing else says that somebody is there.
class UnlockFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// @param platform not owned; must live longer than the filter
    explicit UnlockFilter(const Platform &platform);
    Q_DISABLE_COPY(UnlockFilter)

    /// Takes nothing out of the stream.
    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;

signals:
    void unlocked();

private:
    const Platform &platform;
};
