#pragma once

#include <QChar>
#include <QString>

/// How the system writes the path of this program in its autostart entry.
struct ExecutableForm
{
    QString fileName; ///< "Lumikey.exe" on Windows; compared with regard to case
    QChar separator;  ///< between folders: a backslash on Windows
    /// Whether a folder may well have that name, as where programs have no suffix: the name counts
    /// at the end of a path only then.
    bool foldersMayShareIt = false;
};
