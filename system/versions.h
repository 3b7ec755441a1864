#pragma once

#include <QString>

#include <array>

/// Compares two version texts part by part; parts are separated by ".", and one that is not a
/// number counts as 0.
/// @return below 0 when @p latest is newer, 0 when they are equal, above 0 when @p installed is
///         newer: the difference of the first parts that differ, else of the numbers of parts
qint64 compareVersions(const QString &installed, const QString &latest);

/// What the user is told of a comparison.
struct UpdateVerdict
{
    bool updateWaits;
    const char *description; ///< stays on the About page
    const char *notice;      ///< answers a check the user asked for; none where an update waits
};

/// One for each sign of a comparison: below, at and above 0.
inline constexpr std::array<UpdateVerdict, 3> updateVerdicts{{
    {true, "There is an update! Click the update button.", nullptr},
    {false, "You are running the latest version, there is no update.",
     "You are running the latest version, there is no update.\n"},
    {false, "Your version is newer then the official latest! Are you a beta tester?",
     "Your version is newer then the official latest! You are probably a beta tester.\n"},
}};

/// @param comparison a result of compareVersions()
const UpdateVerdict &updateVerdict(qint64 comparison);
