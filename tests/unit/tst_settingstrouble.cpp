#include "app/appsettings.h"
#include "tests/support/guitest.h"
#include "tests/unit/settingsfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A disk that can be filled, with its drive, where there are drives: the tests move to another
/// one. Empty where nobody has made one.
const QString smallDisk = [] {
    const QString mountPoint = qEnvironmentVariable("LUMIKEY_SMALL_DISK");
    return mountPoint.isEmpty() ? mountPoint : QFileInfo(mountPoint).absoluteFilePath();
}();

} // namespace

/// Settings files that are damaged, in the way, held by others, or on a disk that is full.
class TestSettingsTrouble : public QObject, protected SettingsFixture
{
    Q_OBJECT

private slots:
    void init() { enter(); }
    void cleanup() { leave(); }
    void directoryInPlaceOfTheWorkQueue();
    void badSettings_data();
    void badSettings();
    void damagedFileIsPutAside();
    void unfinishedCopyOfADamagedFile();
    void damagedFileThatCannotBeCopied();
    void directoryInPlaceOfTheFile();
    void fileInPlaceOfTheFolder();
    void troubleIsLoggedOnce_data();
    void troubleIsLoggedOnce();
    void fileHeldByAnotherWriter();
    void roomIsAskedForBeforehand();
    void roomThatIsJustEnough_data();
    void roomThatIsJustEnough();
    void lockLeftByAKilledWriter_data();
    void lockLeftByAKilledWriter();
    void badBrandingIsLeftAlone();
};

void TestSettingsTrouble::directoryInPlaceOfTheWorkQueue()
{
    QVERIFY(QDir().mkpath(settings->workIni()));
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("^Cannot write file: .*work.ini$")));
    settings->writeWorkQueue(WorkKeys::updatePending, true);
}

void TestSettingsTrouble::badSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << QByteArray("\0\1\2\xff\xfe[=\n]]\0=", 12);
    QTest::newRow("not an INI file") << QByteArray("<html>\n<body>oops\n");
    QTest::newRow("section never closed") << QByteArray("[settings\neffects=9\n");
    QTest::newRow("wrong types") << QByteArray(
        "[settings]\nbacklight_on=maybe@(\nbrightlevel=@Point(1 2)\n"
        "mainWindowGeometry=@Rect(0 0 1 1)\nZone1Color=@Variant(\\0\\0)\n");
    QTest::newRow("half a line") << QByteArray("[settings]\nbacklight_on=true\nbrightle");
    QTest::newRow("half a byte array")
        << QByteArray("[settings]\nmainWindowGeometry=@ByteArray(\\x1\\xd9\\xd");
    QTest::newRow("one long line") << QByteArray(1 << 20, 'x');
}

void TestSettingsTrouble::badSettings()
{
    QFETCH(QByteArray, content);
    writeFile(settings->settingsIni(), content);
    QCOMPARE(settings->readSetting(SettingKeys::brightLevel).toInt(), 0);
    QCOMPARE(readFile(settings->settingsIni()), content); // reading changes nothing
    settings->writeSetting(SettingKeys::brightLevel, 42);
    QCOMPARE(settings->readSetting(SettingKeys::brightLevel).toInt(), 42);
    QVERIFY(settingsText().contains("brightlevel=42"));
}

void TestSettingsTrouble::damagedFileIsPutAside()
{
    const QByteArray content("[settings]\nZone1Color=1 2 3\nbrightle");
    writeFile(settings->settingsIni(), content);
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(QStringLiteral("Malformed file: ") + settings->settingsIni()));
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(settings->readSetting(SettingKeys::leftColour).toString(), QStringLiteral("1 2 3"));
    QCOMPARE(readFile(settings->settingsIni() + QStringLiteral(".damaged")), content);
}

/// What a copy that was broken off has left is in nobody's way.
void TestSettingsTrouble::unfinishedCopyOfADamagedFile()
{
    const QByteArray content("[settings]\nbrightle");
    const QString copy = settings->settingsIni() + QStringLiteral(".damaged");
    writeFile(settings->settingsIni(), content);
    writeFile(copy + QStringLiteral(".new"), "half");
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(readFile(copy), content);
    QVERIFY(!QFileInfo::exists(copy + QStringLiteral(".new")));
}

