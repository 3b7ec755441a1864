#include "system/testing/filesmade.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QTest>

#include <functional>

using Choice = std::function<void(TestWindow &)>;
Q_DECLARE_METATYPE(Choice)

/// What belongs together is stored in one write: nobody ever finds half of it, and the disk is
/// waited for once.
class TestSettingsWrites : public QObject
{
    Q_OBJECT

private slots:
    void oneChoiceIsOneWrite_data();
    void oneChoiceIsOneWrite();
};

void TestSettingsWrites::oneChoiceIsOneWrite_data()
{
    QTest::addColumn<Choice>("choice");
    QTest::addColumn<QByteArrayList>("lines");
    const auto row = [](const char *name, const Choice &choice, const QByteArrayList &lines) {
        QTest::newRow(name) << choice << lines;
    };
    const auto click = [](const char *button) -> Choice {
        return [button](TestWindow &world) {
            world.get<QAbstractButton>(button)->click();
        };
    };
    const auto colour = [](const char *opener) -> Choice {
        return [opener](TestWindow &world) {
            world.get<QAbstractButton>(opener)->click();
            world.window->updateColorRGB(QStringLiteral("1 2 3"));
            world.get<QAbstractButton>("pushButton")->click();
        };
    };
    row("Disabled", click("backlight_off"), {"backlight_on=false", "backlight_off=true"});
    row("Enabled", click("backlight_on"), {"backlight_on=true", "backlight_off=false"});
    row("whole keyboard", colour("colorpick4"),
        {"Zone1Color=1 2 3", "Zone2Color=1 2 3", "Zone3Color=1 2 3", "Zone4Color=1 2 3",
         "singlecolorselectedlast=true"});
    row("one zone after it", colour("colorpick2"),
        {"Zone1Color=4 5 6", "Zone2Color=1 2 3", "singlecolorselectedlast=false"});
    row("stripe", colour("colorpick5"), {"StripeLid=1 2 3", "singlecolorselectedlast=true"});
    row("end", [](TestWindow &world) { world.window->ShutdownQuit(); },
        {"mainWindowGeometry=@ByteArray(", "mainWindowState=@ByteArray("});
}

void TestSettingsWrites::oneChoiceIsOneWrite()
{
    QFETCH(Choice, choice);
    QFETCH(QByteArrayList, lines);
    TestWindow world;
    world.writeSettings("backlight_on=true\nbacklight_off=false\nbrightlevel=100\n"
                        "singlecolorselectedlast=true\nZone1Color=4 5 6\nZone2Color=4 5 6\n"
                        "Zone3Color=4 5 6\nZone4Color=4 5 6\nP751LEDStripe=true\n");
    world.start();
    if (QByteArray(QTest::currentDataTag()) == "Enabled") {
        world.get<QAbstractButton>("backlight_off")->click();
    }
    const FilesMade made(world.settings.companyDir());
    choice(world);
    const QByteArray text = readFile(world.settings.settingsIni());
    for (const QByteArray &line : lines) {
        QVERIFY2(text.contains('\n' + line), text.constData());
    }
    if (!made.areTold()) {
        QSKIP("this system does not tell what files are made");
    }
    QCOMPARE(made.taken().count(QStringLiteral("lumikey.ini.lock")), 1);
}

QTEST_MAIN(TestSettingsWrites)
#include "tst_settingswrites.moc"
