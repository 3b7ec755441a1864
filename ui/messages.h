#pragma once

#include "lighting/autodim.h"
#include "system/versions.h"

#include <QtGlobal>

class QWidget;

/// A modal box over the window: frameless, in the program's own look.
struct Message
{
    const char *title;
    const char *text;
};

/// Every question and notice in English, to the letter; some of their oddities look like mistakes
/// and stay. What shows them translates them.
namespace Messages {
inline constexpr Message installFirmwareLibrary{
    QT_TRANSLATE_NOOP("MainWindow", "Control Center not installed"),
    QT_TRANSLATE_NOOP("MainWindow", "You do not seem to be using Control Center. For this software "
                                    "to work we need to install a "
                                    "small dll for it to work. Can we install it?.\n")};

inline constexpr const char *updateTitle = QT_TRANSLATE_NOOP("MainWindow", "Update Information");
inline constexpr Message updateNow{
    updateTitle,
    QT_TRANSLATE_NOOP("MainWindow",
                      "There is an update for this software! Do you want to update now?.\n")};
inline constexpr Message updateNeedsRights{
    updateTitle,
    QT_TRANSLATE_NOOP(
        "MainWindow",
        "There is an update for this software! But to be able to update we need Admin "
        "access. Do you want to run this app with admin access so that we can update it "
        "automatically?")};

inline constexpr Message uninstallNeedsRights{
    QT_TRANSLATE_NOOP("MainWindow", "Monitor"),
    QT_TRANSLATE_NOOP(
        "MainWindow",
        "To uninstall Lumikey we need admin access.\nDo you allow it?\nLumikey will restart "
        "with admin access, after that you should click the uninstall button again.")};
inline constexpr Message perKeyNeedsRights{
    QT_TRANSLATE_NOOP("MainWindow", "Per Key Install"),
    QT_TRANSLATE_NOOP("MainWindow",
                      "To install the Per-Key RGB App we need Admin access, do you allow it?")};

/// What the user is told of a comparison of versions.
struct VersionTexts
{
    const char *description; ///< stays on the About page
    const char *notice; ///< answers a check that the user asked for; null where a question does
};

constexpr VersionTexts versionTexts(VersionVerdict verdict)
{
    switch (verdict) {
    case VersionVerdict::UpdateWaits:
        return {QT_TRANSLATE_NOOP("MainWindow", "There is an update! Click the update button."),
                nullptr};
    case VersionVerdict::Latest:
        return {QT_TRANSLATE_NOOP("MainWindow",
                                  "You are running the latest version, there is no update."),
                QT_TRANSLATE_NOOP("MainWindow",
                                  "You are running the latest version, there is no update.\n")};
    case VersionVerdict::Newer:
        break;
    }
    return {
        QT_TRANSLATE_NOOP("MainWindow",
                          "Your version is newer then the official latest! Are you a beta tester?"),
        QT_TRANSLATE_NOOP(
            "MainWindow",
            "Your version is newer then the official latest! You are probably a beta tester.\n")};
}

// What stands over the slider; %1 is its value. Whole texts, because the sign of percent has
// another place in some languages.
inline constexpr const char *brightness = QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1%");
inline constexpr const char *brightnessFromCompanion =
    QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1% (set by Dashport)");
inline constexpr const char *brightnessUnderEffects =
    QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1% (disabled for Effects)");

/// The same while auto-dim is on.
constexpr const char *brightnessText(DimPhase phase)
{
    switch (phase) {
    case DimPhase::Watching:
        return QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1% (Auto dim mode)");
    case DimPhase::Dimming:
        return QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1% (dimming down)");
    case DimPhase::Dimmed:
        break;
    }
    return QT_TRANSLATE_NOOP("MainWindow", "Brightness Level: %1% (dimmed)");
}
} // namespace Messages

/// Asks with Yes and No; true only for Yes. No is the button that Enter presses: every question is
/// about something that is installed or removed, and some come unasked for. Blocks until there is
/// an answer.
bool ask(QWidget *window, const Message &question);

/// Tells, with OK. Blocks until the box is closed.
void tell(QWidget *window, const Message &notice);
