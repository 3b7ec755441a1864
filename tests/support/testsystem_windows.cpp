#include "tests/support/testsystem.h"

#include "tests/support/guitest.h"
#include "tests/support/testpaths.h"

#include <QLibrary>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString runKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("Lumikey");

const QString foldersKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                          "CurrentVersion\\Explorer\\User Shell Folders");
const QString documentsValue = QStringLiteral("Personal");

// Wine reads it for each process that starts.
const QString desktopKey = QStringLiteral("HKEY_CURRENT_USER\\Control Panel\\Desktop");
const QString dpiValue = QStringLiteral("LogPixels");

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

std::shared_ptr<void> TestSystem::moveDocuments(const QString &folder)
{
    const auto set = [](const QVariant &value) {
        QSettings(foldersKey, QSettings::NativeFormat).setValue(documentsValue, value);
    };
    const QVariant before = QSettings(foldersKey, QSettings::NativeFormat).value(documentsValue);
    set(QDir::toNativeSeparators(folder));
    return {nullptr, [set, before](void *) {
                set(before);
            }};
}

QProcessEnvironment TestSystem::programEnvironment(const QString &programFolder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WINEPATH"));
    environment.remove(QStringLiteral("QT_PLUGIN_PATH"));
    environment.insert(QStringLiteral("PATH"), QDir::toNativeSeparators(programFolder));
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    return environment;
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
    return {TestPaths::helper(QStringLiteral(LUMIKEY_WITHOUT_RIGHTS_PATH)), program};
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

bool TestSystem::isPersonsOwn()
{
    // Wine is nobody's own; it says so.
    return QLibrary::resolve(QStringLiteral("ntdll"), "wine_get_version") == nullptr;
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
