#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"

#include <QProcess>

#include <cstdlib>
#include <memory>

#include <unistd.h>
#include <xcb/xcb.h>

namespace {

QString entryFile()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/autostart/Lumikey.desktop");
}

/// The X resources: lines of names and values in a property of the root window, which programs
/// read as they start.
class XResources
{
public:
    XResources()
    {
        if (xcb_connection_has_error(connection.get()) != 0) {
            qFatal("there is no X display");
        }
        const auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
        root = screens.data->root;
    }

    QByteArray read() const
    {
        constexpr uint32_t words = 1U << 20U;
        const auto cookie = xcb_get_property(connection.get(), 0, root, XCB_ATOM_RESOURCE_MANAGER,
                                             XCB_ATOM_STRING, 0, words);
        const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
            xcb_get_property_reply(connection.get(), cookie, nullptr), &std::free);
        if (!reply) {
            return {};
        }
        return {static_cast<const char *>(xcb_get_property_value(reply.get())),
                xcb_get_property_value_length(reply.get())};
    }

    void write(const QByteArray &lines) const
    {
        if (lines.isEmpty()) {
            xcb_delete_property(connection.get(), root, XCB_ATOM_RESOURCE_MANAGER);
        } else {
            xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, root,
                                XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
                                static_cast<uint32_t>(lines.size()), lines.constData());
        }
        read(); // which waits until the display has taken it
    }

private:
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection{
        xcb_connect(nullptr, nullptr), &xcb_disconnect};
    xcb_window_t root = 0;
};

const QByteArray dpiResource = "Xft.dpi:\t";

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

std::optional<QFile::Permissions> TestSystem::localServerPermissions(const QString &name)
{
    return QFile::permissions(QDir::temp().filePath(name));
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

std::optional<int> TestSystem::displayDpi()
{
    for (const QByteArray &line : XResources().read().split('\n')) {
        if (line.startsWith(dpiResource)) {
            return line.mid(dpiResource.size()).toInt();
        }
    }
    return std::nullopt;
}

void TestSystem::setDisplayDpi(std::optional<int> dpi)
{
    const XResources resources;
    QByteArray lines;
    for (const QByteArray &line : resources.read().split('\n')) {
        if (!line.isEmpty() && !line.startsWith(dpiResource)) {
            lines += line + '\n';
        }
    }
    if (dpi) {
        lines += dpiResource + QByteArray::number(*dpi) + '\n';
    }
    resources.write(lines);
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

QString TestSystem::logInFolder(const QTemporaryDir &home)
{
    const QByteArray key = "Path=";
    for (const QByteArray &line : readFile(entryFile()).split('\n')) {
        if (line.startsWith(key)) {
            return QString::fromUtf8(line.mid(key.size()));
        }
    }
    return home.path();
}
