#include "system/desktopentry.h"

#include <QFileInfo>
#include <QList>

namespace {

/// Inside double quotes an Exec line escapes these four with a backslash.
constexpr const char *quotedSpecials = "\"`$\\";

QString quotedArgument(const QString &path)
{
    QString quoted = QStringLiteral("\"");
    for (const QChar letter : path) {
        if (QLatin1String(quotedSpecials).contains(letter)) {
            quoted += QLatin1Char('\\');
        }
        quoted += letter;
        if (letter == QLatin1Char('%')) {
            quoted += letter; // a single one would start a field code
        }
    }
    return quoted + QLatin1Char('"');
}

/// Every value is a string in which a backslash is doubled.
QString escaped(QString value)
{
    return value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
}

/// The first argument of an Exec line whose general string escapes are already undone.
QString firstArgument(const QString &line)
{
    QString argument;
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar letter = line.at(i);
        if (letter == QLatin1Char('"')) {
            quoted = !quoted;
        } else if (letter == QLatin1Char(' ') && !quoted) {
            break;
        } else {
            const bool escapes =
                (letter == QLatin1Char('\\') && quoted)
                || (letter == QLatin1Char('%') && line.mid(i + 1, 1) == QLatin1String("%"));
            i += escapes ? 1 : 0;
            argument += line.mid(i, 1);
        }
    }
    return argument;
}

} // namespace

QByteArray DesktopEntry::write(const QString &name, const QString &path)
{
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nPath=%3\n"
                          "Terminal=false\n")
        .arg(name, escaped(quotedArgument(path)), escaped(QFileInfo(path).path()))
        .toUtf8();
}

QString DesktopEntry::execPath(const QByteArray &entry)
{
    const QList<QByteArray> lines = entry.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("Exec=")) {
            return firstArgument(QString::fromUtf8(line.mid(5))
                                     .replace(QLatin1String("\\\\"), QLatin1String("\\"))
                                     .trimmed());
        }
    }
    return {};
}
