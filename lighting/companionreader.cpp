#include "lighting/companionreader.h"

#include "lighting/companion.h"
#include "system/platform.h"

#include <QDebug>

#include <algorithm>

namespace {

/// Enough for any text that the companion has; whoever publishes more does not make the window
/// wait for it.
constexpr int longestCopy = 1024 * 1024;

} // namespace

CompanionReader::CompanionReader(Platform &system)
    : platform(system)
    , segment(companionSegmentName)
{
    // The same segment by the name that takes no lock along: QSharedMemory would wait for the lock
    // where the platform does not.
    segment.setNativeKey(segment.nativeKey());
}

std::optional<qint32> CompanionReader::newBrightness()
{
    const auto published = newCompanionBrightness(companionText(segmentContents()), last);
    last = published.value_or(last);
    return published;
}

QByteArray CompanionReader::segmentContents()
{
    QByteArray contents;
    bool attached = false;
    platform.tryWithSegmentLock(segment.nativeKey(), [&] {
        attached = segment.attach(QSharedMemory::ReadOnly);
        if (attached) {
            contents = QByteArray(static_cast<const char *>(segment.constData()),
                                  std::min(segment.size(), longestCopy));
            segment.detach();
        }
    });
    if (!attached) {
        qDebug("Can\u00B4t attach to memory segment");
    }
    return contents;
}
