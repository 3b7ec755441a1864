#include "app/appsettings.h"
#include "system/testing/filesmade.h"
#include "tests/support/guitest.h"
#include "tests/unit/settingsfixture.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <type_traits>

Q_DECLARE_METATYPE(SettingKey)
Q_DECLARE_METATYPE(const Key<int> *)

namespace {

template<class AnyKey, class Value, class = void> constexpr bool canWrite = false;
template<class AnyKey, class Value>
constexpr bool canWrite<AnyKey, Value,
                        std::void_t<decltype(std::declval<AppSettings>().write(
                            std::declval<AnyKey>(), std::declval<Value>()))>> = true;

template<class AnyKey, class = void> constexpr bool canRead = false;
template<class AnyKey>
constexpr bool canRead<
    AnyKey, std::void_t<decltype(std::declval<AppSettings>().read(std::declval<AnyKey>()))>> = true;

// Of the key's own type, and of no other that would turn into it.
static_assert(canWrite<Key<bool>, bool> && canWrite<Key<int>, int>);
static_assert(canWrite<Key<QString>, QString> && canWrite<Key<QByteArray>, QByteArray>);
static_assert(!canWrite<Key<bool>, int> && !canWrite<Key<int>, bool>);
static_assert(!canWrite<Key<QString>, const char *> && !canWrite<Key<QString>, QByteArray>);
static_assert(!canWrite<Key<int>, QVariant>);
// The branding is not written, the work queue not read.
static_assert(canRead<Key<int>> && canRead<Key<int, IniFile::Branding>>);
static_assert(!canRead<Key<bool, IniFile::Work>> && canWrite<Key<bool, IniFile::Work>, bool>);
static_assert(!canWrite<Key<int, IniFile::Branding>, int>);

} // namespace

class TestAppSettings : public QObject, protected SettingsFixture
{
    Q_OBJECT

private slots:
    void init() { enter(); }
    void cleanup() { leave(); }
    void paths();
    void defaultFolderIsTheDocuments();
    void missingKeysReadAsNothing();
    void numbersBeyondTheirBounds_data();
    void numbersBeyondTheirBounds();
    void textsOfEveryType();
    void storedForms_data();
    void storedForms();
    void bytesComeBack();
    void startHiddenIsANumberThatReadsAsBoolean();
    void folderIsMadeBeforeTheFirstWrite();
    void folderIsMadeForWhoeverKeepsTheFileOpen();
    void everyWriteIsOnDiskAtOnce();
    void whatTheFileHoldsIsKept_data();
    void whatTheFileHoldsIsKept();
    void emptyValueIsStoredOnce();
    void severalKeysAtOnce();
    void noMoreFilesThanQSettingsMakes();
    void foreignKeysStay();
    void keyThatQtCannotWrite();
    void branding();
    void missingBranding();
    void workQueue();
};

void TestAppSettings::paths()
{
    const QString documents = folder->filePath(QStringLiteral("Documents"));
    QCOMPARE(settings->documentsDir(), QDir::toNativeSeparators(documents));
    QCOMPARE(settings->companyDir(),
             QDir::toNativeSeparators(documents + QStringLiteral("/Corvane/Lumikey/")));
    QCOMPARE(settings->settingsIni(),
             QDir::toNativeSeparators(documents + QStringLiteral("/Corvane/Lumikey/lumikey.ini")));
    QCOMPARE(settings->brandingIni(), QStringLiteral("branding//lumikey_branding.ini"));
    QCOMPARE(settings->workIni(), QStringLiteral("updates//work.ini"));
}

