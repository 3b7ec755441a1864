#include "system/testing/desktop.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/standins.h"
#include "tests/support/testsystem.h"
#include "tests/support/testwindow.h"
#include "tests/support/versionserver.h"

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

/// Of a copy of the program, below the current directory; a name that needs care.
const QString ownFolder = QString::fromUtf8("Program Files \xc3\xa4\xe2\x82\xac");
const QString updateTitle = QStringLiteral("Update Information");

/// Whether the screen shows a box with this title.
bool isBoxShown(const QString &title)
{
    return !Desktop::shownWindows(QStringLiteral("^%1$").arg(title)).isEmpty();
}

bool hasKeyboard(const QString &title)
{
    return Desktop::shownWindows(QStringLiteral("^%1$").arg(title))
        .contains(Desktop::activeWindow());
}

} // namespace

/// The program's dealings with rights, updates and other programs, from outside.
class TestProgramRights : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void noUpdate();
    void elevatedUpdate();
    void elevatedUpdateRefused();
    void elevation();
    void elevationThatFails_data();
    void elevationThatFails();
    void elevationOfAProgramThatIsGone();
    void uninstall();
    void uninstallWithoutRights();
    void perKeyMode();
    void perKeyModeWithoutRights();
    void autostartBox();
    void autostartBoxAfterTheProgramWasMoved();
    void closedWhileAskedForUpdates();

private:
    /// @param path of the program; its usual one when empty
    void start(bool elevated, const QString &path = {});
    /// Copies the program into a folder whose name needs care; the copy's path.
    QString copyProgram() const;
    /// Makes the twin, once the program has the port.
    void waitUntilShown();
    void click(const char *name) const;
    /// Answers the box with this title by a key.
    static void answer(const QString &title, const char *key);
    QString file(const char *name) const { return folder->filePath(QString::fromLatin1(name)); }
    QString pending() const
    {
        return QSettings(file("updates/work.ini"), QSettings::IniFormat)
            .value(QStringLiteral("workqueue/Lumikey"), QStringLiteral("(none)"))
            .toString();
    }

    QString executable;
    std::unique_ptr<QTemporaryDir> folder; ///< the program's current directory
    std::unique_ptr<StandIns> standIns;
    std::unique_ptr<VersionServer> server;
    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestProgramRights::initTestCase()
{
    ProgramTwin::takeOnItsLooks();
}

void TestProgramRights::init()
{
    if (TestSystem::isPersonsOwn()) {
        QSKIP("the system would ask a person for rights");
    }
    executable = ProgramProcess::executable();
    folder = std::make_unique<QTemporaryDir>();
    standIns = std::make_unique<StandIns>(folder->path());
    server = std::make_unique<VersionServer>();
    server->answerWith("1.0.4");
    writeFile(file("branding/lumikey_branding.ini"),
              "[settings]\nupdateserver=" + server->address().toUtf8() + '\n');
    program = std::make_unique<ProgramProcess>(); // takes over the environment as it is now
}

void TestProgramRights::cleanup()
{
    twin.reset();
    program.reset();
    server.reset();
    standIns.reset();
    folder.reset();
}

void TestProgramRights::start(bool elevated, const QString &path)
{
    QStringList command =
        TestSystem::commandWithRights(elevated, path.isEmpty() ? executable : path);
    const QString first = command.takeFirst();
    program->process.setWorkingDirectory(folder->path());
    program->process.start(first, command);
    QVERIFY(program->process.waitForStarted());
}

QString TestProgramRights::copyProgram() const
{
    const QDir from(QFileInfo(executable).path());
    const QDir to(folder->filePath(ownFolder));
    QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString target = to.filePath(from.relativeFilePath(path));
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(path, target);
    }
    return to.filePath(QFileInfo(executable).fileName());
}

void TestProgramRights::waitUntilShown()
{
    // The log may be that of an earlier start.
    QVERIFY(program->waitForLog("The Service Server is running!"));
    QTRY_VERIFY(!ServiceClient::readAnswer().isEmpty());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(1500); // until the settings are applied
    twin = std::make_unique<TestWindow>();
    twin->construct();
    if (ProgramProcess::stored("PerKey") == QStringLiteral("true")) {
        QSettings(twin->settings.settingsIni(), QSettings::IniFormat)
            .setValue(settingsPath(SettingKeys::perKey), true);
        twin->window->LoadSettings();
    }
}

void TestProgramRights::click(const char *name) const
{
    QVERIFY(twin); // else the program has never been shown
    const QPoint middle = ProgramWindow::onScreen(*twin->window, name);
    const auto *const button = twin->get<QAbstractButton>(name);
    // A box is wider than what of it can be clicked.
    constexpr int insideTheMark = 8;
    const bool isBox = qobject_cast<const QCheckBox *>(button) != nullptr;
    ProgramWindow::click(isBox ? middle - QPoint(button->width() / 2 - insideTheMark, 0) : middle);
}

