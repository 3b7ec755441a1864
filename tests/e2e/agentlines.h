#pragma once

#include "tests/support/lightinglines.h"

#include <QString>

/// What servers send in the tests of the agent, and what it prints of that.
namespace AgentLines {

inline const QString normalText = QStringLiteral("4026597120,4043309056,4060086272,4076863488,0");
inline const QString effectText =
    QStringLiteral("4026597120,4043309056,4060086272,4076863488,2952790016");
inline const QString &wakeText = LightingLines::wake;
inline const QString &offText = LightingLines::off;
inline const QString dimmedText =
    QStringLiteral("3758108672,3758108672,3758108672,3758108672,268607488");

inline const QString normalLine =
    QStringLiteral("normal: left #ff0000 4026597120, centre #000000 4043309056, "
                   "right #000000 4060086272, stripe #000000 4076863488, "
                   "effect None\n");
inline const QString effectLine =
    QString(normalLine).replace(QStringLiteral("None"), QStringLiteral("Wave"));
inline const QString wakeLine =
    QStringLiteral("wake: left raw 3758616583, centre raw 3758616583, "
                   "right raw 3758616583, stripe raw 3758616583, effect None\n");
inline const QString offLine =
    QStringLiteral("off: left raw 3758108672, centre raw 3758108672, "
                   "right raw 3758108672, stripe raw 3758108672, effect None\n");
inline const QString dimmedLine =
    QString(offLine).replace(QStringLiteral("None"), QStringLiteral("Breath"));

} // namespace AgentLines
