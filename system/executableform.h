#pragma once

#include <QChar>
#include <QString>

/// How the system writes the path of this program in its autostart entry.
struct ExecutableForm
{
    QString fileName; ///< "Lumikey.exe" on Windows; compared with regard to case
    QChar separator;  ///< between folders: a backslash on Windows
};
