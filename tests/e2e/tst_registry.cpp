#include "tests/support/boxwatcher.h"
#include "tests/support/standins.h"
#include "tests/support/testwindow.h"

#include <QDateTime>
#include <QSettings>
#include <QTest>

namespace {

const QString driverKey =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\WmiAcpi");
const QString libraryValue = QStringLiteral("MofImagePath");
const QString target = QStringLiteral("C:/Windows/SysWOW64/clevomof.dll");

} // namespace

/// The installation of the firmware interface's library into the system itself.
class TestRegistry : public QObject
{
    Q_OBJECT

private slots:
    void installation();
    void oldValueIsReplaced();
};

void TestRegistry::installation()
{
    QSettings driver(driverKey, QSettings::NativeFormat);
    driver.remove(libraryValue);
    QFile::remove(target);
    QDir().mkpath(QFileInfo(target).path()); // a prefix for 64-bit programs alone has none

    TestWindow world;
    const StandIns standIns(QDir::currentPath());
    standIns.add(QStringLiteral("net"));
    standIns.add(QStringLiteral("regsvr32"));
    writeFile(QStringLiteral("installer/CLEVOMOF.dll"), "library");
    const std::unique_ptr<Platform> system = createPlatform();
    MainWindow window(world.settings, *system, world.primaryRole,
                      QDateTime::currentMSecsSinceEpoch);
    const BoxWatcher watcher(QMessageBox::Yes);
    QVERIFY(QMetaObject::invokeMethod(&window, "installmof"));

    QCOMPARE(standIns.runs().size(), 3);
    QCOMPARE(readFile(target), QByteArray("library"));
    driver.sync();
    QCOMPARE(driver.value(libraryValue), QVariant(QStringLiteral("syswow64\\clevomof.dll")));
    QFile::remove(target);
    driver.remove(libraryValue);
}

void TestRegistry::oldValueIsReplaced()
{
    QSettings driver(driverKey, QSettings::NativeFormat);
    driver.setValue(libraryValue, QStringLiteral("another.dll"));
    createPlatform()->setFirmwareInterfaceLibrary(QStringLiteral("syswow64\\clevomof.dll"));
    driver.sync();
    QCOMPARE(driver.value(libraryValue).toString(), QStringLiteral("syswow64\\clevomof.dll"));
    driver.remove(libraryValue);
}

QTEST_MAIN(TestRegistry)
#include "tst_registry.moc"
