#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"

#include <QProcess>

#include <unistd.h>

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

QStringList TestSystem::commandWithRights(bool elevated, const QString &program)
{
    // A namespace in which this user is root, or is not; the files stay its own.
    const QStringList names = elevated ? QStringList{QStringLiteral("--map-root-user")}
                                       : QStringList{QStringLiteral("--map-user=1000"),
                                                     QStringLiteral("--map-group=1000")};
    return QStringList{QStringLiteral("unshare"), QStringLiteral("--user")} + names
           + QStringList{program};
}

bool TestSystem::messagesOutliveTheirSender()
{
    return true;
}

QStringList TestSystem::commandWithoutNetwork()
{
    QStringList command{QStringLiteral("unshare"), QStringLiteral("--net")};
    if (::geteuid() != 0) {
        command << QStringLiteral("--user") << QStringLiteral("--map-root-user");
    }
    return command << QStringLiteral("sh") << QStringLiteral("-c")
                   << QStringLiteral(
                          "ip link set lo up && ip addr flush dev lo && exec \"$0\" \"$@\"");
}

QString TestSystem::pathOnDesktop(const QString &path)
{
    return path;
}

bool TestSystem::asksForConsent()
{
    return true;
}

void TestSystem::makeElevationHelper(const QString &folder, Consent consent)
{
    // pkexec becomes the program and leaves nothing open that it has inherited.
    const QByteArray become =
        "for fd in $(ls /proc/$$/fd); do [ \"$fd\" -gt 2 ] && eval \"exec $fd>&-\"; done\n"
        "exec unshare --user --map-root-user \"$@\"\n";
    const QByteArray body = consent == Consent::Given      ? become
                            : consent == Consent::Declined ? "exit 126\n"
                                                           : "exit 127\n";
    const QString path = folder + QStringLiteral("/pkexec");
    writeFile(path, "#!/bin/bash\n" + body);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString TestSystem::systemFolder(const QTemporaryDir &home)
{
    const QString folder = home.filePath(QStringLiteral("WINDOWS/system32"));
    QDir().mkpath(folder);
    return folder;
}
