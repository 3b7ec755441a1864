#include "tests/support/boxwatcher.h"
#include "tests/support/standins.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QSystemTrayIcon>
#include <QTest>
#include <QThread>

#include <future>

namespace {

const QString source = QStringLiteral("installer/CLEVOMOF.dll");
/// Where there is no such drive this is a folder in the current one.
const QString systemFolder = QStringLiteral("C:/Windows/SysWOW64");
const QString target = systemFolder + QStringLiteral("/clevomof.dll");
const QStringList installation{QStringLiteral("net stop winmgmt /y"),
                               QStringLiteral("regsvr32 /s C:/Windows/SysWOW64/clevomof.dll"),
                               QStringLiteral("net start winmgmt")};
const QStringList perKeyApplication{
    QStringLiteral("explorer shell:AppsFolder\\CLEVOCO.LedKeyboardSetting_6h6z29zh29qx0!App")};

/// A window whose program folder has a name that needs care, with stand-ins for all that it starts.
class CommandWorld : public TestWindow
{
public:
    CommandWorld()
    {
        const QString odd =
            folder.filePath(QString::fromUtf8("Program Files \xc3\xa4\xe2\x82\xac"));
        if (!QDir().rename(QDir::currentPath(), odd)) {
            QDir().mkpath(odd);
        }
        QDir::setCurrent(odd);
        writeBranding({});
        standIns = std::make_unique<StandIns>(QDir::currentPath());
        platform.elevated = true;
        QDir().mkpath(systemFolder);
        QFile::remove(target);
    }
    ~CommandWorld() { QFile::remove(target); }
    Q_DISABLE_COPY(CommandWorld)

    void addInstallationCommands() const
    {
        standIns->add(QStringLiteral("net"));
        standIns->add(QStringLiteral("regsvr32"));
    }

    std::unique_ptr<StandIns> standIns;
};

} // namespace

/// Everything that the window has the system run, as real processes of stand-ins.
class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void installation();
    void installationLoadsSettings();
    void installationRefused_data();
    void installationRefused();
    void uninstaller();
    void uninstallerIsMissing();
    void perKeyInstaller();
    void installationIsBesideTheProgram();
    void perKeyInstallerNeedsRights();
    void perKeyApplicationByButton();
    void perKeyApplicationByTray();
    void updater();
};

void TestCommands::installation()
{
    CommandWorld world;
    world.addInstallationCommands();
    writeFile(source, "library");
    MainWindow &window = world.start();
    BoxWatcher watcher(QMessageBox::Yes);
    QStringList before{QStringLiteral("?")};
    watcher.look = [&](const QMessageBox & /*box*/) {
        before = world.standIns->runs();
    };
    QVERIFY(QMetaObject::invokeMethod(&window, "installmof"));

    QCOMPARE(watcher.seen.size(), 1);
    const SeenBox box = watcher.seen.constFirst();
    QCOMPARE(box.title, QStringLiteral("Control Center not installed"));
    QCOMPARE(box.text, QStringLiteral("You do not seem to be using Control Center. For this "
                                      "software to work we need to install a small dll for it to "
                                      "work. Can we install it?.\n"));
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.parent, &window);
    QVERIFY(box.modal);
    QVERIFY(box.frameless);
    QVERIFY(box.topLevel);

    QCOMPARE(before, QStringList()); // nothing runs before the answer
    QCOMPARE(world.standIns->runs(), ::installation);
    for (int run = 0; run < ::installation.size(); ++run) {
        QCOMPARE(world.standIns->folderOfRun(run), QDir::currentPath());
    }
    QCOMPARE(readFile(target), QByteArray("library"));
    QCOMPARE(world.platform.firmwareLibrary.value_or(QString()),
             QStringLiteral("syswow64\\clevomof.dll"));
    QCOMPARE(world.platform.relaunches, 0); // rights are not looked at
}

void TestCommands::installationLoadsSettings()
{
    CommandWorld world;
    world.addInstallationCommands();
    MainWindow &window = world.start();
    world.writeSettings("minimize_close=true\nbacklight_on=true\n");
    const QRect place(31, 47, 700, 660);
    window.setGeometry(place);
    const BoxWatcher watcher(QMessageBox::Yes);
    window.installmof();
    QVERIFY(world.get<QCheckBox>("Check_CloseHides")->isChecked());
    QCOMPARE(window.geometry(), place); // which none of the settings told
    // And the lighting a second later.
    QTRY_VERIFY(world.get<QAbstractButton>("backlight_on")->isChecked());
}

void TestCommands::installationRefused_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("no") << int(QMessageBox::No);
    QTest::newRow("escape") << int(QMessageBox::NoButton);
}

void TestCommands::installationRefused()
{
    QFETCH(int, answer);
    CommandWorld world;
    world.addInstallationCommands();
    writeFile(source, "library");
    MainWindow &window = world.start();
    window.show();
    const BoxWatcher watcher(static_cast<QMessageBox::StandardButton>(answer));
    window.installmof();
    QCOMPARE(watcher.seen.size(), 1);
    QVERIFY(!window.isVisible());
    QCOMPARE(world.standIns->runs(), QStringList());
    QVERIFY(!QFile::exists(target));
    QVERIFY(!world.platform.firmwareLibrary);
}

void TestCommands::uninstaller()
{
    CommandWorld world;
    world.standIns->add(QStringLiteral("Uninstall.exe"), 3000);
    MainWindow &window = world.start();
    window.show();
    QElapsedTimer timer;
    timer.start();
    world.get<QAbstractButton>("pushButton_3")->click();
    QVERIFY(timer.elapsed() < 2500); // it is not waited for
    QTRY_COMPARE(world.standIns->runs(), QStringList{QStringLiteral("Uninstall")});
    QCOMPARE(world.standIns->folderOfRun(0), QDir::currentPath());
    QVERIFY(window.isVisible());
}