/// Better an older copy than none.
void TestSettingsTrouble::damagedFileThatCannotBeCopied()
{
    const QString copy = settings->settingsIni() + QStringLiteral(".damaged");
    writeFile(settings->settingsIni(), "[settings]\nbrightle");
    writeFile(copy, "older");
    QVERIFY(QDir().mkpath(copy + QStringLiteral(".new")));
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(readFile(copy), QByteArray("older"));
}

void TestSettingsTrouble::directoryInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(settings->settingsIni() + QStringLiteral("/inner")));
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 0);
    settings->writeSetting(SettingKeys::effects, 3);
    QVERIFY(QFileInfo(settings->settingsIni() + QStringLiteral("/inner")).isDir());
}

void TestSettingsTrouble::fileInPlaceOfTheFolder()
{
    const QString blocked = folder->filePath(QStringLiteral("Documents/Corvane"));
    writeFile(blocked, "keep me");
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 0);
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(readFile(blocked), QByteArray("keep me"));

    QVERIFY(QFile::remove(blocked)); // and it works again as soon as it can
    settings->writeSetting(SettingKeys::effects, 4);
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 4);
}

void TestSettingsTrouble::troubleIsLoggedOnce_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<QStringList>("troubles");
    QTest::newRow("directory in place of the file")
        << QStringLiteral("Documents/Corvane/Lumikey/lumikey.ini") << true
        << QStringList{QStringLiteral("Cannot read file:"), QStringLiteral("Cannot write file:")};
    QTest::newRow("file in place of the folder")
        << QStringLiteral("Documents/Corvane") << false
        << QStringList{QStringLiteral("Cannot write file:")};
    QTest::newRow("file in place of the documents")
        << QStringLiteral("Documents") << false
        << QStringList{QStringLiteral("Cannot write file:")};
}

void TestSettingsTrouble::troubleIsLoggedOnce()
{
    QFETCH(QString, obstacle);
    QFETCH(bool, isFolder);
    QFETCH(QStringList, troubles);
    if (isFolder) {
        QVERIFY(QDir().mkpath(obstacle));
    } else {
        writeFile(obstacle, "in the way");
    }
    static QStringList log;
    log.clear();
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            log << QString::number(type) + QLatin1Char(' ') + text;
        });
    for (int i = 0; i < 5; ++i) {
        settings->readSetting(SettingKeys::effects);
        settings->writeSetting(SettingKeys::effects, i);
    }
    qInstallMessageHandler(before);
    QStringList expected;
    for (const QString &trouble : troubles) {
        expected
            << QStringLiteral("%1 %2 %3").arg(QtDebugMsg).arg(trouble, settings->settingsIni());
    }
    QCOMPARE(log, expected);
}

void TestSettingsTrouble::fileHeldByAnotherWriter()
{
    settings->writeSetting(SettingKeys::effects, 1);
    const QByteArray before = settingsText();
    QLockFile other(settings->settingsIni() + QStringLiteral(".lock"));
    QVERIFY(other.tryLock());
    QTest::ignoreMessage(
        QtDebugMsg, qPrintable(QStringLiteral("Cannot write file: ") + settings->settingsIni()));
    QTest::qWait(500); // long enough to be taken for a lock that was left
    QElapsedTimer time;
    time.start();
    settings->writeSetting(SettingKeys::effects, 2);
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    time.start();
    for (int again = 0; again < 20; ++again) { // a third of a second each, if they waited again
        settings->writeSetting(SettingKeys::effects, 2);
    }
    QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(settingsText(), before);
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 1);
    other.unlock();
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 3);

    QVERIFY(QDir().mkpath(QStringLiteral("updates")));
    QLockFile updater(settings->workIni() + QStringLiteral(".lock"));
    QVERIFY(updater.tryLock());
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("Cannot write file: ")
                                                + QDir::toNativeSeparators(settings->workIni())));
    settings->writeWorkQueue(WorkKeys::updatePending, true);
    QVERIFY(!QFileInfo::exists(settings->workIni()));
}

