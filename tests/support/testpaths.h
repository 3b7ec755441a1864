#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

/// Where the tests find what they use: where it was built, or, in the kit that runs them on other
/// machines, in the kit's folder, which LUMIKEY_TRIAL names then.
namespace TestPaths {

inline QString kit()
{
    return QDir::fromNativeSeparators(qEnvironmentVariable("LUMIKEY_TRIAL"));
}

/// The program under test.
inline QString lumikey(const QString &built)
{
    return kit().isEmpty() ? QFileInfo(built).absoluteFilePath()
                           : kit() + QStringLiteral("/Lumikey/") + QFileInfo(built).fileName();
}

/// A program that stands beside the tests. Before a test moves to another drive, where there are
/// drives: what was built is named without one.
inline QString helper(const QString &built)
{
    return kit().isEmpty() ? QFileInfo(built).absoluteFilePath()
                           : kit() + QStringLiteral("/tests/") + QFileInfo(built).fileName();
}

/// A file of the sources; absolute, but for a drive.
inline QString source(const QString &tree, const QString &file)
{
    return (kit().isEmpty() ? tree : kit() + QStringLiteral("/source")) + QLatin1Char('/') + file;
}

} // namespace TestPaths
