#include "app/appsettings.h"
#include "tests/support/guitest.h"
#include "tests/unit/settingsfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

/// What the log is told of the files, and what becomes of damaged ones.
class TestSettingsLog : public QObject, protected SettingsFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void healthyFilesAreNotMentioned();
    void missingFilesAreNotMentioned();
    void damageIsOneLine();
    void troubleThatComesAgainIsANewLine();
    void damagedBrandingIsNoDamageToTheSettings();
    void laterDamageIsPutAsideToo();
    void noneIsPutAsideWithoutDamage();
    void aHeldFileIsWaitedFor();
    void aLockIsNotTakenForAbandonedTooSoon();

private:
    static QStringList &log()
    {
        static QStringList lines;
        return lines;
    }
    static void take(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                     const QString &text)
    {
        log() << text;
    }
    QString damaged() const { return settings->settingsIni() + QStringLiteral(".damaged"); }

    QtMessageHandler before = nullptr;
};

void TestSettingsLog::init()
{
    enter();
    log().clear();
    before = qInstallMessageHandler(take);
}

void TestSettingsLog::cleanup()
{
    qInstallMessageHandler(before);
    leave();
}

void TestSettingsLog::healthyFilesAreNotMentioned()
{
    writeFile(settings->brandingIni(), "[settings]\nappname=Ours\n");
    writeFile(settings->workIni(), "[workqueue]\nLumikey=false\n");
    settings->write(SettingKeys::effects, 3);
    settings->write(WorkKeys::updatePending, true);
    QCOMPARE(settings->read(BrandingKeys::appName), QStringLiteral("Ours"));
    QCOMPARE(settings->read(SettingKeys::effects), 3);
    settings->openSettings();
    QCOMPARE(log(), QStringList());
}

void TestSettingsLog::missingFilesAreNotMentioned()
{
    settings->read(BrandingKeys::appName);
    settings->read(SettingKeys::effects);
    QCOMPARE(log(), QStringList());
}

/// The write that mends the file has nothing to add.
void TestSettingsLog::damageIsOneLine()
{
    writeFile(settings->settingsIni(), "[settings]\neffects=3\nbrightle");
    settings->write(SettingKeys::brightLevel, 5);
    settings->write(SettingKeys::brightLevel, 6);
    QCOMPARE(log(), QStringList(QStringLiteral("Malformed file: ") + settings->settingsIni()));
}

void TestSettingsLog::troubleThatComesAgainIsANewLine()
{
    const QString blocked = folder->filePath(QStringLiteral("Documents/Corvane"));
    const QString line = QStringLiteral("Cannot write file: ") + settings->settingsIni();
    QStringList expected;
    for (int time = 0; time < 2; ++time) {
        writeFile(blocked, "in the way");
        settings->write(SettingKeys::effects, 1);
        settings->write(SettingKeys::effects, 2);
        expected << line;
        QCOMPARE(log(), expected);
        QVERIFY(QFile::remove(blocked));
        settings->write(SettingKeys::effects, 3);
        QCOMPARE(settings->read(SettingKeys::effects), 3);
        QVERIFY(QDir(blocked).removeRecursively());
    }
    QCOMPARE(log(), expected);
}

void TestSettingsLog::damagedBrandingIsNoDamageToTheSettings()
{
    settings->write(SettingKeys::effects, 3);
    writeFile(settings->brandingIni(), "half a li");
    settings->read(BrandingKeys::appName);
    QCOMPARE(log().size(), 1);
    QVERIFY(!QFileInfo::exists(damaged()));
}

void TestSettingsLog::laterDamageIsPutAsideToo()
{
    for (const char *content : {"[settings]\nbrightle", "[settings]\neffe"}) {
        writeFile(settings->settingsIni(), content);
        AppSettings(folder->filePath(QStringLiteral("Documents"))).read(SettingKeys::effects);
        QCOMPARE(readFile(damaged()), QByteArray(content));
        QVERIFY(!QFileInfo::exists(damaged() + QStringLiteral(".new")));
    }
}

void TestSettingsLog::noneIsPutAsideWithoutDamage()
{
    settings->write(SettingKeys::effects, 3);
    settings->read(SettingKeys::effects);
    QVERIFY(!QFileInfo::exists(damaged()));
}

/// About a third of a second: others write in milliseconds, and a window that waits for longer
/// looks as if it hung.
void TestSettingsLog::aHeldFileIsWaitedFor()
{
    settings->write(SettingKeys::effects, 1);
    QLockFile other(settings->settingsIni() + QStringLiteral(".lock"));
    other.setStaleLockTime(0); // never
    QVERIFY(other.tryLock());
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int time = 0; time < 10 && shortest > 550; ++time) { // a busy machine is late
        const AppSettings fresh(folder->filePath(QStringLiteral("Documents")));
        QElapsedTimer timer;
        timer.start();
        fresh.write(SettingKeys::effects, 2);
        shortest = qMin(shortest, timer.elapsed());
    }
    QVERIFY2(shortest >= 290 && shortest <= 550, qPrintable(QString::number(shortest)));
    other.unlock();
    QCOMPARE(settings->read(SettingKeys::effects), 1);
}

/// Its writer may not have got to writing its name into it.
void TestSettingsLog::aLockIsNotTakenForAbandonedTooSoon()
{
    QElapsedTimer timer;
    timer.start();
    writeFile(settings->settingsIni() + QStringLiteral(".lock"), {});
    settings->write(SettingKeys::effects, 3);
    const qint64 waited = timer.elapsed();
    QCOMPARE(settings->read(SettingKeys::effects), 3);
    QVERIFY2(waited >= 150, qPrintable(QString::number(waited)));
}

QTEST_GUILESS_MAIN(TestSettingsLog)
#include "tst_settingslog.moc"
