#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"

#include <QProcess>

namespace {

QString entryFile()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/autostart/Lumikey.desktop");
}

} // namespace

void TestSystem::throwAwayUser(const QTemporaryDir &home)
{
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
}

QProcessEnvironment TestSystem::programEnvironment(const QString & /*programFolder*/)
{
    return QProcessEnvironment::systemEnvironment();
}

QByteArray TestSystem::runDesktopTool(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished()) {
        qFatal("%s did not end", qPrintable(tool));
    }
    return process.readAllStandardOutput();
}

std::optional<QString> TestSystem::autostartEntry()
{
    const QByteArray content = readFile(entryFile());
    const int start = content.indexOf("Exec=\"");
    if (start < 0) {
        return std::nullopt;
    }
    return QString::fromUtf8(content.mid(start + 6, content.indexOf("\"\n", start) - start - 6));
}

void TestSystem::setAutostartEntry(const QString &path)
{
    writeFile(entryFile(), "[Desktop Entry]\nExec=\"" + path.toUtf8() + "\"\n");
}

QString TestSystem::systemFolder(const QTemporaryDir &home)
{
    const QString folder = home.filePath(QStringLiteral("WINDOWS/system32"));
    QDir().mkpath(folder);
    return folder;
}
