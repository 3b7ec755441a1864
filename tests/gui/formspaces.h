#pragma once

#include <QMargins>

#include <array>

/// What the main window's form leaves free, as data, every layout by object name.
namespace formtables {

/// What a layout leaves around and between its items, in pixels, and how it shares what is left.
struct Spaces
{
    const char *layout;
    QMargins margins;
    int across;       ///< between columns, or between the items of a box; byStyle: the toolkit's
    int down;         ///< between rows; 0 in a box
    const char *rows; ///< stretch factors of rows, or of a box's items; empty: all 0
    const char *columns;
    const char *leastHeights;     ///< of rows
    const char *leastWidths = ""; ///< of columns
};
inline constexpr int byStyle = -1;
inline const std::array spaces{
    Spaces{"verticalLayout", {9, 9, 9, 9}, 6, 0, "", "", ""},
    Spaces{"gridLayout_4", {0, 0, 0, 0}, 6, 6, "", "1,0,0", ""},
    Spaces{"gridLayout_5", {6, 6, 9, 6}, byStyle, byStyle, "", "", ""},
    Spaces{"horizontalLayout_6", {0, 0, 0, 0}, 24, 0, "0,1", "", ""},
    Spaces{"verticalLayout_2", {0, 0, 0, 0}, 4, 0, "0,1,1", "", ""},
    Spaces{"verticalLayout_3", {3, 0, 0, 0}, 4, 0, "0,1", "", ""},
    Spaces{"gridLayout_13", {9, 9, 9, 9}, 6, 6, "0,0,0,1,0,1", "", "18,95,0,0,40,0"},
    Spaces{"gridLayout_10", {9, 9, 9, 9}, 6, 6, "0,1", "1,0,1", "18,0"},
    Spaces{"gridLayout_3", {0, 0, 0, 0}, byStyle, 6, "0,0,1,0,1", "", "0,95,0,40,0"},
    Spaces{"gridLayout_6", {0, 0, 0, 0}, byStyle, 6, "0,0,1,0,1", "", "0,95,0,40,0"},
    Spaces{"gridLayout_12", {0, 0, 0, 0}, byStyle, 6, "0,0,1,0,1", "", "0,95,0,40,0"},
    Spaces{"gridLayout_14", {9, 9, 9, 9}, 6, 6, "0,0,1,0,1", "", "18,95,0,40,0"},
    Spaces{"gridLayout_11", {9, 9, 9, 9}, 6, 6, "0,0,0,1,0,1", "", "18,0,95,0,40,0"},
    Spaces{"gridLayout_2", {9, 4, 9, 4}, byStyle, 2, "0,0,0,1", "", ""},
    Spaces{"horizontalLayout", {0, 2, 0, 3}, 12, 0, "0,0,1", "", ""},
    Spaces{"verticalLayout_4", {0, 0, 0, 0}, 6, 0, "", "", ""},
    Spaces{"gridLayout", {0, 0, 0, 0}, byStyle, byStyle, "", "", ""},
    Spaces{"verticalLayout_5", {0, 0, 0, 0}, byStyle, 0, "", "", ""},
    Spaces{"verticalLayout_7", {0, 0, 0, 0}, 6, 0, "", "", ""},
    Spaces{"horizontalLayout_11", {0, 0, 0, 0}, 6, 0, "1,6", "", ""},
    Spaces{"horizontalLayout_12", {0, 0, 0, 0}, 6, 0, "1,6", "", ""},
    Spaces{"gridLayout_9", {9, 4, 9, 4}, 6, byStyle, "", "", ""},
    Spaces{"gridLayout_7", {6, 9, 9, 9}, 24, 4, "", "0,1", "", "250,0"},
    Spaces{"gridLayout_8", {9, 9, 9, 9}, 6, 4, "", "", ""},
    Spaces{"horizontalLayout_2", {0, 0, 0, 0}, 24, 0, "0,1", "", ""},
    Spaces{"horizontalLayout_4", {0, 6, 0, 0}, 24, 0, "0,1", "", ""},
};

/// Where an item does not fill its cell.
struct ItemAlignment
{
    const char *object;
    Qt::Alignment alignment;
};
inline constexpr std::array itemAlignments{
    ItemAlignment{"frame", Qt::AlignTop},
    ItemAlignment{"backlight_on", Qt::AlignLeft | Qt::AlignVCenter},
    ItemAlignment{"backlight_off", Qt::AlignLeft | Qt::AlignVCenter},
    ItemAlignment{"horizontalSlider", Qt::AlignVCenter},
    ItemAlignment{"keyboard_full", Qt::AlignCenter},
    ItemAlignment{"colorpick4", Qt::AlignCenter},
    ItemAlignment{"keyboard_left", Qt::AlignCenter},
    ItemAlignment{"colorpick1", Qt::AlignCenter},
    ItemAlignment{"keyboard_center", Qt::AlignCenter},
    ItemAlignment{"colorpick2", Qt::AlignCenter},
    ItemAlignment{"keyboard_right", Qt::AlignCenter},
    ItemAlignment{"colorpick3", Qt::AlignCenter},
    ItemAlignment{"stripe_led", Qt::AlignCenter},
    ItemAlignment{"colorpick5", Qt::AlignCenter},
    ItemAlignment{"stripe_led_2", Qt::AlignCenter},
    ItemAlignment{"colorpick5_3", Qt::AlignCenter},
    ItemAlignment{"widget", Qt::AlignTop},
    ItemAlignment{"pColorPicker", Qt::AlignTop},
    ItemAlignment{"Check_StartwithWindows", Qt::AlignLeft},
    ItemAlignment{"Check_CloseHides", Qt::AlignLeft},
    ItemAlignment{"StartHidden", Qt::AlignLeft},
    ItemAlignment{"touch_mouse_wake", Qt::AlignLeft},
    ItemAlignment{"UsePerKeyApp", Qt::AlignLeft},
    ItemAlignment{"StartHidden_2", Qt::AlignLeft},
    ItemAlignment{"pushButton_3", Qt::AlignLeft},
    ItemAlignment{"Button_CheckforUpdate", Qt::AlignLeft},
    ItemAlignment{"Button_Update", Qt::AlignLeft},
};

} // namespace formtables
