#pragma once

class QFont;
class QString;

/// The least width in pixels at which @p text, wrapped between words, has no more lines than at
/// @p widest: the lines come out even, instead of a last one with a single word.
int evenWidth(const QString &text, const QFont &font, int widest);
