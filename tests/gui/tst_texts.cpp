#include "ui/messages.h"
#include "ui/toolkittexts.h"

#include <QTest>

/// The texts that stand in tables, to the letter: they are agreed, and the translations find them
/// by these words alone.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void boxes_data();
    void boxes();
    void versions_data();
    void versions();
    void brightness_data();
    void brightness();
    void toolkit();
};

void TestTexts::boxes_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("agreed");
    const auto row = [](const char *name, const Message &message, const char *title,
                        const char *text) {
        QTest::addRow("%s, title", name)
            << QString::fromLatin1(message.title) << QString::fromLatin1(title);
        QTest::addRow("%s, text", name)
            << QString::fromLatin1(message.text) << QString::fromLatin1(text);
    };
    row("firmware library", Messages::installFirmwareLibrary, "Control Center not installed",
        "You do not seem to be using Control Center. For this software to work we need to install "
        "a small dll for it to work. Can we install it?.\n");
    row("update", Messages::updateNow, "Update Information",
        "There is an update for this software! Do you want to update now?.\n");
    row("update with rights", Messages::updateNeedsRights, "Update Information",
        "There is an update for this software! But to be able to update we need Admin access. Do "
        "you want to run this app with admin access so that we can update it automatically?");
    row("uninstall", Messages::uninstallNeedsRights, "Monitor",
        "To uninstall Lumikey we need admin access.\nDo you allow it?\nLumikey will restart with "
        "admin access, after that you should click the uninstall button again.");
    row("per-key", Messages::perKeyNeedsRights, "Per Key Install",
        "To install the Per-Key RGB App we need Admin access, do you allow it?");
}

void TestTexts::boxes()
{
    QFETCH(QString, shown);
    QTEST(shown, "agreed");
}

void TestTexts::versions_data()
{
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("notice");
    QTest::newRow("older") << int(VersionVerdict::UpdateWaits)
                           << QStringLiteral("There is an update! Click the update button.")
                           << QString(); // a question instead
    QTest::newRow("equal")
        << int(VersionVerdict::Latest)
        << QStringLiteral("You are running the latest version, there is no update.")
        << QStringLiteral("You are running the latest version, there is no update.\n");
    QTest::newRow("newer")
        << int(VersionVerdict::Newer)
        << QStringLiteral("Your version is newer then the official latest! Are you a beta tester?")
        << QStringLiteral("Your version is newer then the official latest! You are probably a beta "
                          "tester.\n");
}

void TestTexts::versions()
{
    QFETCH(int, verdict);
    QFETCH(QString, notice);
    const auto texts = Messages::versionTexts(static_cast<VersionVerdict>(verdict));
    QTEST(QString::fromLatin1(texts.description), "description");
    QCOMPARE(texts.notice == nullptr, notice.isNull());
    QCOMPARE(QString::fromLatin1(texts.notice), notice);
}

void TestTexts::brightness_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("agreed");
    const auto row = [](const char *shown, const char *agreed) {
        QTest::newRow(agreed) << QString::fromLatin1(shown) << QString::fromLatin1(agreed);
    };
    row(Messages::brightness, "Brightness Level: %1%");
    row(Messages::brightnessFromCompanion, "Brightness Level: %1% (set by Dashport)");
    row(Messages::brightnessUnderEffects, "Brightness Level: %1% (disabled for Effects)");
    row(Messages::brightnessText(DimPhase::Watching), "Brightness Level: %1% (Auto dim mode)");
    row(Messages::brightnessText(DimPhase::Dimming), "Brightness Level: %1% (dimming down)");
    row(Messages::brightnessText(DimPhase::Dimmed), "Brightness Level: %1% (dimmed)");
}

void TestTexts::brightness()
{
    QFETCH(QString, shown);
    QTEST(shown, "agreed");
}

/// A text that is spelt in another way than the toolkit's own is one that the toolkit never asks
/// for.
void TestTexts::toolkit()
{
    QStringList listed;
    for (const ToolkitText &row : toolkitTexts) {
        listed += QLatin1String(row.context) + QStringLiteral(": ") + QLatin1String(row.text);
    }
    QStringList asked;
    for (const char *text :
         {"QPlatformTheme: OK", "QPlatformTheme: &Yes", "QPlatformTheme: &No", "QLineEdit: &Undo",
          "QLineEdit: &Redo", "QLineEdit: Cu&t", "QLineEdit: &Copy", "QLineEdit: &Paste",
          "QLineEdit: Delete", "QLineEdit: Select All", "QShortcut: Ctrl", "QShortcut: Shift"}) {
        asked += QLatin1String(text);
    }
    QCOMPARE(listed, asked);
}

QTEST_APPLESS_MAIN(TestTexts)
#include "tst_texts.moc"
