#pragma once

#include <QByteArray>
#include <QSharedMemory>

#include <optional>

class Platform;

/// The brightness that the companion application publishes in a segment of shared memory. Nothing
/// of the segment is kept between two looks, so that the companion may end and make it anew.
class CompanionReader
{
public:
    /// @param platform not owned; must live longer than the reader
    explicit CompanionReader(Platform &platform);

    /// Looks into the segment once. Never waits: a companion that holds its lock, or is not there,
    /// leaves a line in the log and has published nothing.
    /// @return a number, not necessarily of 0..100, that is not the one of the look before
    std::optional<qint32> newBrightness();

private:
    QByteArray segmentContents();

    Platform &platform;
    QSharedMemory segment;
    qint32 last = 9999; ///< what was published last; at first a number that nobody publishes
};
