#pragma once

#include "lighting/devicewords.h"

#include <QString>

/// What the keyboard is to show: the words that go to the agent and the colour texts behind them.
struct LightingState
{
    /// Device words of the four zones and the effect word, in decimal.
    QString leftWord = wordText(DeviceWords::wake);
    QString centreWord = wordText(DeviceWords::wake);
    QString rightWord = wordText(DeviceWords::wake);
    QString stripeWord = wordText(DeviceWords::wake);
    QString effectWord = QStringLiteral("0");

    /// Colour texts, "red green blue" in decimal; empty until one is chosen or loaded.
    QString leftZoneColor;
    QString centerZoneColor;
    QString rightZoneColor;
    QString singleZoneColor; ///< of the whole keyboard in single-colour mode
    QString stripeLidColor;

    /// The whole keyboard shows singleZoneColor.
    bool singleColorSelected = false;

    /// The word of one zone.
    QString &wordOf(Zone zone);

    /// Sets all four zone words to black.
    void blacken();
};