void TestAppSettings::defaultFolderIsTheDocuments()
{
    QCOMPARE(AppSettings().documentsDir(),
             QDir::toNativeSeparators(
                 QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
}

void TestAppSettings::missingKeysReadAsNothing()
{
    QVERIFY(!settings->readSetting(SettingKeys::backlightOn).toBool());
    QCOMPARE(settings->readSetting(SettingKeys::brightLevel).toInt(), 0);
    QCOMPARE(settings->readSetting(SettingKeys::leftColour).toString(), QString());
    QVERIFY(settings->readSetting(SettingKeys::mainWindowGeometry).toByteArray().isEmpty());
    QVERIFY(!QFileInfo::exists(settings->companyDir())); // reading makes nothing
}

void TestAppSettings::numbersBeyondTheirBounds_data()
{
    QTest::addColumn<const Key<int> *>("key");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("expected");
    const auto row = [](const Key<int> &key, const char *stored, int expected) {
        QTest::addRow("%s=%s", key.name, stored) << &key << QByteArray(stored) << expected;
    };
    row(SettingKeys::brightLevel, "-1", 0);
    row(SettingKeys::brightLevel, "0", 0);
    row(SettingKeys::brightLevel, "1", 1);
    row(SettingKeys::brightLevel, "100", 100);
    row(SettingKeys::brightLevel, "101", 100);
    row(SettingKeys::brightLevel, "2147483648", 0); // no such number
    row(SettingKeys::brightLevel, "bright", 0);
    row(SettingKeys::effects, "-1", 0);
    row(SettingKeys::effects, "7", 7);
    row(SettingKeys::effects, "8", 0);
    row(SettingKeys::dimTimer, "-1", 0);
    row(SettingKeys::dimTimer, "8", 8);
    row(SettingKeys::dimTimer, "9", 0);
}

void TestAppSettings::numbersBeyondTheirBounds()
{
    QFETCH(const Key<int> *, key);
    QFETCH(QByteArray, stored);
    writeFile(settings->settingsIni(),
              QByteArray("[settings]\n") + key->name + '=' + stored + '\n');
    QTEST(settings->read(*key), "expected");
}

void TestAppSettings::textsOfEveryType()
{
    writeFile(settings->settingsIni(), "[settings]\nAutoDim=true\nPerKey=no\nZone1Color=1 2 3\n"
                                       "mainWindowState=@ByteArray(\\0\\x1)\n");
    writeFile(settings->brandingIni(), "[settings]\nappname=Ours\nhighlightcolor_RED=300\n");
    QCOMPARE(settings->read(SettingKeys::autoDim), true);
    QCOMPARE(settings->read(SettingKeys::perKey), true); // any text but "false", "0" and none
    QCOMPARE(settings->read(SettingKeys::touchWake), false);
    QCOMPARE(settings->read(SettingKeys::leftColour), QStringLiteral("1 2 3"));
    QCOMPARE(settings->read(SettingKeys::rightColour), QString());
    QCOMPARE(settings->read(SettingKeys::mainWindowState), QByteArray("\0\1", 2));
    QCOMPARE(settings->read(SettingKeys::mainWindowGeometry), QByteArray());
    QCOMPARE(settings->read(BrandingKeys::appName), QStringLiteral("Ours"));
    QCOMPARE(settings->read(BrandingKeys::highlightRed), 300); // as it stands there
    QCOMPARE(settings->read(BrandingKeys::highlightBlue), 0);
}

void TestAppSettings::storedForms_data()
{
    QTest::addColumn<SettingKey>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const SettingKey &key, const QVariant &value, const char *line) {
        QTest::newRow(line) << key << value << QByteArray(line);
    };
    row(SettingKeys::appUrl, QStringLiteral("/opt/Lumikey"), "appurl=/opt/Lumikey");
    row(SettingKeys::startHidden, true, "start_hidden=1");
    row(SettingKeys::startHidden, false, "start_hidden=0");
    row(SettingKeys::mainWindowGeometry, QByteArray("\1\2"),
        "mainWindowGeometry=@ByteArray(\\x1\\x2)");
    row(SettingKeys::mainWindowState, QByteArray(), "mainWindowState=@ByteArray()");
    row(SettingKeys::minimizeClose, true, "minimize_close=true");
    row(SettingKeys::stripeOption, 1, "P751LEDStripe=true");
    row(SettingKeys::perKey, false, "PerKey=false");
    row(SettingKeys::backlightOn, 1, "backlight_on=true");
    row(SettingKeys::backlightOff, 0, "backlight_off=false");
    row(SettingKeys::brightLevel, 73, "brightlevel=73");
    row(SettingKeys::dimTimer, 8, "dimtimer=8");
    row(SettingKeys::autoDim, true, "AutoDim=true");
    row(SettingKeys::touchWake, false, "touchwake=false");
    row(SettingKeys::effects, 7, "effects=7");
    row(SettingKeys::leftColour, QStringLiteral("255 0 0"), "Zone1Color=255 0 0");
    row(SettingKeys::centreColour, QStringLiteral("0 255 0"), "Zone2Color=0 255 0");
    row(SettingKeys::rightColour, QStringLiteral("0 0 255"), "Zone3Color=0 0 255");
    row(SettingKeys::singleColour, QStringLiteral("1 2 3"), "Zone4Color=1 2 3");
    row(SettingKeys::singleColourLast, true, "singlecolorselectedlast=true");
    row(SettingKeys::stripeLid, QString(), "StripeLid=");
}

void TestAppSettings::storedForms()
{
    QFETCH(SettingKey, key);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, line);
    settings->writeSetting(key, value);
    QByteArray text = settingsText();
    text.replace("\r\n", "\n");
    QCOMPARE(text, "[settings]\n" + line + '\n');
    QCOMPARE(settings->readSetting(key).toString(), inStoredForm(key, value).toString());
}

