#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"

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

bool ends(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit
           && process.exitCode() == 0;
}

/// Whether a user may be somebody else in a namespace; containers and changed roots forbid it.
bool hasUserNamespaces()
{
    static const bool has =
        ends(QStringLiteral("unshare"),
             {QStringLiteral("--user"), QStringLiteral("--map-root-user"), QStringLiteral("true")});
    return has;
}

/// The command that makes a user of root who still reaches root's files, or root of that user.
QStringList asUser(const QString &id)
{
    const QString kept = QStringLiteral("+chown,+dac_override,+fowner,+kill,+setgid,+setuid");
    return {QStringLiteral("setpriv"),
            QStringLiteral("--reuid"),
            id,
            QStringLiteral("--regid"),
            id,
            QStringLiteral("--clear-groups"),
            QStringLiteral("--inh-caps"),
            kept,
            QStringLiteral("--ambient-caps"),
            kept};
}

/// The library that answers for the system where it lends neither networks nor rights.
QString ownAddressLibrary()
{
    return qEnvironmentVariable("LUMIKEY_TEST_LIBRARY");
}

/// The command that gives a program an administrator's rights: the true ones in a namespace, back
/// from asUser(), or else what the program takes for them.
QStringList elevated()
{
    if (hasUserNamespaces()) {
        return {QStringLiteral("unshare"), QStringLiteral("--user"),
                QStringLiteral("--map-root-user")};
    }
    if (::geteuid() == 0) {
        return asUser(QStringLiteral("0"));
    }
    return {QStringLiteral("env"), QStringLiteral("LUMIKEY_TEST_ELEVATED=1")};
}

/// The command that starts a program without them; empty where it has none anyway.
QStringList notElevated()
{
    const QString user = QStringLiteral("1000");
    if (hasUserNamespaces()) {
        return {QStringLiteral("unshare"), QStringLiteral("--user"),
                QStringLiteral("--map-user=") + user, QStringLiteral("--map-group=") + user};
    }
    // That it still reaches root's files is also to hold for access(), by which Qt asks for them.
    return ::geteuid() == 0 ? asUser(user)
                                  + QStringList{QStringLiteral("--securebits"),
                                                QStringLiteral("+no_setuid_fixup")}
                            : QStringList();
}

} // namespace

void TestSystem::throwAwayUser(const QTemporaryDir &home)
{
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
}

std::shared_ptr<void> TestSystem::moveDocuments(const QString &folder)
{
    const QString file =
        qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/user-dirs.dirs");
    writeFile(file, "XDG_DOCUMENTS_DIR=\"" + QFile::encodeName(folder) + "\"\n");
    return {nullptr, [file](void *) {
                QFile::remove(file);
            }};
}

QProcessEnvironment TestSystem::programEnvironment(const QString & /*programFolder*/)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_XCB_GL_INTEGRATION")); // script/lib/room sets it
    return environment;
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

QStringList TestSystem::commandWithRights(bool isElevated, const QString &program)
{
    return (isElevated ? elevated() : notElevated()) + QStringList{program};
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
    if (!ownAddressLibrary().isEmpty()) {
        // One that documents use and nobody has: the system says the same of both.
        return {QStringLiteral("env"), QStringLiteral("LUMIKEY_TEST_ADDRESS=192.0.2.9")};
    }
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

bool TestSystem::isPersonsOwn()
{
    return false;
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
        "exec "
        + elevated().join(QLatin1Char(' ')).toUtf8() + " \"$@\"\n";
    const QByteArray body = consent == Consent::Given      ? become
                            : consent == Consent::Declined ? "exit 126\n"
                                                           : "exit 127\n";
    const QString path = folder + QStringLiteral("/pkexec");
    writeFile(path, "#!/bin/bash\n" + body);
    // The one who looks for it may be another user (asUser()).
    for (const QString &name : {folder, path}) {
        QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                        | QFile::ReadOther | QFile::ExeOther);
    }
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
