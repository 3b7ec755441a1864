#include "system/versions.h"

#include <QStringList>

#include <algorithm>

qint64 compareVersions(const QString &installed, const QString &latest)
{
    const QStringList ours = installed.split(QLatin1Char('.'));
    const QStringList theirs = latest.split(QLatin1Char('.'));
    const int common = std::min(ours.size(), theirs.size());
    for (int i = 0; i < common; ++i) {
        // Wide, because the difference of two ints need not be one.
        const qint64 difference = qint64{ours.at(i).toInt()} - theirs.at(i).toInt();
        if (difference != 0) {
            return difference;
        }
    }
    return ours.size() - theirs.size();
}

VersionVerdict versionVerdict(qint64 comparison)
{
    if (comparison > 0) {
        return VersionVerdict::Newer;
    }
    return comparison < 0 ? VersionVerdict::UpdateWaits : VersionVerdict::Latest;
}
