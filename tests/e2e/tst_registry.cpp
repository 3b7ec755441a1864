#include "tests/support/boxwatcher.h"
#include "tests/support/standins.h"
#include "tests/support/testsystem.h"
#include "tests/support/testwindow.h"

#include <QCheckBox>
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
    void init();
    void installation();
    void oldValueIsReplaced();
    void vetoOfTheTaskManager();
};

void TestRegistry::init()
{
    if (TestSystem::isPersonsOwn()) {
        QSKIP("writes where a laptop's own settings are");
    }
}

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
    MainWindow window(world.settings, *system, world.primaryRole, QDateTime::currentMSecsSinceEpoch,
                      ServiceEndpoint());
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

void TestRegistry::vetoOfTheTaskManager()
{
    QSettings vetoes(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                    "CurrentVersion\\Explorer\\StartupApproved\\Run"),
                     QSettings::NativeFormat);
    const QByteArray switchedOff = QByteArray::fromHex("0300000000112233445566ff");
    vetoes.setValue(QStringLiteral("Lumikey"), switchedOff);
    vetoes.setValue(QStringLiteral("Another"), switchedOff);
    vetoes.sync();
    const std::unique_ptr<Platform> system = createPlatform();
    TestWindow world;
    MainWindow window(world.settings, *system, world.primaryRole, QDateTime::currentMSecsSinceEpoch,
                      ServiceEndpoint());
    auto *const box = widget<QCheckBox>(window, "Check_StartwithWindows");
    QVERIFY(!box->isChecked());
    vetoes.sync();
    QVERIFY(vetoes.contains(QStringLiteral("Lumikey"))); // what was decided there stays
    box->click();
    vetoes.sync();
    QVERIFY(!vetoes.contains(QStringLiteral("Lumikey")));
    QVERIFY(vetoes.contains(QStringLiteral("Another")));
    box->click();
    vetoes.remove(QStringLiteral("Another"));
}

QTEST_MAIN(TestRegistry)
#include "tst_registry.moc"
