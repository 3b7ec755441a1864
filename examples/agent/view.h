#pragma once

#include "examples/agent/answer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace agent {

/// One line without a line end: the kind, each zone's colour and word, the effect.
QString plainLine(const Answer &answer);

/// One JSON object without a line end:
/// {"effect":{"name":"Wave","word":2952790016},"kind":"normal","words":[four numbers],
///  "zones":{"left":{"b":0,"g":0,"r":255},"centre":null,...}}
/// kind is "off", "wake" or "normal"; a zone is null when its word holds no colour for that place;
/// an effect in no table has the name null.
QByteArray jsonLine(const Answer &answer);

/// The picture for a terminal, at most 79 columns: a block a zone with its colour and word below,
/// the kind of line and the effect. `title` heads it, `footer` ends it when it is not empty. With
/// `colours` the lines hold 24-bit SGR sequences and each ends with the colours reset; without,
/// there are no escape sequences and no blocks. The number of lines depends on the arguments'
/// presence only, never on the answer.
QStringList panel(const Answer &answer, const QString &title, const QString &footer, bool colours);

/// What to send to a terminal to draw `lines` over a picture of `linesAbove` lines that ends just
/// above the cursor (0: draw afresh below). The cursor ends on the line below the picture.
QByteArray drawInPlace(const QStringList &lines, int linesAbove);

} // namespace agent
