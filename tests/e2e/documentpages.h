#pragma once

#include "tests/support/guitest.h"
#include "tests/support/testpaths.h"

#include <QString>
#include <QStringList>

/// The documents, for tests that hold them to the program. LUMIKEY_SOURCE_DIR is the tree.
namespace DocumentPages {

/// Path of a file of the tree; absolute, but for a drive.
inline QString path(const QString &file)
{
    return TestPaths::source(QStringLiteral(LUMIKEY_SOURCE_DIR), file);
}

/// A text file of the tree, with plain line ends; empty when it is missing.
inline QString text(const QString &file)
{
    return QString::fromUtf8(readFile(path(file))).remove(QLatin1Char('\r'));
}

/// What stands between the fences of the page's only block of this language; empty when there is
/// none, or more than one.
inline QString block(const QString &page, const QString &language)
{
    const QStringList parts =
        text(page).split(QStringLiteral("```") + language + QLatin1Char('\n'));
    return parts.size() == 2 ? parts.at(1).section(QStringLiteral("```"), 0, 0) : QString();
}

} // namespace DocumentPages