void TestProgramRights::answer(const QString &title, const char *key)
{
    QTRY_VERIFY(hasKeyboard(title));
    QTest::qWait(500); // until it has shown that, too
    Desktop::press({QString::fromLatin1(key)});
    QTRY_VERIFY(!isBoxShown(title));
}

void TestProgramRights::noUpdate()
{
    start(true);
    waitUntilShown();
    QVERIFY(!isBoxShown(updateTitle));
    QCOMPARE(server->requests.size(), 1);
    QCOMPARE(pending(), QStringLiteral("false"));
}

void TestProgramRights::elevatedUpdate()
{
    standIns->add(QStringLiteral("updates/Update.exe"));
    server->answerWith("1.0.10");
    start(true);
    QTRY_VERIFY(isBoxShown(updateTitle));
    QCOMPARE(pending(), QStringLiteral("true"));
    QVERIFY(!program->log().contains("The Service Server")); // it waits for the answer
    answer(updateTitle, "alt+y");
    QTRY_COMPARE(standIns->runs(), QStringList{QStringLiteral("Update")});
    QCOMPARE(standIns->folderOfRun(0), QDir(folder->path()).absolutePath());
    QVERIFY(program->waitForLog("The Service Server is running!"));
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgramRights::elevatedUpdateRefused()
{
    standIns->add(QStringLiteral("updates/Update.exe"));
    server->answerWith("1.0.10");
    start(true);
    answer(updateTitle, "alt+n");
    waitUntilShown();
    QCOMPARE(standIns->runs(), QStringList());
    QVERIFY(!ServiceClient::readAnswer().isEmpty());
}

void TestProgramRights::elevation()
{
    TestSystem::makeElevationHelper(folder->path(), TestSystem::Consent::Given);
    server->answerWith("1.0.10");
    start(false);
    answer(updateTitle, "alt+y");
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 1);
    // Nothing was saved on the way out.
    QCOMPARE(ProgramProcess::stored("mainWindowGeometry"), QStringLiteral("(none)"));

    // The other one asks the server again, and then its user.
    QTRY_COMPARE(server->requests.size(), 2);
    answer(updateTitle, "alt+n");
    QTRY_VERIFY(!ServiceClient::readAnswer().isEmpty());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    twin = std::make_unique<TestWindow>();
    twin->construct();
    click("closeButton");
    QTRY_VERIFY(ProgramProcess::stored("mainWindowGeometry") != QStringLiteral("(none)"));
    QTRY_VERIFY(ProgramWindow::shown() == 0);
}

void TestProgramRights::elevationThatFails_data()
{
    QTest::addColumn<int>("consent");
    QTest::addColumn<bool>("isLogged");
    if (!TestSystem::asksForConsent()) {
        QSKIP("nobody is asked here, so nobody can refuse");
    }
    QTest::newRow("declined") << int(TestSystem::Consent::Declined) << true;
    QTest::newRow("failed") << int(TestSystem::Consent::Impossible) << false;
}

void TestProgramRights::elevationThatFails()
{
    QFETCH(int, consent);
    QFETCH(bool, isLogged);
    TestSystem::makeElevationHelper(folder->path(), static_cast<TestSystem::Consent>(consent));
    server->answerWith("1.0.10");
    start(false);
    answer(updateTitle, "alt+y");
    waitUntilShown();
    QCOMPARE(program->log().contains("User did not allow elevation"), isLogged);
    QCOMPARE(server->requests.size(), 1);
    QVERIFY(!ServiceClient::readAnswer().isEmpty());
    click("closeButton");
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitCode(), 0);
}

void TestProgramRights::elevationOfAProgramThatIsGone()
{
    const QString copy = copyProgram();
    TestSystem::makeElevationHelper(folder->path(), TestSystem::Consent::Given);
    server->answerWith("1.0.10");
    start(false, copy);
    QTRY_VERIFY(isBoxShown(updateTitle));
    // What runs can be removed, or else be given another name.
    QVERIFY(QFile::remove(copy) || QFile::rename(copy, copy + QStringLiteral(".old")));
    answer(updateTitle, "alt+y");
    if (!TestSystem::asksForConsent()) {
        QTest::qWait(3000); // the system itself tells that it does not find the file
        Desktop::press({QStringLiteral("Return")});
    }
    waitUntilShown();
    QVERIFY(!program->log().contains("User did not allow elevation"));
    QCOMPARE(server->requests.size(), 1);
    click("closeButton");
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitCode(), 0);
}

