#include "app/startup.h"

#include <algorithm>
#include <array>

namespace {

/// An autostart launch begins in a folder of the system, not in the program's own.
constexpr std::array<const char *, 3> systemFolderMarks{"WINDOWS", "system32", "Windows"};

struct FontStep
{
    int highestDpi;
    int pixelSize;
};

constexpr std::array<FontStep, 10> fontSteps{{
    {96, 12},
    {120, 14},
    {144, 17},
    {160, 19},
    {180, 20},
    {192, 22},
    {216, 24},
    {240, 26},
    {288, 34},
    {336, 36},
}};

bool isSystemFolder(const QString &directory)
{
    return std::any_of(systemFolderMarks.begin(), systemFolderMarks.end(),
                       [&](const char *mark) { return directory.contains(QLatin1String(mark)); });
}

bool namesProgram(const QString &path, const ExecutableForm &executable)
{
    return executable.foldersMayShareIt ? path.endsWith(executable.separator + executable.fileName)
                                        : path.contains(executable.fileName);
}

QString withoutProgram(QString path, const ExecutableForm &executable)
{
    if (executable.foldersMayShareIt) {
        path.chop(executable.fileName.size());
    } else {
        path.remove(executable.fileName); // each occurrence, on purpose
    }
    return path;
}

} // namespace

StartUpPlan planStartUp(const QString &autostartValue, const QString &currentDirectory,
                        const ExecutableForm &executable)
{
    StartUpPlan plan;
    QString value = autostartValue;
    if (isSystemFolder(currentDirectory) && namesProgram(value, executable)) {
        value = withoutProgram(value, executable);
        plan.workingDirectory = value;
    }
    if (namesProgram(value, executable)) {
        QString directory = currentDirectory;
        directory.replace(QLatin1Char('/'), executable.separator);
        // On purpose a folder is compared with the whole path of the executable: they never match,
        // so the entry always points into the folder of the last start.
        if (directory != value) {
            plan.autostartValue = directory + executable.separator + executable.fileName;
        }
    }
    return plan;
}

std::optional<int> fontPixelSize(int logicalDpi)
{
    const auto *const step =
        std::find_if(fontSteps.begin(), fontSteps.end(),
                     [=](const FontStep &candidate) { return logicalDpi <= candidate.highestDpi; });
    if (step == fontSteps.end()) {
        return std::nullopt;
    }
    return step->pixelSize;
}
