#include "system/desktopentry.h"

#include <QTest>

class TestDesktopEntry : public QObject
{
    Q_OBJECT

private slots:
    void pathComesBack_data();
    void pathComesBack();
    void startsInTheProgramsFolder_data();
    void startsInTheProgramsFolder();
    void specialLetters();
    void wholeEntry();
    void execLine_data();
    void execLine();
};

void TestDesktopEntry::pathComesBack_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QStringLiteral("/opt/lumikey/Lumikey");
    QTest::newRow("blank") << QStringLiteral("/opt/my lights/Lumikey");
    QTest::newRow("percent") << QStringLiteral("/opt/100%/%u/Lumikey");
    QTest::newRow("percent at the end") << QStringLiteral("/opt/Lumikey%");
    QTest::newRow("percents") << QStringLiteral("/opt/%%%/Lumikey");
    QTest::newRow("quotes") << QStringLiteral("/opt/\"a\"`b`$c\\d/Lumikey");
    QTest::newRow("non-ASCII") << QStringLiteral("/opt/Lämpchen/Lumikey");
}

void TestDesktopEntry::pathComesBack()
{
    QFETCH(QString, path);
    const QByteArray entry = DesktopEntry::write(QStringLiteral("Lumikey"), path);
    QVERIFY(entry.startsWith("[Desktop Entry]\nType=Application\nName=Lumikey\nExec=\""));
    QCOMPARE(DesktopEntry::execPath(entry), path);
}

void TestDesktopEntry::startsInTheProgramsFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char *name, const char *path, const char *line) {
        QTest::newRow(name) << QString::fromUtf8(path) << QByteArray(line);
    };
    row("plain", "/opt/lumikey/Lumikey", "Path=/opt/lumikey");
    row("folder of the same name", "/opt/Lumikey/Lumikey", "Path=/opt/Lumikey");
    row("blank", "/opt/my lights/Lumikey", "Path=/opt/my lights");
    row("backslash", "/opt/a\\b/Lumikey", "Path=/opt/a\\\\b");
    row("percent and quotes", "/opt/100%/\"$x\"/Lumikey", "Path=/opt/100%/\"$x\"");
    row("non-ASCII", "/opt/Lämpchen/Lumikey", "Path=/opt/Lämpchen");
    row("root", "/Lumikey", "Path=/");
}

/// A log-in begins in the home folder, where none of the program's own files are.
void TestDesktopEntry::startsInTheProgramsFolder()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, line);
    const QByteArray entry = DesktopEntry::write(QStringLiteral("Lumikey"), path);
    QVERIFY2(entry.split('\n').contains(line), entry.constData());
}

/// Each of the four is escaped, and each backslash doubled once more.
void TestDesktopEntry::specialLetters()
{
    const QByteArray entry =
        DesktopEntry::write(QStringLiteral("Lumikey"), QStringLiteral("/a\"b`c$d\\e"));
    QVERIFY2(entry.contains("\nExec=\"/a\\\\\"b\\\\`c\\\\$d\\\\\\\\e\"\n"), entry.constData());
}

/// Each percent sign is doubled: alone it would have the desktop put something in its place.
void TestDesktopEntry::wholeEntry()
{
    QCOMPARE(DesktopEntry::write(QStringLiteral("Lumikey"), QStringLiteral("/opt/9%u/Lumikey")),
             QByteArray("[Desktop Entry]\nType=Application\nName=Lumikey\n"
                        "Exec=\"/opt/9%%u/Lumikey\"\nPath=/opt/9%u\nTerminal=false\n"));
}

void TestDesktopEntry::execLine_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("path");
    QTest::newRow("unquoted, arguments")
        << QByteArray("[Desktop Entry]\nExec=/usr/bin/Lumikey --x\n")
        << QStringLiteral("/usr/bin/Lumikey");
    QTest::newRow("escaped dollar") << QByteArray("Exec=\"/a\\\\$b\"\n") << QStringLiteral("/a$b");
    QTest::newRow("backslash without quotes")
        << QByteArray("Exec=/a\\\\b\n") << QStringLiteral("/a\\b");
    QTest::newRow("single percent") << QByteArray("Exec=/a%b/c\n") << QStringLiteral("/a%b/c");
    QTest::newRow("single percent at the end") << QByteArray("Exec=/a%\n") << QStringLiteral("/a%");
    QTest::newRow("none") << QByteArray("[Desktop Entry]\nName=Lumikey\n") << QString();
    QTest::newRow("empty file") << QByteArray() << QString();
    QTest::newRow("open quote") << QByteArray("Exec=\"/a b") << QStringLiteral("/a b");
    QTest::newRow("backslash at the end") << QByteArray("Exec=\"/a\\") << QStringLiteral("/a");
}

void TestDesktopEntry::execLine()
{
    QFETCH(QByteArray, entry);
    QTEST(DesktopEntry::execPath(entry), "path");
}

QTEST_GUILESS_MAIN(TestDesktopEntry)
#include "tst_desktopentry.moc"
