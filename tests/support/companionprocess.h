#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

/// The companion application as the program sees it: another process with a segment.
class CompanionProcess
{
public:
    CompanionProcess();
    /// Ends it; the segment goes with it.
    ~CompanionProcess();
    Q_DISABLE_COPY(CompanionProcess)

    /// Publishes a text as the companion writes it, in a segment of its own size or in the present
    /// one when it fits there.
    bool publish(const QString &text);
    /// Publishes any bytes in a new segment.
    bool publishBytes(const QByteArray &bytes, int segmentSize);

    bool lock();
    bool unlock();
    bool withdraw();
    /// Ends it without a chance to give anything back.
    void kill();
    /// The same without waiting until it has ended.
    void startToKill();

    /// What it said to the last command that failed.
    const char *error() const { return lastError.constData(); }

private:
    bool obey(const QByteArray &command);

    QProcess process;
    int size = 0;
    QByteArray lastError;
};
