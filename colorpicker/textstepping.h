#pragma once

#include "colorpicker/colormodel.h"

#include <QString>

#include <optional>

/// Work on one component of a colour text: which one a cursor is in, stepping it, where it stands.
namespace TextStepping {

/// How a field writes its colour.
struct Format
{
    ColorModel model;
    QString separator; ///< between components; empty for HEX
};

/// Characters of one component.
struct Span
{
    int start;
    int length;
};

/// What a step made of a text.
struct Stepped
{
    QString text;
    int cursor; ///< where the cursor belongs in it
};

/// Whether @p text is well-formed and within the limits, so that it can be stepped and selected in.
bool isValid(const QString &text, ColorModel model);

/// Component (0..2) of a HEX text of @p length 3 or 6 at cursor @p position.
int hexComponentAt(int position, int length);

/// Component of a decimal text at cursor @p position: the separators that stand before it.
int decimalComponentAt(const QString &text, int position, const QString &separator);

/// Where component @p index of a valid @p text stands; the index wraps around at both ends.
Span componentSpan(const QString &text, int index, const Format &format);

/// Adds @p delta (1 or -1) to one component of @p text. @param cursor present cursor, which a HEX
/// step leaves alone; a decimal step puts it behind the stepped number. Nothing for an invalid text
/// or a result out of range.
std::optional<Stepped> step(const QString &text, int component, int delta, int cursor,
                            const Format &format);

} // namespace TextStepping
