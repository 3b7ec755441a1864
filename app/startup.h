#pragma once

#include "system/executableform.h"

#include <QString>

#include <optional>

/// What start-up does before there is an application object.
struct StartUpPlan
{
    std::optional<QString> workingDirectory; ///< make this the current directory
    std::optional<QString> autostartValue;   ///< write this autostart value
};

/// Decides whether the current directory must be moved to the program's folder and whether the
/// autostart value must be rewritten.
/// @param autostartValue the stored path of the executable; empty when autostart is off
/// @param currentDirectory with forward slashes, as QDir::currentPath() gives it
StartUpPlan planStartUp(const QString &autostartValue, const QString &currentDirectory,
                        const ExecutableForm &executable);

/// Pixel size of the application font at a logical DPI; none above 336 DPI, where the system's own
/// font stays.
std::optional<int> fontPixelSize(int logicalDpi);
