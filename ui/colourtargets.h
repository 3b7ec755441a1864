#pragma once

#include "app/settingskeys.h"
#include "lighting/lightingstate.h"
#include "ui/keyboardpictures.h"

#include "ui_mainwindow.h"

#include <array>
#include <optional>

/// What a colour can be chosen for. The values are the numbers by which SetZoneColor() is called.
enum class ColourTarget { Left = 1, Centre = 2, Right = 3, Keyboard = 4, Stripe = 5 };

/// Where a target is met: on the wire, in the settings, in the state and in the window.
struct ColourTargetRow
{
    std::optional<Zone> zone; ///< whose word it sets; none: those of the keyboard's three zones
    const Key<QString> *key;  ///< under which its colour text is stored
    QString LightingState::*colour;
    QPushButton *Ui_MainWindow::*opener; ///< opens the picker for it
    const char *prompt;                  ///< over the picker
    KeyboardPicture picture;
    QLabel *Ui_MainWindow::*preview; ///< shows the picture
};

/// In the order of ColourTarget.
inline constexpr std::array<ColourTargetRow, 5> colourTargets{{
    {Zone::Left, &SettingKeys::leftColour, &LightingState::leftZoneColor,
     &Ui_MainWindow::colorpick1,
     QT_TRANSLATE_NOOP("MainWindow", "Select Left Keyboard Zone Color:"), KeyboardPicture::Left,
     &Ui_MainWindow::keyboard_left},
    {Zone::Centre, &SettingKeys::centreColour, &LightingState::centerZoneColor,
     &Ui_MainWindow::colorpick2,
     QT_TRANSLATE_NOOP("MainWindow", "Select Center Keyboard Zone Color:"), KeyboardPicture::Centre,
     &Ui_MainWindow::keyboard_center},
    {Zone::Right, &SettingKeys::rightColour, &LightingState::rightZoneColor,
     &Ui_MainWindow::colorpick3,
     QT_TRANSLATE_NOOP("MainWindow", "Select Right Keyboard Zone Color:"), KeyboardPicture::Right,
     &Ui_MainWindow::keyboard_right},
    {std::nullopt, &SettingKeys::singleColour, &LightingState::singleZoneColor,
     &Ui_MainWindow::colorpick4, QT_TRANSLATE_NOOP("MainWindow", "Select Keyboard Color:"),
     KeyboardPicture::Full, &Ui_MainWindow::keyboard_full},
    {Zone::Stripe, &SettingKeys::stripeLid, &LightingState::stripeLidColor,
     &Ui_MainWindow::colorpick5, QT_TRANSLATE_NOOP("MainWindow", "Select Stripe / LCD Lid Color:"),
     KeyboardPicture::Stripe, &Ui_MainWindow::stripe_led},
}};

/// The three that share the keyboard, each with a zone of its own.
inline constexpr std::array<ColourTarget, 3> keyboardZones{ColourTarget::Left, ColourTarget::Centre,
                                                           ColourTarget::Right};

constexpr const ColourTargetRow &rowOf(ColourTarget target)
{
    return colourTargets.at(static_cast<std::size_t>(target) - 1);
}

/// The target of a number that a caller by name may give; nothing where there is none.
constexpr std::optional<ColourTarget> colourTarget(int number)
{
    if (number < 1 || number > static_cast<int>(colourTargets.size())) {
        return std::nullopt;
    }
    return static_cast<ColourTarget>(number);
}