void TestAppSettings::bytesComeBack()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    settings->writeSetting(SettingKeys::mainWindowGeometry, bytes);
    QCOMPARE(settings->readSetting(SettingKeys::mainWindowGeometry).toByteArray(), bytes);
}

void TestAppSettings::startHiddenIsANumberThatReadsAsBoolean()
{
    for (const bool hidden : {true, false}) {
        settings->writeSetting(SettingKeys::startHidden, hidden);
        QCOMPARE(settings->readSetting(SettingKeys::startHidden).toBool(), hidden);
    }
}

void TestAppSettings::folderIsMadeBeforeTheFirstWrite()
{
    QVERIFY(!QFileInfo::exists(settings->companyDir()));
    settings->writeSetting(SettingKeys::brightLevel, 5);
    QVERIFY(QFileInfo(settings->settingsIni()).isFile());
}

void TestAppSettings::folderIsMadeForWhoeverKeepsTheFileOpen()
{
    const auto open = settings->openSettings();
    QVERIFY(open);
    QVERIFY(QFileInfo(settings->companyDir()).isDir());
    open->setValue(settingsPath(SettingKeys::brightLevel), 5);
    open->sync();
    QCOMPARE(settings->read(SettingKeys::brightLevel), 5);
}

void TestAppSettings::everyWriteIsOnDiskAtOnce()
{
    for (const int level : {1, 2, 100}) {
        settings->writeSetting(SettingKeys::brightLevel, level);
        QVERIFY(settingsText().contains("brightlevel=" + QByteArray::number(level)));
    }
}

void TestAppSettings::whatTheFileHoldsIsKept_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    // QSettings leaves no comment behind, so one tells whether the file was written.
    QTest::newRow("the same") << QByteArray("[settings]\n;\nAutoDim=true\n")
                              << QByteArray("[settings]\n;\nAutoDim=true\n");
    QTest::newRow("another") << QByteArray("[settings]\n;\nAutoDim=false\n")
                             << QByteArray("[settings]\nAutoDim=true\n");
    QTest::newRow("another form") << QByteArray("[settings]\n;\nAutoDim=1\n")
                                  << QByteArray("[settings]\nAutoDim=true\n");
    QTest::newRow("none") << QByteArray("[settings]\n;\n")
                          << QByteArray("[settings]\nAutoDim=true\n");
}

/// A key that is missing does not hold the empty value.
void TestAppSettings::emptyValueIsStoredOnce()
{
    settings->writeIfChanged(SettingKeys::leftColour, QString());
    QVERIFY(settingsText().contains("Zone1Color="));
    const QByteArray commented("[settings]\n;\nZone1Color=\n");
    writeFile(settings->settingsIni(), commented);
    settings->writeIfChanged(SettingKeys::leftColour, QString());
    QCOMPARE(settingsText(), commented);
}

void TestAppSettings::whatTheFileHoldsIsKept()
{
    QFETCH(QByteArray, before);
    writeFile(settings->settingsIni(), before);
    settings->writeIfChanged(SettingKeys::autoDim, true);
    QTEST(settingsText().replace("\r\n", "\n"), "after");
}

/// As if they had been stored one by one, in one write. That nobody ever sees one without the other
/// is seen where writers are killed.
void TestAppSettings::severalKeysAtOnce()
{
    const QString colour = QStringLiteral("1 2 3");
    const QTemporaryDir otherFolder;
    const AppSettings oneByOne(otherFolder.path());
    settings->write(SettingKeys::effects, 5);
    oneByOne.write(SettingKeys::effects, 5);
    oneByOne.write(SettingKeys::startHidden, true);
    oneByOne.write(SettingKeys::effects, 3);
    oneByOne.write(SettingKeys::leftColour, colour);

    const FilesMade made(settings->companyDir());
    settings->write(SettingsTogether()
                        .with(SettingKeys::startHidden, true)
                        .with(SettingKeys::effects, 3)
                        .with(SettingKeys::leftColour, colour));
    const auto sortedLines = [](const QByteArray &text) {
        QList<QByteArray> lines = text.split('\n');
        std::sort(lines.begin(), lines.end()); // systems differ in the order of new keys
        return lines;
    };
    QCOMPARE(sortedLines(settingsText()), sortedLines(readFile(oneByOne.settingsIni())));
    QVERIFY(settingsText().contains("Zone1Color=1 2 3"));
    if (made.areTold()) {
        QCOMPARE(made.taken().count(QStringLiteral("lumikey.ini.lock")), 1);
    }
}

