#pragma once

#include <QString>

/// Compares two version texts part by part; parts are separated by ".", and one that is not a
/// number counts as 0.
/// @return below 0 when @p latest is newer, 0 when they are equal, above 0 when @p installed is
///         newer: the difference of the first parts that differ, else of the numbers of parts
qint64 compareVersions(const QString &installed, const QString &latest);

/// What a comparison says of the installed version.
enum class VersionVerdict {
    UpdateWaits, ///< there is a newer one
    Latest,
    Newer, ///< than the latest that is told of
};

/// @param comparison a result of compareVersions()
VersionVerdict versionVerdict(qint64 comparison);
