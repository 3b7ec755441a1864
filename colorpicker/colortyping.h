#pragma once

#include <QString>

#include <optional>

/// What becomes of a colour text while its user types, where each letter is taken at once and the
/// field is written anew.
namespace ColorTyping {

/// A field's text with its cursor, 0..size.
struct Typed
{
    QString text;
    int cursor;
};

/// An RGB text in which the number at the cursor is missing, with the blanks that keep its
/// neighbours apart; made uniform otherwise. Nothing where a number is there, or none is missing.
std::optional<Typed> withGap(const Typed &typed);

/// A HEX text into which a colour with a "#" before it was put is that colour alone, the cursor at
/// its end; any other stays.
Typed withoutHash(const Typed &typed);

/// The cursor in a text that was written anew as @p newSize characters: what was behind it is
/// behind it still, be a leading zero gone, or three HEX digits six.
int cursorAfterRewriting(const Typed &typed, int newSize);

} // namespace ColorTyping
