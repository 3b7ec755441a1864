#pragma once

#include <QFrame>
#include <QWidget>

#include <array>

/// Texts and looks of the main window's form, as data: one table a property, every widget by object
/// name. A widget that a property's table does not name has the toolkit's default for it.
namespace formtables {

/// Text of a label, button or field. Start-up replaces some of them.
struct Text
{
    const char *object;
    const char *text;
    bool replacedAtStart = false;
};
inline constexpr std::array texts{
    Text{"Title", "Title", true},
    Text{"label", "Backlight Status"},
    Text{"backlight_on", "Enabled"},
    Text{"backlight_off", "Disabled"},
    Text{"label_2", "Brightness Level", true},
    Text{"label_13", "Single Color Selection"},
    Text{"label_14", "Disabled when Effects are selected!"},
    Text{"label_9", "Left"},
    Text{"label_10", "Center"},
    Text{"label_11", "Right"},
    Text{"label_16", "Disabled when Effects are selected!"},
    Text{"label_15", "Touchpad Stripe LED color"},
    Text{"label_17", "Per Key RGB Keyboard App"},
    Text{"label_8", " Select Keyboard Zone Color:"}, // the leading blank is on purpose
    Text{"label_5", "Selected Color:"},
    Text{"label_6", "RGB:"},
    Text{"label_7", "HEX:"},
    Text{"label_12", "Quick Basic Colors:"},
    Text{"bHex", "Copy Color"},
    Text{"bPasteHex", "Paste Color"},
    Text{"pushButton_2", "Cancel"},
    Text{"pushButton", "Apply Value"},
    Text{"label_4", "Effects:"},
    Text{"CheckBox_AutoDim", "Auto turn off:"},
    Text{"Check_StartwithWindows", "Start with Windows"},
    Text{"Check_CloseHides", "Close button hides instead of closing"},
    Text{"StartHidden", "Start hidden in system tray"},
    Text{"touch_mouse_wake", "Mouse keys will also wake auto dim"},
    Text{"UsePerKeyApp", "User Per-Key RGB CLEVO App"},
    Text{"StartHidden_2", "Enable P75x Stripe LED Control"},
    Text{"pushButton_3", "Uninstall"},
    Text{"label_3", "Software Version"},
    Text{"Label_SoftwareVersion", "Installed Version:", true},
    Text{"Label_SoftwareServerVersion", "Latest Version:", true},
    Text{"Label_SoftwareVersion_desc", "Description:", true},
    Text{"Button_CheckforUpdate", "Check for Update"},
    Text{"Button_Update", "Update"},
};

/// What a screen reader calls a widget that has no text, or whose text says too little.
inline constexpr std::array accessibleNames{
    Text{"minimizeButton", "Minimize"},
    Text{"closeButton", "Close"},
    Text{"horizontalSlider", "Brightness"},
    Text{"keyboard_full", "Keyboard preview"},
    Text{"colorpick4", "Keyboard color"},
    Text{"keyboard_left", "Left zone preview"},
    Text{"colorpick1", "Left zone color"},
    Text{"keyboard_center", "Center zone preview"},
    Text{"colorpick2", "Center zone color"},
    Text{"keyboard_right", "Right zone preview"},
    Text{"colorpick3", "Right zone color"},
    Text{"stripe_led", "Stripe preview"},
    Text{"colorpick5", "Stripe color"},
    Text{"stripe_led_2", "Per-key keyboard picture"},
    Text{"colorpick5_3", "Open the per-key keyboard app"},
    Text{"svSelector", "Saturation and value"},
    Text{"colorSample", "Selected color"},
    Text{"hSelector", "Hue"},
    Text{"leRGB", "RGB color"},
    Text{"leHex", "HEX color"},
    Text{"comboBox_BasicColors", "Quick basic colors"},
    Text{"Combo_Effect", "Effect"},
    Text{"comboDimValue", "Auto turn off after"},
};

/// One entry of a combo box.
struct Item
{
    const char *combo;
    int index;
    const char *text;
};
inline constexpr std::array items{
    Item{"comboBox_BasicColors", 0, "None"},   Item{"comboBox_BasicColors", 1, "Red"},
    Item{"comboBox_BasicColors", 2, "White"},  Item{"comboBox_BasicColors", 3, "Blue"},
    Item{"comboBox_BasicColors", 4, "Cyan"},   Item{"comboBox_BasicColors", 5, "Purple"},
    Item{"comboBox_BasicColors", 6, "Yellow"}, Item{"comboBox_BasicColors", 7, "Green"},
    Item{"comboBox_BasicColors", 8, "Orange"}, Item{"Combo_Effect", 0, "None"},
    Item{"Combo_Effect", 1, "Breath"},         Item{"Combo_Effect", 2, "Cycle"},
    Item{"Combo_Effect", 3, "Dance"},          Item{"Combo_Effect", 4, "Flash"},
    Item{"Combo_Effect", 5, "Random Color"},   Item{"Combo_Effect", 6, "Tempo"},
    Item{"Combo_Effect", 7, "Wave"},           Item{"comboDimValue", 0, "5 seconds"},
    Item{"comboDimValue", 1, "10 seconds"},    Item{"comboDimValue", 2, "30 seconds"},
    Item{"comboDimValue", 3, "1 minute"},      Item{"comboDimValue", 4, "5 minutes"},
    Item{"comboDimValue", 5, "10 minutes"},    Item{"comboDimValue", 6, "15 minutes"},
    Item{"comboDimValue", 7, "30 minutes"},    Item{"comboDimValue", 8, "1 hour"},
};

/// Size limits in pixels at 96 DPI.
struct Limits
{
    const char *object;
    int minimumWidth;
    int minimumHeight;
    int maximumWidth;
    int maximumHeight;
};
inline constexpr int unbounded = QWIDGETSIZE_MAX;
inline constexpr Limits defaultLimits = {"", 0, 0, unbounded, unbounded};
inline constexpr std::array limits{
    Limits{"minimizeButton", 25, 25, 25, 25},
    Limits{"closeButton", 25, 25, 25, 25},
    Limits{"frame", 0, 90, unbounded, 90},
    Limits{"label", 250, 0, unbounded, unbounded},
    Limits{"keyboard_full", 310, 95, 310, 95},
    Limits{"colorpick4", 40, 40, 40, 40},
    // The zone pictures' minimum width exceeds their maximum on purpose.
    Limits{"keyboard_left", 145, 95, 142, 95},
    Limits{"colorpick1", 40, 40, 40, 40},
    Limits{"keyboard_center", 145, 95, 142, 95},
    Limits{"colorpick2", 40, 40, 40, 40},
    Limits{"keyboard_right", 145, 95, 142, 95},
    Limits{"colorpick3", 40, 40, 40, 40},
    Limits{"stripe_led", 310, 95, 310, 95},
    Limits{"colorpick5", 40, 40, 40, 40},
    Limits{"stripe_led_2", 310, 95, 310, 95},
    Limits{"colorpick5_3", 40, 40, 40, 40},
    Limits{"colorpickframe", 0, 400, unbounded, unbounded},
    Limits{"widget", 0, 370, unbounded, unbounded},
    Limits{"svSelector", 260, 260, unbounded, unbounded},
    Limits{"colorSample", 260, 60, unbounded, unbounded},
    Limits{"pColorPicker", 0, 0, unbounded, 365},
    Limits{"hSelector", 54, 365, 54, unbounded},
    Limits{"leRGB", 160, 36, unbounded, unbounded},
    Limits{"leHex", 160, 36, unbounded, unbounded},
    Limits{"bHex", 0, 30, unbounded, unbounded},
    Limits{"bPasteHex", 0, 30, unbounded, unbounded},
    Limits{"pushButton_2", 0, 30, unbounded, unbounded},
    Limits{"pushButton", 0, 30, unbounded, unbounded},
    Limits{"frame_2", 0, 50, unbounded, 50},
};

/// Style sheet of one widget, to the letter.
struct Sheet
{
    const char *object;
    const char *sheet;
};
inline constexpr const char *greyText = "color:#cccccc;";
inline constexpr std::array sheets{
    Sheet{"backlight_on", greyText},
    Sheet{"backlight_off", greyText},
    Sheet{"label_13", greyText},
    Sheet{"label_9", greyText},
    Sheet{"label_10", greyText},
    Sheet{"label_11", greyText},
    Sheet{"frame_3", "border: none;"},
    Sheet{"frame_4", "border: none;"},
    Sheet{"frame_5", "border: none;"},
    Sheet{"label_15", greyText},
    Sheet{"label_17", greyText},
    Sheet{"colorpickframe", "background-color: #2a2a2a;"},
    Sheet{"label_8", greyText},
    // Ground for the arrow, which would vanish on the panel.
    Sheet{"pColorPicker", "#pColorPicker { background-color: #848484; border-radius: 3px; }"},
    Sheet{"svSelector", "border:1px solid;"},
    Sheet{"label_5", greyText},
    Sheet{"colorSample", "border:1px solid;"},
    Sheet{"hSelector", "border:1px solid"}, // without the semicolon on purpose
    Sheet{"label_6", greyText},
    Sheet{"label_7", greyText},
    Sheet{"label_12", greyText},
    Sheet{"label_4", greyText},
    Sheet{"CheckBox_AutoDim", greyText},
    Sheet{"Check_StartwithWindows", greyText},
    Sheet{"Check_CloseHides", greyText},
    Sheet{"StartHidden", greyText},
    Sheet{"touch_mouse_wake", greyText},
    Sheet{"UsePerKeyApp", greyText},
    Sheet{"StartHidden_2", greyText},
    Sheet{"Label_SoftwareVersion", greyText},
    Sheet{"Label_SoftwareServerVersion", greyText},
    Sheet{"Label_SoftwareVersion_desc", greyText},
};

/// Alignment of a label's or a field's text.
struct TextAlignment
{
    const char *object;
    int alignment; ///< Qt::Alignment
};
inline constexpr int topCentre = Qt::AlignTop | Qt::AlignHCenter;
inline constexpr std::array alignments{
    TextAlignment{"label_13", Qt::AlignCenter},
    TextAlignment{"label_14", Qt::AlignCenter},
    TextAlignment{"keyboard_full", topCentre},
    TextAlignment{"label_9", Qt::AlignCenter},
    TextAlignment{"label_10", Qt::AlignCenter},
    TextAlignment{"label_11", Qt::AlignCenter},
    TextAlignment{"keyboard_left", topCentre},
    TextAlignment{"keyboard_center", topCentre},
    TextAlignment{"keyboard_right", topCentre},
    TextAlignment{"label_15", Qt::AlignCenter},
    TextAlignment{"label_17", Qt::AlignCenter},
    TextAlignment{"leRGB", Qt::AlignCenter},
    TextAlignment{"leHex", Qt::AlignCenter},
    // Of a server's answer with several lines the first is the one to see, level with the version
    // beside it.
    TextAlignment{"Label_SoftwareVersion", Qt::AlignLeft | Qt::AlignTop},
    TextAlignment{"Label_SoftwareServerVersion", Qt::AlignLeft | Qt::AlignTop},
};

/// Font weight set on a widget itself; all other widgets inherit theirs.
struct Weight
{
    const char *object;
    int weight;
};
inline constexpr std::array weights{
    Weight{"Title", 75},         Weight{"label", 50},     Weight{"label_2", 50},
    Weight{"tabWidget_2", 50},   Weight{"tabWidget", 50}, Weight{"Button_CheckforUpdate", 50},
    Weight{"Button_Update", 50},
};

/// Shape and shadow of a frame.
struct FrameLook
{
    const char *object;
    QFrame::Shape shape;
    QFrame::Shadow shadow;
};
inline constexpr std::array frames{
    FrameLook{"frame", QFrame::StyledPanel, QFrame::Plain},
    FrameLook{"frame_3", QFrame::StyledPanel, QFrame::Raised},
    FrameLook{"frame_4", QFrame::StyledPanel, QFrame::Raised},
    FrameLook{"frame_5", QFrame::StyledPanel, QFrame::Raised},
    FrameLook{"colorpickframe", QFrame::StyledPanel, QFrame::Raised},
    FrameLook{"frame_2", QFrame::StyledPanel, QFrame::Raised},
};

inline constexpr std::array scaledPictures{"keyboard_full", "keyboard_left", "keyboard_center",
                                           "keyboard_right"};

/// The row of one object, or nullptr when the table does not name it.
template<typename Row, std::size_t size>
const Row *find(const std::array<Row, size> &table, const char *object)
{
    for (const Row &row : table) {
        if (qstrcmp(row.object, object) == 0) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace formtables
