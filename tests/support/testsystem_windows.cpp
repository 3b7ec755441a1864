#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"

#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QUuid>

namespace {

const QString runKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("Lumikey");

// Wine reads it for each process that starts.
const QString desktopKey = QStringLiteral("HKEY_CURRENT_USER\\Control Panel\\Desktop");
const QString dpiValue = QStringLiteral("LogPixels");

/// A word of a shell's command line.
QString quoted(QString word)
{
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), QStringLiteral("'\\''"))
           + QLatin1Char('\'');
}

} // namespace

void TestSystem::throwAwayUser(const QTemporaryDir & /*home*/)
{
    // No variable moves a Windows user's folders or registry.
    if (!qEnvironmentVariableIsSet("LUMIKEY_THROW_AWAY_USER")) {
        qFatal("these tests delete Lumikey's settings: set LUMIKEY_THROW_AWAY_USER=1 for a user "
               "that may lose them");
    }
    QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
         + QStringLiteral("/Corvane"))
        .removeRecursively();
    QFile::remove(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                  + QStringLiteral("/Corvane"));
    QSettings(runKey, QSettings::NativeFormat).remove(runValue);
}

QProcessEnvironment TestSystem::programEnvironment(const QString &programFolder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WINEPATH"));
    environment.insert(QStringLiteral("PATH"), QDir::toNativeSeparators(programFolder));
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    return environment;
}

QByteArray TestSystem::runDesktopTool(const QString &tool, const QStringList &arguments)
{
    // Wine hands the output of the desktop's programs to nobody, so somebody out there runs what is
    // put into this folder.
    const QString folder = qEnvironmentVariable("LUMIKEY_DESKTOP_TOOLS");
    if (folder.isEmpty()) {
        qFatal("LUMIKEY_DESKTOP_TOOLS names no folder that script/lib/desktop-tools watches");
    }
    QString line = tool;
    for (const QString &argument : arguments) {
        line += QLatin1Char(' ') + quoted(argument);
    }
    const QString name = QStringLiteral("Z:") + folder + QLatin1Char('/')
                         + QUuid::createUuid().toString(QUuid::WithoutBraces);
    writeFile(name + QStringLiteral(".new"), line.toUtf8());
    QFile::rename(name + QStringLiteral(".new"), name + QStringLiteral(".tool"));
    const QString output = name + QStringLiteral(".output");
    if (!QTest::qWaitFor([&output] { return QFile::exists(output); }, 30'000)) {
        qFatal("%s did not end", qPrintable(tool));
    }
    const QByteArray written = readFile(output);
    QFile::remove(output);
    return written;
}

std::optional<QString> TestSystem::autostartEntry()
{
    const QSettings settings(runKey, QSettings::NativeFormat);
    if (!settings.contains(runValue)) {
        return std::nullopt;
    }
    return settings.value(runValue).toString();
}

void TestSystem::setAutostartEntry(const QString &path)
{
    QSettings(runKey, QSettings::NativeFormat).setValue(runValue, path);
}

QStringList TestSystem::commandWithRights(bool elevated, const QString &program)
{
    // Tests have administrator rights under Wine.
    if (elevated) {
        return {program};
    }
    return {QStringLiteral(LUMIKEY_WITHOUT_RIGHTS_PATH), program};
}

bool TestSystem::messagesOutliveTheirSender()
{
    return false;
}

std::optional<QFile::Permissions> TestSystem::localServerPermissions(const QString & /*name*/)
{
    return std::nullopt;
}

QStringList TestSystem::commandWithoutNetwork()
{
    return {};
}

std::optional<int> TestSystem::displayDpi()
{
    const QSettings settings(desktopKey, QSettings::NativeFormat);
    if (!settings.contains(dpiValue)) {
        return std::nullopt;
    }
    return settings.value(dpiValue).toInt();
}

void TestSystem::setDisplayDpi(std::optional<int> dpi)
{
    QSettings settings(desktopKey, QSettings::NativeFormat);
    if (dpi) {
        settings.setValue(dpiValue, *dpi);
    } else {
        settings.remove(dpiValue);
    }
}

QString TestSystem::pathOnDesktop(const QString &path)
{
    QProcess process;
    process.start(QStringLiteral("winepath"), {QStringLiteral("-u"), path});
    if (!process.waitForFinished()) {
        qFatal("winepath did not end");
    }
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

bool TestSystem::asksForConsent()
{
    return false;
}

void TestSystem::makeElevationHelper(const QString & /*folder*/, Consent /*consent*/) {}

QString TestSystem::systemFolder(const QTemporaryDir & /*home*/)
{
    return QStringLiteral("C:/windows/system32");
}

QString TestSystem::logInFolder(const QTemporaryDir &home)
{
    return systemFolder(home);
}
