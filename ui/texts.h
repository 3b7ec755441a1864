#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of the window in the language that the program speaks. Texts that stand in tables are
/// marked there with QT_TRANSLATE_NOOP("MainWindow", ...), by which the translators' tools find
/// them.
inline QString translated(const char *text)
{
    return QCoreApplication::translate("MainWindow", text);
}
