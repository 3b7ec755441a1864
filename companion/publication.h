#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace companion {

/// What to publish, one after the other, so that a brightness is taken over in any case. A reader
/// passes over the number that it read last, and whoever has moved the slider since would wait in
/// vain for the same one again; so another comes first, one percent away.
/// @param brightness, and what is returned, 0..100
QVector<int> publications(int brightness);

/// A companion's text with another brightness; its other fields stay as they are.
/// @param text may be empty, and may have one field alone
QString withBrightness(const QString &text, int brightness);

/// The text as a segment holds it; companionText() reads it.
QByteArray segmentBytes(const QString &text);

} // namespace companion