void TestCommands::uninstallerIsMissing()
{
    CommandWorld world;
    // One of that name elsewhere is not the program's own.
    QDir().mkpath(QStringLiteral("elsewhere"));
    const StandIns others(QStringLiteral("elsewhere"));
    others.add(QStringLiteral("Uninstall.exe"));
    world.platform.installation = QDir::currentPath();
    world.start();
    world.get<QAbstractButton>("pushButton_3")->click();
    QTest::qWait(500);
    QCOMPARE(others.runs(), QStringList());
    QDir::setCurrent(QStringLiteral("elsewhere"));
    world.get<QAbstractButton>("pushButton_3")->click();
    QTest::qWait(500);
    QCOMPARE(others.runs(), QStringList());
}

void TestCommands::perKeyInstaller()
{
    CommandWorld world;
    world.standIns->addBatch(QStringLiteral("PERKEY/RunAsAdministrator.bat"), 200);
    world.start();
    auto storedMeanwhile = std::async(std::launch::async, [&world] {
        for (int look = 0; look < 1000 && world.standIns->runs().isEmpty(); ++look) {
            QThread::msleep(5);
        }
        return world.stored(SettingKeys::perKey);
    });
    world.get<QAbstractButton>("UsePerKeyApp")->click();
    // What ends the program while the installer asks for rights finds the mode stored.
    QCOMPARE(storedMeanwhile.get(), QStringLiteral("true"));
    // Blocks until the end, so the record is complete.
    QCOMPARE(world.standIns->runs(), QStringList{QStringLiteral("RunAsAdministrator.bat")});
    QCOMPARE(world.standIns->folderOfRun(0), QDir::currentPath());
    QCOMPARE(world.stored(SettingKeys::perKey), QStringLiteral("true"));
}

void TestCommands::installationIsBesideTheProgram()
{
    CommandWorld world;
    const QString batch = QStringLiteral("PERKEY/RunAsAdministrator.bat");
    world.standIns->add(QStringLiteral("Uninstall.exe"));
    world.standIns->addBatch(batch);
    world.platform.installation = QDir::currentPath();
    world.start();
    QDir().mkpath(QStringLiteral("elsewhere"));
    QDir::setCurrent(QStringLiteral("elsewhere"));
    world.get<QAbstractButton>("UsePerKeyApp")->click();
    QCOMPARE(world.standIns->runs(), QStringList{QStringLiteral("RunAsAdministrator.bat")});
    world.get<QAbstractButton>("pushButton_3")->click();
    QTRY_COMPARE(world.standIns->runs().size(), 2);
    QCOMPARE(world.standIns->runs().constLast(), QStringLiteral("Uninstall"));
}

void TestCommands::perKeyInstallerNeedsRights()
{
    CommandWorld world;
    world.standIns->addBatch(QStringLiteral("PERKEY/RunAsAdministrator.bat"));
    world.platform.elevated = false;
    world.start();
    const BoxWatcher watcher(QMessageBox::Yes);
    world.get<QAbstractButton>("UsePerKeyApp")->click();
    world.get<QAbstractButton>("UsePerKeyApp")->click(); // leaving runs nothing
    QTest::qWait(300);
    QCOMPARE(world.standIns->runs(), QStringList());
}

void TestCommands::perKeyApplicationByButton()
{
    CommandWorld world;
    world.standIns->add(QStringLiteral("explorer.exe"), 2000);
    world.writeSettings("PerKey=true\n");
    world.construct();
    QElapsedTimer timer;
    timer.start();
    world.get<QAbstractButton>("colorpick5_3")->click();
    QVERIFY(timer.elapsed() < 1500);
    QTRY_COMPARE(world.standIns->runs(), perKeyApplication);
}

void TestCommands::perKeyApplicationByTray()
{
    CommandWorld world;
    world.standIns->add(QStringLiteral("explorer.exe"));
    world.writeSettings("PerKey=true\n");
    MainWindow &window = world.construct();
    window.show_hide(QSystemTrayIcon::Trigger);
    window.show_hide(QSystemTrayIcon::MiddleClick);
    window.show_hide(QSystemTrayIcon::Context);
    QTest::qWait(300);
    QCOMPARE(world.standIns->runs(), QStringList());
    window.show_hide(QSystemTrayIcon::DoubleClick);
    QTRY_COMPARE(world.standIns->runs(), perKeyApplication);
    QVERIFY(!window.isVisible());
    window.show_hide(QSystemTrayIcon::Unknown);
    QTRY_COMPARE(world.standIns->runs(), perKeyApplication + perKeyApplication);
    QVERIFY(!window.isVisible());

    window.ShowInterface();
    window.show_hide(QSystemTrayIcon::DoubleClick); // visible: hides
    QVERIFY(!window.isVisible());
    QTest::qWait(300);
    QCOMPARE(world.standIns->runs().size(), 2);
}

void TestCommands::updater()
{
    const CommandWorld world;
    world.standIns->add(QStringLiteral("updates/Update.exe"));
    createPlatform()->launch(QStringLiteral("updates\\Update.exe"));
    QTRY_COMPARE(world.standIns->runs(), QStringList{QStringLiteral("Update")});
    QCOMPARE(world.standIns->folderOfRun(0), QDir::currentPath());
}

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
