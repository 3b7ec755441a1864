#pragma once

#include <QStringList>

/// The files whose code another process has loaded, the program itself among them; empty where that
/// cannot be found out. Paths or bare names, as the system tells them.
QStringList loadedLibraries(qint64 processId);
