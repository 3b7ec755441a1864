#pragma once

#include <QByteArray>
#include <QObject>
#include <QSizePolicy>

#include <array>

/// What the main window's form holds and drives, as data, every widget by object name; its texts
/// and looks are in formlooks.h.
namespace formtables {

/// Where a widget or a layout sits.
struct Place
{
    const char *object;
    const char *className;
    const char *holder; ///< a layout, or (for a layout) the widget it lays out
    int row;        ///< grid row; in a box its turn, spacers not counted; wholeWidget: all of it
    int column = 0; ///< grid column; 0 in a box
};
inline constexpr int wholeWidget = -1;

inline constexpr std::array layouts{
    Place{"verticalLayout", "QVBoxLayout", "centralWidget", wholeWidget},
    Place{"gridLayout_4", "QGridLayout", "verticalLayout", 0},
    Place{"gridLayout_5", "QGridLayout", "frame", wholeWidget},
    Place{"horizontalLayout_6", "QHBoxLayout", "gridLayout_5", 0, 0},
    Place{"verticalLayout_2", "QVBoxLayout", "horizontalLayout_6", 0},
    Place{"verticalLayout_3", "QVBoxLayout", "horizontalLayout_6", 1},
    Place{"gridLayout_13", "QGridLayout", "tab_5", wholeWidget},
    Place{"gridLayout_10", "QGridLayout", "tab_3", wholeWidget},
    Place{"gridLayout_3", "QGridLayout", "frame_3", wholeWidget},
    Place{"gridLayout_6", "QGridLayout", "frame_4", wholeWidget},
    Place{"gridLayout_12", "QGridLayout", "frame_5", wholeWidget},
    Place{"gridLayout_14", "QGridLayout", "tab_6", wholeWidget},
    Place{"gridLayout_11", "QGridLayout", "tab_4", wholeWidget},
    Place{"gridLayout_2", "QGridLayout", "colorpickframe", wholeWidget},
    Place{"horizontalLayout", "QHBoxLayout", "widget", wholeWidget},
    Place{"verticalLayout_4", "QVBoxLayout", "horizontalLayout", 0},
    Place{"gridLayout", "QGridLayout", "pColorPicker", wholeWidget},
    Place{"verticalLayout_5", "QVBoxLayout", "gridLayout", 0, 2},
    Place{"verticalLayout_7", "QVBoxLayout", "horizontalLayout", 2},
    Place{"horizontalLayout_11", "QHBoxLayout", "verticalLayout_7", 0},
    Place{"horizontalLayout_12", "QHBoxLayout", "verticalLayout_7", 1},
    Place{"gridLayout_9", "QGridLayout", "frame_2", wholeWidget},
    Place{"gridLayout_7", "QGridLayout", "tab", wholeWidget},
    Place{"gridLayout_8", "QGridLayout", "tab_2", wholeWidget},
    Place{"horizontalLayout_2", "QHBoxLayout", "gridLayout_8", 2, 0},
    Place{"horizontalLayout_4", "QHBoxLayout", "gridLayout_8", 5, 0},
};

inline constexpr std::array widgets{
    // Header row.
    Place{"Title", "QLabel", "gridLayout_4", 0, 0},
    Place{"minimizeButton", "QPushButton", "gridLayout_4", 0, 1},
    Place{"closeButton", "QPushButton", "gridLayout_4", 0, 2},
    // Backlight frame.
    Place{"frame", "QFrame", "verticalLayout", 1},
    Place{"label", "QLabel", "verticalLayout_2", 0},
    Place{"backlight_on", "QRadioButton", "verticalLayout_2", 1},
    Place{"backlight_off", "QRadioButton", "verticalLayout_2", 2},
    Place{"label_2", "QLabel", "verticalLayout_3", 0},
    Place{"horizontalSlider", "QSlider", "verticalLayout_3", 1},
    // Zone pages.
    Place{"tabWidget_2", "QTabWidget", "verticalLayout", 2},
    Place{"label_13", "QLabel", "gridLayout_13", 0, 0},
    Place{"label_14", "QLabel", "gridLayout_13", 1, 0},
    Place{"keyboard_full", "QLabel", "gridLayout_13", 1, 0},
    Place{"colorpick4", "QPushButton", "gridLayout_13", 4, 0},
    Place{"label_9", "QLabel", "gridLayout_10", 0, 0},
    Place{"label_10", "QLabel", "gridLayout_10", 0, 1},
    Place{"label_11", "QLabel", "gridLayout_10", 0, 2},
    Place{"frame_3", "QFrame", "gridLayout_10", 1, 0},
    Place{"frame_4", "QFrame", "gridLayout_10", 1, 1},
    Place{"frame_5", "QFrame", "gridLayout_10", 1, 2},
    Place{"keyboard_left", "QLabel", "gridLayout_3", 1, 0},
    Place{"colorpick1", "QPushButton", "gridLayout_3", 3, 0},
    Place{"keyboard_center", "QLabel", "gridLayout_6", 1, 0},
    Place{"label_16", "QLabel", "gridLayout_6", 1, 1},
    Place{"colorpick2", "QPushButton", "gridLayout_6", 3, 0},
    Place{"keyboard_right", "QLabel", "gridLayout_12", 1, 0},
    Place{"colorpick3", "QPushButton", "gridLayout_12", 3, 0},
    Place{"label_15", "QLabel", "gridLayout_14", 0, 0},
    Place{"stripe_led", "QLabel", "gridLayout_14", 1, 0},
    Place{"colorpick5", "QPushButton", "gridLayout_14", 3, 0},
    Place{"label_17", "QLabel", "gridLayout_11", 0, 0},
    Place{"stripe_led_2", "QLabel", "gridLayout_11", 2, 0},
    Place{"colorpick5_3", "QPushButton", "gridLayout_11", 4, 0},
    // Colour picker.
    Place{"colorpickframe", "QFrame", "verticalLayout", 3},
    Place{"label_8", "QLabel", "gridLayout_2", 0, 0},
    Place{"widget", "QWidget", "gridLayout_2", 2, 0},
    Place{"svSelector", "SVSelector", "verticalLayout_4", 0},
    Place{"label_5", "QLabel", "verticalLayout_4", 1},
    Place{"colorSample", "ColorSample", "verticalLayout_4", 2},
    Place{"pColorPicker", "QWidget", "horizontalLayout", 1},
    Place{"hSelector", "HSelector", "verticalLayout_5", 0},
    Place{"label_6", "QLabel", "horizontalLayout_11", 0},
    Place{"leRGB", "ColorText", "horizontalLayout_11", 1},
    Place{"label_7", "QLabel", "horizontalLayout_12", 0},
    Place{"leHex", "ColorText", "horizontalLayout_12", 1},
    Place{"label_12", "QLabel", "verticalLayout_7", 2},
    Place{"comboBox_BasicColors", "QComboBox", "verticalLayout_7", 3},
    Place{"bHex", "QPushButton", "verticalLayout_7", 4},
    Place{"bPasteHex", "QPushButton", "verticalLayout_7", 5},
    Place{"pushButton_2", "QPushButton", "verticalLayout_7", 6},
    Place{"pushButton", "QPushButton", "verticalLayout_7", 7},
    // Effects and dimming bar.
    Place{"frame_2", "QFrame", "verticalLayout", 4},
    Place{"label_4", "QLabel", "gridLayout_9", 0, 0},
    Place{"Combo_Effect", "QComboBox", "gridLayout_9", 0, 1},
    Place{"CheckBox_AutoDim", "QCheckBox", "gridLayout_9", 0, 3},
    Place{"comboDimValue", "QComboBox", "gridLayout_9", 0, 4},
    // Settings and about.
    Place{"tabWidget", "QTabWidget", "verticalLayout", 5},
    Place{"Check_StartwithWindows", "QCheckBox", "gridLayout_7", 0, 0},
    Place{"Check_CloseHides", "QCheckBox", "gridLayout_7", 0, 1},
    Place{"StartHidden", "QCheckBox", "gridLayout_7", 2, 0},
    Place{"touch_mouse_wake", "QCheckBox", "gridLayout_7", 2, 1},
    Place{"UsePerKeyApp", "QCheckBox", "gridLayout_7", 4, 0},
    Place{"StartHidden_2", "QCheckBox", "gridLayout_7", 4, 1},
    Place{"pushButton_3", "QPushButton", "gridLayout_7", 6, 1},
    Place{"label_3", "QLabel", "gridLayout_8", 0, 0},
    Place{"Label_SoftwareVersion", "QLabel", "horizontalLayout_2", 0},
    Place{"Label_SoftwareServerVersion", "QLabel", "horizontalLayout_2", 1},
    Place{"Label_SoftwareVersion_desc", "QLabel", "gridLayout_8", 4, 0},
    Place{"Button_CheckforUpdate", "QPushButton", "horizontalLayout_4", 0},
    Place{"Button_Update", "QPushButton", "horizontalLayout_4", 1},
};

/// A grid row that holds nothing but a vertical spacer.
struct SpacerRow
{
    const char *layout;
    int row;
    int height;
    QSizePolicy::Policy policy = QSizePolicy::Expanding;
};
inline constexpr std::array verticalSpacers{
    SpacerRow{"gridLayout_13", 3, 8},
    SpacerRow{"gridLayout_13", 5, 8},
    SpacerRow{"gridLayout_3", 2, 8},
    SpacerRow{"gridLayout_3", 4, 8},
    SpacerRow{"gridLayout_6", 2, 8},
    SpacerRow{"gridLayout_6", 4, 8},
    SpacerRow{"gridLayout_12", 2, 8},
    SpacerRow{"gridLayout_12", 4, 8},
    SpacerRow{"gridLayout_14", 2, 8},
    SpacerRow{"gridLayout_14", 4, 8},
    SpacerRow{"gridLayout_11", 1, 0, QSizePolicy::Fixed},
    SpacerRow{"gridLayout_11", 3, 8},
    SpacerRow{"gridLayout_11", 5, 8},
    SpacerRow{"gridLayout_2", 1, 2, QSizePolicy::Fixed},
    SpacerRow{"gridLayout_7", 1, 2},
    SpacerRow{"gridLayout_7", 3, 2},
    SpacerRow{"gridLayout_7", 5, 2},
    SpacerRow{"gridLayout_8", 1, 2},
    SpacerRow{"gridLayout_8", 3, 2},
};

/// One page of a tab widget.
struct Page
{
    const char *tabWidget;
    int index;
    const char *page;
    const char *text;
};
inline constexpr std::array pages{
    Page{"tabWidget_2", 0, "tab_5", "Single Zone Fixed"},
    Page{"tabWidget_2", 1, "tab_3", "3 Zones Fixed"},
    Page{"tabWidget_2", 2, "tab_6", "Stripe"},
    Page{"tabWidget_2", 3, "tab_4", "Per-Key Keyboard App"},
    Page{"tabWidget", 0, "tab", "Settings"},
    Page{"tabWidget", 1, "tab_2", "About"},
};

inline constexpr std::array initiallyDisabled{"bPasteHex", "Button_Update"};

/// The keyboard's way through the controls; the title buttons come last on purpose, so that the
/// first key press after showing the window does not minimise or close it.
inline constexpr std::array tabOrder{"backlight_on",
                                     "backlight_off",
                                     "horizontalSlider",
                                     "tabWidget_2",
                                     "colorpick4",
                                     "colorpick1",
                                     "colorpick2",
                                     "colorpick3",
                                     "colorpick5",
                                     "colorpick5_3",
                                     "svSelector",
                                     "hSelector",
                                     "colorSample",
                                     "leRGB",
                                     "leHex",
                                     "comboBox_BasicColors",
                                     "bHex",
                                     "bPasteHex",
                                     "pushButton_2",
                                     "pushButton",
                                     "Combo_Effect",
                                     "CheckBox_AutoDim",
                                     "comboDimValue",
                                     "tabWidget",
                                     "Check_StartwithWindows",
                                     "Check_CloseHides",
                                     "StartHidden",
                                     "touch_mouse_wake",
                                     "UsePerKeyApp",
                                     "StartHidden_2",
                                     "pushButton_3",
                                     "Button_CheckforUpdate",
                                     "Button_Update",
                                     "minimizeButton",
                                     "closeButton"};

/// A control's signal and the window's slot that it drives.
struct Connection
{
    const char *sender;
    const char *signal; ///< normalised signature
    const char *slot;   ///< normalised signature
    bool byName = true; ///< joined by QMetaObject::connectSlotsByName
};
inline constexpr std::array connections{
    Connection{"closeButton", "clicked()", "on_closeButton_clicked()"},
    Connection{"minimizeButton", "clicked()", "on_minimizeButton_clicked()"},
    Connection{"backlight_on", "clicked()", "on_backlight_on_clicked()"},
    Connection{"backlight_off", "clicked()", "on_backlight_off_clicked()"},
    Connection{"horizontalSlider", "valueChanged(int)", "on_horizontalSlider_valueChanged(int)"},
    Connection{"colorpick1", "clicked()", "on_colorpick1_clicked()"},
    Connection{"colorpick2", "clicked()", "on_colorpick2_clicked()"},
    Connection{"colorpick3", "clicked()", "on_colorpick3_clicked()"},
    Connection{"colorpick4", "clicked()", "on_colorpick4_clicked()"},
    Connection{"colorpick5", "clicked()", "on_colorpick5_clicked()"},
    Connection{"colorpick5_3", "clicked()", "on_colorpick5_3_clicked()"},
    Connection{"pushButton", "clicked()", "on_pushButton_clicked()"},
    Connection{"pushButton_2", "clicked()", "on_pushButton_2_clicked()"},
    Connection{"bHex", "clicked()", "on_bHex_clicked()"},
    Connection{"bPasteHex", "clicked()", "pasteHex()", false},
    Connection{"comboBox_BasicColors", "currentIndexChanged(int)",
               "on_comboBox_BasicColors_currentIndexChanged(int)"},
    Connection{"Combo_Effect", "currentIndexChanged(int)",
               "on_Combo_Effect_currentIndexChanged(int)"},
    Connection{"CheckBox_AutoDim", "clicked()", "on_CheckBox_AutoDim_clicked()"},
    Connection{"comboDimValue", "currentIndexChanged(int)",
               "on_comboDimValue_currentIndexChanged(int)"},
    Connection{"touch_mouse_wake", "clicked()", "on_touch_mouse_wake_clicked()"},
    Connection{"Check_CloseHides", "clicked()", "on_Check_CloseHides_clicked()"},
    Connection{"StartHidden", "clicked()", "on_StartHidden_clicked()"},
    Connection{"StartHidden_2", "clicked()", "on_StartHidden_2_clicked()"},
    Connection{"Check_StartwithWindows", "clicked()", "on_Check_StartwithWindows_clicked()"},
    Connection{"pushButton_3", "clicked()", "on_pushButton_3_clicked()"},
    Connection{"UsePerKeyApp", "clicked()", "on_UsePerKeyApp_clicked()"},
    Connection{"Button_CheckforUpdate", "clicked()", "on_Button_CheckforUpdate_clicked()"},
    Connection{"Button_Update", "clicked()", "on_Button_Update_clicked()"},
};

/// The connection's ends in the form that QObject::connect and QObject::disconnect take.
inline QByteArray signalCode(const Connection &connection)
{
    return QByteArray::number(QSIGNAL_CODE) + connection.signal;
}
inline QByteArray slotCode(const Connection &connection)
{
    return QByteArray::number(QSLOT_CODE) + connection.slot;
}

} // namespace formtables