/// Whatever a write makes waits for the disk.
void TestAppSettings::noMoreFilesThanQSettingsMakes()
{
    const QTemporaryDir otherFolder;
    const QString plainFile = otherFolder.filePath(QStringLiteral("lumikey.ini"));
    writeFile(plainFile, "[settings]\neffects=1\n");
    writeFile(settings->settingsIni(), "[settings]\neffects=1\n");
    const FilesMade made(settings->companyDir());
    const FilesMade madePlainly(otherFolder.path());
    settings->write(SettingKeys::effects, 5);
    QSettings(plainFile, QSettings::IniFormat).setValue(settingsPath(SettingKeys::effects), 5);
    QCOMPARE(made.taken().size(), madePlainly.taken().size());
    const auto left = [](const QString &path) {
        return QDir(path).entryList(QDir::Files | QDir::Hidden);
    };
    QCOMPARE(left(settings->companyDir()), QStringList(QStringLiteral("lumikey.ini")));
    QCOMPARE(left(otherFolder.path()), QStringList(QStringLiteral("lumikey.ini")));
}

void TestAppSettings::foreignKeysStay()
{
    writeFile(settings->settingsIni(), "[settings]\nother=7\n\n[strange]\nkey=\"a, b\"\n");
    settings->writeSetting(SettingKeys::brightLevel, 5);
    QVERIFY(settingsText().contains("other=7"));
    QVERIFY(settingsText().contains("[strange]"));
    QVERIFY(settingsText().contains("brightlevel=5"));
}

// Qt writes the slash at the end of a key as a backslash, which then hides the equals sign.
void TestAppSettings::keyThatQtCannotWrite()
{
    writeFile(settings->settingsIni(), "[settings]\nother/=7\nZone1Color=1 2 3\n");
    settings->writeSetting(SettingKeys::brightLevel, 5);
    QVERIFY(settingsText().contains("other\\=7"));

    const QByteArray written = settingsText() + "\n"; // to have it read anew, as at the next start
    writeFile(settings->settingsIni(), written);
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(QStringLiteral("Malformed file: ") + settings->settingsIni()));
    settings->writeSetting(SettingKeys::effects, 3);
    QCOMPARE(readFile(settings->settingsIni() + QStringLiteral(".damaged")), written);
    QCOMPARE(settings->readSetting(SettingKeys::leftColour).toString(), QStringLiteral("1 2 3"));
    QCOMPARE(settings->readSetting(SettingKeys::brightLevel).toInt(), 5);
}

void TestAppSettings::branding()
{
    writeFile(QStringLiteral("branding/lumikey_branding.ini"),
              "[settings]\nappname=Night Light\nhighlightcolor_RED=1\nhighlightcolor_GREEN=22\n"
              "highlightcolor_BLUE=255\n");
    QCOMPARE(settings->readBranding(BrandingKeys::appName).toString(),
             QStringLiteral("Night Light"));
    QCOMPARE(settings->readBranding(BrandingKeys::highlightRed).toInt(), 1);
    QCOMPARE(settings->readBranding(BrandingKeys::highlightGreen).toInt(), 22);
    QCOMPARE(settings->readBranding(BrandingKeys::highlightBlue).toInt(), 255);
}

void TestAppSettings::missingBranding()
{
    QCOMPARE(settings->readBranding(BrandingKeys::appName).toString(), QString());
    QCOMPARE(settings->readBranding(BrandingKeys::highlightBlue).toInt(), 0);
}

void TestAppSettings::workQueue()
{
    QVERIFY(QDir().mkdir(QStringLiteral("updates")));
    settings->writeWorkQueue(WorkKeys::updatePending, true);
    QVERIFY(readFile(QStringLiteral("updates/work.ini")).startsWith("[workqueue]"));
    QVERIFY(readFile(QStringLiteral("updates/work.ini")).contains("Lumikey=true"));
    settings->writeWorkQueue(WorkKeys::updatePending, false);
    QVERIFY(readFile(QStringLiteral("updates/work.ini")).contains("Lumikey=false"));
}

QTEST_GUILESS_MAIN(TestAppSettings)
#include "tst_appsettings.moc"
