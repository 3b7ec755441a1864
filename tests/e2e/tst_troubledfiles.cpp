#include "system/testing/roughhandling.h"
#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/smalldisk.h"

#include <QDir>
#include <QLockFile>
#include <QTest>

#include <algorithm>
#include <functional>

namespace {

/// What keeps the program from its settings, and how it is mended.
struct Trouble
{
    std::function<void()> begin;
    std::function<void()> end;
};

QString folder()
{
    return ProgramProcess::documents() + QStringLiteral("/Corvane");
}

/// The lines of the log that tell of trouble with a file.
QList<QByteArray> complaints(const ProgramProcess &program)
{
    QList<QByteArray> lines = program.log().split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QByteArray &line) { return !line.contains("Cannot "); }),
                lines.end());
    return lines;
}

} // namespace

/// The settings file and its folder in trouble while the program is used: it goes on, tells of it
/// once, and stores again when it can.
class TestTroubledFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { ProgramTwin::takeOnItsLooks(); }
    void init();
    void cleanup();
    void fullDisk();
    void readOnlyDisk();
    void folderReplacedByAFile();
    void folderGone();
    void heldByAnotherWriter();
    void heldAlone();
    void diskFullAtTheStart_data();
    void diskFullAtTheStart();

private:
    void start();
    /// Lives through @p trouble; @p stillThere when the file as it was can be read meanwhile.
    void liveThrough(const Trouble &trouble, bool stillThere = true);

    std::unique_ptr<SmallDisk> disk;
    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<ProgramTwin> twin;
};

void TestTroubledFiles::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestTroubledFiles::cleanup()
{
    twin.reset();
    program.reset();
    disk.reset();
}

void TestTroubledFiles::start()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<ProgramTwin>(Lines::threeZonesSettings);
    QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZones);
    QCOMPARE(complaints(*program), QList<QByteArray>());
}

void TestTroubledFiles::liveThrough(const Trouble &trouble, bool stillThere)
{
    if (QTest::currentTestFailed()) {
        return; // at the start
    }
    QByteArray before;
    const auto isWhole = [&before] { // between two writes
        before = readFile(ProgramProcess::settingsFile());
        return before.contains("backlight_on=true");
    };
    QVERIFY(QTest::qWaitFor(isWhole, patienceMs));
    trouble.begin();
    for (int round = 0; round < 2; ++round) {
        twin->click("backlight_off");
        QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
        twin->click("backlight_on");
        QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZonesAgain);
    }
    twin->click("backlight_off");
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(program->process.state(), QProcess::Running);
    QTRY_COMPARE(complaints(*program).size(), 1);
    QVERIFY(complaints(*program).first().contains("Cannot write file: "));
    if (stillThere) {
        QCOMPARE(readFile(ProgramProcess::settingsFile()), before);
    }

    trouble.end();
    twin->click("backlight_on");
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("true"));
    twin->click("backlight_off");
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("false"));
    QCOMPARE(complaints(*program).size(), 1);
}

void TestTroubledFiles::fullDisk()
{
    disk = SmallDisk::underTheSettings();
    if (!disk) {
        QSKIP("this system lends no small disk");
    }
    start();
    liveThrough({[this] { disk->fill(); },
                 [this] {
                     disk->makeRoom();
                 }});
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
}

void TestTroubledFiles::readOnlyDisk()
{
    disk = SmallDisk::underTheSettings();
    if (!disk) {
        QSKIP("this system lends no small disk");
    }
    if (!disk->setWritable(true)) {
        QSKIP("Windows makes no disk read-only for a test");
    }
    start();
    liveThrough({[this] { disk->setWritable(false); },
                 [this] {
                     disk->setWritable(true);
                 }});
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
}

void TestTroubledFiles::folderReplacedByAFile()
{
    start();
    liveThrough({[] {
                     QVERIFY(QDir(folder()).removeRecursively());
                     writeFile(folder(), "no folder");
                 },
                 [] {
                     QCOMPARE(readFile(folder()), QByteArray("no folder"));
                     QVERIFY(QFile::remove(folder()));
                 }},
                false);
}

void TestTroubledFiles::folderGone()
{
    start();
    QVERIFY(twin);
    QVERIFY(QDir(folder()).removeRecursively());
    twin->click("backlight_off");
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("false"));
    QCOMPARE(complaints(*program), QList<QByteArray>());
}

void TestTroubledFiles::heldByAnotherWriter()
{
    start();
    QLockFile other(ProgramProcess::settingsFile() + QStringLiteral(".lock"));
    liveThrough({[&other] { QVERIFY(other.lock()); },
                 [&other] {
                     other.unlock();
                 }});
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
}

void TestTroubledFiles::heldAlone()
{
    start();
    std::shared_ptr<void> holder = RoughHandling::holdAlone(ProgramProcess::settingsFile());
    if (!holder) {
        QSKIP("on this system everybody is let in");
    }
    holder.reset();
    liveThrough({[&holder] { holder = RoughHandling::holdAlone(ProgramProcess::settingsFile()); },
                 [&holder] {
                     holder.reset();
                 }},
                false);
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
}

void TestTroubledFiles::diskFullAtTheStart_data()
{
    QTest::addColumn<bool>("settings");
    QTest::addColumn<bool>("lock");
    QTest::newRow("with settings") << true << false;
    QTest::newRow("with settings, and the lock of a killed writer") << true << true;
    QTest::newRow("the first start") << false << false;
}

void TestTroubledFiles::diskFullAtTheStart()
{
    QFETCH(bool, settings);
    QFETCH(bool, lock);
    disk = SmallDisk::underTheSettings();
    if (!disk) {
        QSKIP("this system lends no small disk");
    }
    if (settings) {
        ProgramProcess::writeSettings(Lines::threeZonesSettings);
    }
    if (lock) {
        writeFile(ProgramProcess::settingsFile() + QStringLiteral(".lock"), QByteArray());
    }
    disk->fill();
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    const QByteArray lines = settings ? Lines::threeZonesSettings : QByteArray();
    twin = std::make_unique<ProgramTwin>(lines);
    if (settings) {
        QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZones);
    }
    twin->click("backlight_off");
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(complaints(*program).size(), 1);
    disk->makeRoom();
    twin->click("backlight_on");
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("true"));
}

QTEST_MAIN(TestTroubledFiles)
#include "tst_troubledfiles.moc"
