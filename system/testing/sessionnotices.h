#pragma once

#include <QtGlobal>

/// What Windows tells a program's window of the user's session.
namespace SessionNotices {

/// Asks whether the session may end, as at a log-off; the answer.
bool mayEnd(quintptr window);

/// Tells what has come of the question: the session ends, or somebody else refused.
void ends(quintptr window, bool really);

/// Tells that the user has locked or unlocked the session. Returns at once.
void locked(quintptr window);
void unlocked(quintptr window);

} // namespace SessionNotices
