#pragma once

#include "lighting/autodim.h"
#include "system/versions.h"

class QWidget;

/// A modal box over the window: frameless, in the program's own look.
struct Message
{
    const char *title;
    const char *text;
};

/// Every question and notice, to the letter; some of their oddities look like mistakes and stay.
namespace Messages {
inline constexpr Message installFirmwareLibrary{
    "Control Center not installed",
    "You do not seem to be using Control Center. For this software to work we need to install a "
    "small dll for it to work. Can we install it?.\n"};

inline constexpr const char *updateTitle = "Update Information";
inline constexpr Message updateNow{
    updateTitle, "There is an update for this software! Do you want to update now?.\n"};
inline constexpr Message updateNeedsRights{
    updateTitle, "There is an update for this software! But to be able to update we need Admin "
                 "access. Do you want to run this app with admin access so that we can update it "
                 "automatically?"};

inline constexpr Message uninstallNeedsRights{
    "Monitor", "To uninstall Lumikey we need admin access.\nDo you allow it?\nLumikey will restart "
               "with admin access, after that you should click the uninstall button again."};
inline constexpr Message perKeyNeedsRights{
    "Per Key Install", "To install the Per-Key RGB App we need Admin access, do you allow it?"};

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
        return {"There is an update! Click the update button.", nullptr};
    case VersionVerdict::Latest:
        return {"You are running the latest version, there is no update.",
                "You are running the latest version, there is no update.\n"};
    case VersionVerdict::Newer:
        break;
    }
    return {"Your version is newer then the official latest! Are you a beta tester?",
            "Your version is newer then the official latest! You are probably a beta tester.\n"};
}

/// What stands behind the value of the brightness label while auto-dim is on.
constexpr const char *brightnessSuffix(DimPhase phase)
{
    switch (phase) {
    case DimPhase::Watching:
        return "% (Auto dim mode)";
    case DimPhase::Dimming:
        return "% (dimming down)";
    case DimPhase::Dimmed:
        break;
    }
    return "% (dimmed)";
}
} // namespace Messages

/// Asks with Yes and No; true only for Yes. No is the button that Enter presses: every question is
/// about something that is installed or removed, and some come unasked for. Blocks until there is
/// an answer.
bool ask(QWidget *window, const Message &question);

/// Tells, with OK. Blocks until the box is closed.
void tell(QWidget *window, const Message &notice);
