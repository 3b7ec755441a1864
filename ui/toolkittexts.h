#pragma once

#include <QtGlobal>

#include <array>

/// A text that the toolkit shows inside this program's window and boxes. Our translations bring it
/// along, so that each language is one file; the program itself never reads this table.
struct ToolkitText
{
    const char *context; ///< the toolkit's own
    const char *text;
};

inline constexpr std::array toolkitTexts{
    // The buttons of the boxes.
    ToolkitText{"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "OK")},
    ToolkitText{"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes")},
    ToolkitText{"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&No")},
    // The menu of the fields, and what stands beside its entries.
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Undo")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Redo")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Cu&t")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Copy")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Paste")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Delete")},
    ToolkitText{"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Select All")},
    ToolkitText{"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Ctrl")},
    ToolkitText{"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Shift")},
};