/// A disk that could just take the file is left alone: the lock is to fit as well.
void TestSettingsTrouble::roomIsAskedForBeforehand()
{
    if (smallDisk.isEmpty()) {
        QSKIP("this system lends no small disk");
    }
    constexpr qint64 kilobyte = 1024;
    const QTemporaryDir onDisk(smallDisk + QStringLiteral("/room"));
    const AppSettings stored(onDisk.path());
    stored.writeSetting(SettingKeys::effects, 1);
    QFile filler(onDisk.filePath(QStringLiteral("filler")));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) {
    }
    QVERIFY(filler.resize(filler.size() - 12 * kilobyte));
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(QStringLiteral("Cannot write file: ") + stored.settingsIni()));
    stored.writeSetting(SettingKeys::effects, 2);
    QCOMPARE(stored.readSetting(SettingKeys::effects).toInt(), 1);
    QVERIFY(filler.resize(filler.size() - 40 * kilobyte));
    stored.writeSetting(SettingKeys::effects, 3);
    QCOMPARE(stored.readSetting(SettingKeys::effects).toInt(), 3);
}

void TestSettingsTrouble::roomThatIsJustEnough_data()
{
    QTest::addColumn<int>("fileSize");
    QTest::addColumn<int>("stored");
    QTest::newRow("enough") << 4096 << 2;
    QTest::newRow("a byte too little") << 4097 << 1;
}

/// Room for the file once more, and 16 KiB.
void TestSettingsTrouble::roomThatIsJustEnough()
{
    QFETCH(int, fileSize);
    if (smallDisk.isEmpty()) {
        QSKIP("this system lends no small disk");
    }
    constexpr qint64 room = 20'480;
    const QTemporaryDir onDisk(smallDisk + QStringLiteral("/room"));
    const AppSettings stored(onDisk.path());
    const QByteArray content("[settings]\neffects=1\n;");
    writeFile(stored.settingsIni(), content + QByteArray(fileSize - content.size(), 'x'));
    QFile filler(onDisk.filePath(QStringLiteral("filler")));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) {
    }
    QVERIFY(filler.resize(filler.size() / 4096 * 4096 - room));
    const qint64 available = QStorageInfo(onDisk.path()).bytesAvailable();
    if (available != room) {
        QSKIP("this system keeps disks in blocks of another size");
    }
    stored.write(SettingKeys::effects, 2);
    QTEST(stored.read(SettingKeys::effects), "stored");
}

void TestSettingsTrouble::lockLeftByAKilledWriter_data()
{
    QTest::addColumn<QByteArray>("content");
    // A process number that no process can have, a program, a machine.
    QTest::newRow("with its name")
        << "2147483646\nLumikey\n" + QSysInfo::machineHostName().toUtf8() + '\n';
    QTest::newRow("before it could write its name") << QByteArray();
}

void TestSettingsTrouble::lockLeftByAKilledWriter()
{
    QFETCH(QByteArray, content);
    const QString lock = settings->settingsIni() + QStringLiteral(".lock");
    writeFile(lock, content);
    QElapsedTimer time;
    time.start();
    settings->writeSetting(SettingKeys::effects, 3);
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(settings->readSetting(SettingKeys::effects).toInt(), 3);
    QVERIFY(!QFileInfo::exists(lock));
}

void TestSettingsTrouble::badBrandingIsLeftAlone()
{
    const QByteArray content("half a li");
    writeFile(QStringLiteral("branding/lumikey_branding.ini"), content);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("^Malformed file: .*branding.ini$")));
    QCOMPARE(settings->readBranding(BrandingKeys::appName).toString(), QString());
    QCOMPARE(readFile(QStringLiteral("branding/lumikey_branding.ini")), content);
    QCOMPARE(QDir(QStringLiteral("branding")).entryList(QDir::Files).size(), 1);
}

QTEST_GUILESS_MAIN(TestSettingsTrouble)
#include "tst_settingstrouble.moc"
