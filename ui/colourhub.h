#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QAbstractButton;

/// The hub of a colour wheel: the wheel's picture is hollow in its middle, and the button's icon
/// fills it with the colour that the wheel stands for.

/// Edge of the hub in a wheel of that edge, both in pixels.
constexpr int hubEdge(int wheelEdge)
{
    return wheelEdge * 9 / 20;
}

/// Colour of an RGB text; invalid for a text that is none, an empty one included.
QColor hubColour(const QString &rgbText);

/// A disc in that colour, which leaves the hub hollow while the button is disabled: there is no
/// light then. Null, and the hub hollow, for an invalid colour.
QIcon hubIcon(const QColor &colour);

/// Fills the hub of a wheel with the colour of an RGB text as it was chosen: the picture beside it
/// tells the brightness. Hollow for a text that is none.
void showInHub(QAbstractButton &wheel, const QString &rgbText);
