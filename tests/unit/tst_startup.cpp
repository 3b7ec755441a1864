#include "app/startup.h"

#include <QTest>

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void plan_data();
    void plan();
    void planOnOtherSystems_data();
    void planOnOtherSystems();
    void fontPixelSizes_data();
    void fontPixelSizes();
};

void TestStartup::plan_data()
{
    const QString unchanged = QStringLiteral("(unchanged)");
    const QString run = QStringLiteral("C:\\Apps\\Lumikey\\Lumikey.exe");
    const QString folder = QStringLiteral("C:\\Apps\\Lumikey\\");
    QTest::addColumn<QString>("runValue");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("newDirectory");
    QTest::addColumn<QString>("newRunValue");

    QTest::newRow("WINDOWS") << run << QStringLiteral("C:/WINDOWS/system32") << folder << unchanged;
    QTest::newRow("system32") << run << QStringLiteral("C:/x/system32") << folder << unchanged;
    QTest::newRow("Windows") << run << QStringLiteral("C:/Windows") << folder << unchanged;
    QTest::newRow("mark inside a name")
        << run << QStringLiteral("D:/MyWindowsTools") << folder << unchanged;
    QTest::newRow("other case of the mark")
        << run << QStringLiteral("C:/windows/System32") << unchanged
        << QStringLiteral("C:\\windows\\System32\\Lumikey.exe");
    QTest::newRow("elsewhere") << run << QStringLiteral("D:/Tools") << unchanged
                               << QStringLiteral("D:\\Tools\\Lumikey.exe");
    QTest::newRow("own folder, rewritten all the same")
        << run << QStringLiteral("C:/Apps/Lumikey") << unchanged << run;
    QTest::newRow("a folder of the entry's very name")
        << run << QStringLiteral("C:/Apps/Lumikey/Lumikey.exe") << unchanged << unchanged;
    QTest::newRow("drive root") << run << QStringLiteral("D:/") << unchanged
                                << QStringLiteral("D:\\\\Lumikey.exe");
    QTest::newRow("no value") << QString() << QStringLiteral("D:/Tools") << unchanged << unchanged;
    QTest::newRow("no value, system folder")
        << QString() << QStringLiteral("C:/WINDOWS/system32") << unchanged << unchanged;
    QTest::newRow("other case of the name") << QStringLiteral("C:\\Apps\\lumikey.EXE")
                                            << QStringLiteral("D:/Tools") << unchanged << unchanged;
    QTest::newRow("other case, system folder")
        << QStringLiteral("C:\\Apps\\lumikey.exe") << QStringLiteral("C:/WINDOWS") << unchanged
        << unchanged;
    QTest::newRow("name twice") << QStringLiteral("C:\\Lumikey.exe\\Lumikey.exe")
                                << QStringLiteral("C:/WINDOWS") << QStringLiteral("C:\\\\")
                                << unchanged;
    QTest::newRow("name alone") << QStringLiteral("Lumikey.exe") << QStringLiteral("C:/WINDOWS")
                                << QString() << unchanged;
}

void TestStartup::plan()
{
    QFETCH(QString, runValue);
    QFETCH(QString, directory);
    const StartUpPlan plan =
        planStartUp(runValue, directory, {QStringLiteral("Lumikey.exe"), QLatin1Char('\\')});
    QTEST(plan.workingDirectory.value_or(QStringLiteral("(unchanged)")), "newDirectory");
    QTEST(plan.autostartValue.value_or(QStringLiteral("(unchanged)")), "newRunValue");
}

void TestStartup::planOnOtherSystems_data()
{
    const QString unchanged = QStringLiteral("(unchanged)");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("newDirectory");
    QTest::addColumn<QString>("newEntry");
    QTest::newRow("elsewhere") << QStringLiteral("/opt/lumikey/Lumikey")
                               << QStringLiteral("/srv/tools") << unchanged
                               << QStringLiteral("/srv/tools/Lumikey");
    QTest::newRow("system folder")
        << QStringLiteral("/opt/lumikey/Lumikey") << QStringLiteral("/mnt/Windows")
        << QStringLiteral("/opt/lumikey/") << unchanged;
    QTest::newRow("folder of the same name, elsewhere")
        << QStringLiteral("/opt/Lumikey/Lumikey") << QStringLiteral("/opt/Lumikey") << unchanged
        << QStringLiteral("/opt/Lumikey/Lumikey");
    QTest::newRow("folder of the same name, system folder")
        << QStringLiteral("/opt/Lumikey/Lumikey") << QStringLiteral("/mnt/Windows")
        << QStringLiteral("/opt/Lumikey/") << unchanged;
    QTest::newRow("folder whose name begins alike, system folder")
        << QStringLiteral("/opt/Lumikey-1.0.4/Lumikey") << QStringLiteral("/mnt/Windows")
        << QStringLiteral("/opt/Lumikey-1.0.4/") << unchanged;
    QTest::newRow("name that ends alike") << QStringLiteral("/opt/NotLumikey")
                                          << QStringLiteral("/srv/tools") << unchanged << unchanged;
    QTest::newRow("another program in such a folder")
        << QStringLiteral("/opt/Lumikey/other") << QStringLiteral("/srv/tools") << unchanged
        << unchanged;
}

/// Where programs have no suffix a folder may well share the name: only the end of a path counts.
void TestStartup::planOnOtherSystems()
{
    QFETCH(QString, entry);
    QFETCH(QString, directory);
    const StartUpPlan plan =
        planStartUp(entry, directory, {QStringLiteral("Lumikey"), QLatin1Char('/'), true});
    QTEST(plan.workingDirectory.value_or(QStringLiteral("(unchanged)")), "newDirectory");
    QTEST(plan.autostartValue.value_or(QStringLiteral("(unchanged)")), "newEntry");
}

void TestStartup::fontPixelSizes_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("up to 96") << 1 << 96 << 12;
    QTest::newRow("97 to 120") << 97 << 120 << 14;
    QTest::newRow("121 to 144") << 121 << 144 << 17;
    QTest::newRow("145 to 160") << 145 << 160 << 19;
    QTest::newRow("161 to 180") << 161 << 180 << 20;
    QTest::newRow("181 to 192") << 181 << 192 << 22;
    QTest::newRow("193 to 216") << 193 << 216 << 24;
    QTest::newRow("217 to 240") << 217 << 240 << 26;
    QTest::newRow("241 to 288") << 241 << 288 << 34;
    QTest::newRow("289 to 336") << 289 << 336 << 36;
    QTest::newRow("above 336") << 337 << 1000 << 0;
}

void TestStartup::fontPixelSizes()
{
    QFETCH(int, lowest);
    QFETCH(int, highest);
    for (const int dpi : {lowest, (lowest + highest) / 2, highest}) {
        QTEST(fontPixelSize(dpi).value_or(0), "pixelSize");
    }
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
