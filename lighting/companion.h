#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The key of the companion's segment, by which QSharedMemory finds it.
const QString companionSegmentName = QStringLiteral("DashportSharedMem");

/// The text in the companion's segment: a 32-bit byte length, then UTF-16 code units, both
/// big-endian; whatever follows is not looked at.
/// @return empty when the bytes hold less than the length says, or no whole code units
QString companionText(const QByteArray &segment);

/// The number in the second of the text's fields, separated by ",".
/// @param last what the companion published before
/// @return nothing when there is nothing new: the text is empty, the number is @p last, or the
///         field is "none"; a field that is missing or no number counts as 0
std::optional<qint32> newCompanionBrightness(const QString &text, qint32 last);
