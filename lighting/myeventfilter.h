#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

class Platform;

/// Tells when the machine has resumed from sleep and the keyboard controller has had time to
/// settle. The system tells of one resume several times, once to each top-level window. Notices
/// that wait in the queue when the time to settle has passed, or come within half a second of the
/// one before, therefore belong to the resume that was told already.
class MyEventFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// @param platform not owned; must live longer than the filter
    explicit MyEventFilter(Platform &platform);
    ~MyEventFilter() override;
    Q_DISABLE_COPY(MyEventFilter)

    /// Takes the system's notices of a resume out of the stream. The first of a resume blocks the
    /// thread for 10 s.
    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;

signals:
    /// The machine has resumed and has settled.
    void emitawake();

private:
    void resumed();

    Platform &platform;
    bool settling = false;
    QTimer sameResume; ///< runs while a notice belongs to the resume before
};
