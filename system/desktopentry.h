#pragma once

#include <QByteArray>
#include <QString>

/// Autostart entries of the desktop's own kind: a "Desktop Entry" file with an Exec line.
namespace DesktopEntry {

/// The text of an entry that starts the program at @p path without arguments, in its own folder.
QByteArray write(const QString &name, const QString &path);

/// The program that an entry's Exec line starts; empty when there is none.
QString execPath(const QByteArray &entry);

} // namespace DesktopEntry
