#include "companion/publisher.h"

#include "companion/publication.h"
#include "lighting/companion.h"
#include "system/platform.h"

#include <cstring>

namespace companion {

namespace {

/// A page, the least that a system gives. A companion that starts meanwhile finds room in it.
constexpr int segmentSize = 4096;

constexpr int lockTries = 100;
constexpr int lockPauseMs = 20;

} // namespace

Publisher::Publisher(Platform &system)
    : platform(system)
    , lock(companionSegmentName, 1)
    , segment(companionSegmentName)
{
    // The same segment by the name that takes no lock along: the platform takes it.
    segment.setNativeKey(segment.nativeKey());
}

QString Publisher::publish(int brightness)
{
    QString failure;
    for (int count = 0; count < lockTries; ++count) {
        if (platform.tryWithSegmentLock(segment.nativeKey(),
                                        [&] { failure = write(brightness); })) {
            return failure;
        }
        platform.sleep(lockPauseMs);
    }
    return QStringLiteral("another program keeps the segment locked");
}

QString Publisher::write(int brightness)
{
    // In this order: after a create() in vain an attach() by the native key fails as well.
    if (!segment.isAttached() && !segment.attach() && !segment.create(segmentSize)) {
        return segment.errorString();
    }
    auto *const memory = static_cast<char *>(segment.data());
    const QString before = companionText(QByteArray::fromRawData(memory, segment.size()));
    const QByteArray bytes = segmentBytes(withBrightness(before, brightness));
    if (bytes.size() > segment.size()) {
        return QStringLiteral("the segment is too small for the text");
    }
    std::memcpy(memory, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return {};
}

} // namespace companion