/// The one beside the program, whatever lies in the folder that the program was started in.
void TestProgramRights::uninstall()
{
    standIns->add(QStringLiteral("Uninstall.exe"));
    start(true, copyProgram());
    waitUntilShown();
    click("pushButton_3");
    QTest::qWait(500);
    QCOMPARE(standIns->runs(), QStringList());
    standIns->add(ownFolder + QStringLiteral("/Uninstall.exe"));
    click("pushButton_3");
    QTRY_COMPARE(standIns->runs(), QStringList{QStringLiteral("Uninstall")});
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgramRights::uninstallWithoutRights()
{
    standIns->add(QStringLiteral("Uninstall.exe"));
    start(false);
    waitUntilShown();
    click("pushButton_3");
    answer(QStringLiteral("Monitor"), "Escape");
    QTest::qWait(500);
    QCOMPARE(standIns->runs(), QStringList());
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgramRights::perKeyMode()
{
    const QString copy = copyProgram();
    const QString batch = QStringLiteral("PERKEY/RunAsAdministrator.bat");
    // The shipped one would wait for a person to read its window.
    QFile::remove(folder->filePath(ownFolder + QLatin1Char('/') + batch));
    standIns->addBatch(batch);
    standIns->add(QStringLiteral("explorer.exe"));
    start(true, copy);
    waitUntilShown();
    click("UsePerKeyApp");
    QTRY_COMPARE(ProgramProcess::stored("PerKey"), QStringLiteral("true"));
    QTest::qWait(500);
    QCOMPARE(standIns->runs(), QStringList()); // that of another folder
    standIns->addBatch(ownFolder + QLatin1Char('/') + batch);
    click("UsePerKeyApp");
    QTRY_COMPARE(ProgramProcess::stored("PerKey"), QStringLiteral("false"));
    click("UsePerKeyApp");
    QTRY_COMPARE(standIns->runs(), QStringList{QStringLiteral("RunAsAdministrator.bat")});
    QCOMPARE(ProgramProcess::stored("PerKey"), QStringLiteral("true"));
    click("closeButton");
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    twin.reset();

    start(true);
    waitUntilShown();
    click("colorpick5_3");
    QTRY_COMPARE(standIns->runs().size(), 2);
    QCOMPARE(standIns->runs().constLast(),
             QStringLiteral("explorer shell:AppsFolder\\"
                            "CLEVOCO.LedKeyboardSetting_6h6z29zh29qx0!App"));
    click("UsePerKeyApp");
    QTRY_COMPARE(ProgramProcess::stored("PerKey"), QStringLiteral("false"));
}

void TestProgramRights::perKeyModeWithoutRights()
{
    standIns->addBatch(QStringLiteral("PERKEY/RunAsAdministrator.bat"));
    start(false);
    waitUntilShown();
    click("UsePerKeyApp");
    answer(QStringLiteral("Per Key Install"), "alt+n");
    QTest::qWait(500);
    QCOMPARE(standIns->runs(), QStringList());
    QCOMPARE(ProgramProcess::stored("PerKey"), QStringLiteral("(none)"));
}

void TestProgramRights::autostartBox()
{
    start(true);
    waitUntilShown();
    click("Check_StartwithWindows");
    QTRY_VERIFY(TestSystem::autostartEntry().has_value());
    QCOMPARE(*TestSystem::autostartEntry(), QDir::toNativeSeparators(executable));
    click("Check_StartwithWindows");
    QTRY_VERIFY(!TestSystem::autostartEntry().has_value());
}

void TestProgramRights::autostartBoxAfterTheProgramWasMoved()
{
    const QString copy = copyProgram();
    // No name that start-up would mend: only a check of the box overwrites it.
    TestSystem::setAutostartEntry(QStringLiteral("the old place"));
    start(true, copy);
    waitUntilShown();
    click("Check_StartwithWindows");
    const QString expected = QDir::toNativeSeparators(copy);
    QTRY_COMPARE(TestSystem::autostartEntry().value_or(QString()), expected);
}

void TestProgramRights::closedWhileAskedForUpdates()
{
    start(true);
    waitUntilShown();
    server->answer.clear();
    server->then = VersionServer::Then::KeepOpen;
    auto *const pages = twin->get<QTabWidget>("tabWidget");
    pages->setCurrentIndex(1);
    const QPoint middle = ProgramWindow::onScreen(*twin->window, "tabWidget");
    const QPoint aboutTab = pages->tabBar()->tabRect(1).center();
    ProgramWindow::click(middle - pages->rect().center() + aboutTab);
    click("Button_CheckforUpdate");
    QTRY_COMPARE(server->requests.size(), 2);
    QTest::qWait(500);
    QVERIFY(!ServiceClient::readAnswer().isEmpty()); // agents are served meanwhile
    click("closeButton");
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    QVERIFY(ProgramProcess::stored("mainWindowGeometry") != QStringLiteral("(none)"));
}

QTEST_MAIN(TestProgramRights)
#include "tst_programrights.moc"
