#include "companion/arguments.h"

#include <QTest>

using companion::decide;
using companion::ExitCode;
using companion::Notice;

namespace {

const QString version = QStringLiteral("7.8.9");

QStringList commandLine(const QString &arguments)
{
    QStringList all{QStringLiteral("lumikey-brightness")};
    if (!arguments.isNull()) {
        all += arguments.split(QLatin1Char('|'));
    }
    return all;
}

} // namespace

class TestBrightnessArguments : public QObject
{
    Q_OBJECT

private slots:
    void brightnesses_data();
    void brightnesses();
    void wrongUse_data();
    void wrongUse();
    void help_data();
    void help();
    void versionIsTold();
    void eachCodeHasOneMeaning();
};

void TestBrightnessArguments::brightnesses_data()
{
    QTest::addColumn<QString>("arguments"); // with "|" between them
    QTest::addColumn<int>("brightness");
    const auto row = [](const char *arguments, int brightness) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << brightness;
    };
    row("0", 0);
    row("1", 1);
    row("40", 40);
    row("99", 99);
    row("100", 100);
    row("007", 7);
    row("0000000000000000000000100", 100);
    row("-0", 0);
    row("--|40", 40);
}

void TestBrightnessArguments::brightnesses()
{
    QFETCH(QString, arguments);
    const auto decision = decide(commandLine(arguments), version);
    QVERIFY(std::holds_alternative<int>(decision));
    QTEST(std::get<int>(decision), "brightness");
}

void TestBrightnessArguments::wrongUse_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("what");
    const auto row = [](const char *arguments, ExitCode code, const char *what) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << int(code)
                                 << QString::fromUtf8(what);
    };
    QTest::newRow("nothing") << QString() << int(companion::NoNumber)
                             << QStringLiteral("which brightness? Give a number from 0 to 100.");
    row("--", companion::NoNumber, "which brightness?");
    row("101", companion::TooLarge, "101 is too large: give a number from 0 to 100.");
    row("4294967336", companion::TooLarge, "4294967336 is too large"); // 40 in 32 bits
    row("99999999999999999999", companion::TooLarge, "99999999999999999999 is too large");
    row("-1", companion::TooSmall, "-1 is too small: give a number from 0 to 100.");
    row("--|-1", companion::TooSmall, "-1 is too small");
    row("-99999999999999999999", companion::TooSmall, "-99999999999999999999 is too small");
    row("40|50", companion::SeveralNumbers, "give one number from 0 to 100, not 2.");
    row("40|40", companion::SeveralNumbers, "not 2.");
    row("40|-1", companion::SeveralNumbers, "not 2.");
    row("a|b|c", companion::SeveralNumbers, "not 3.");
    row("", companion::NotANumber, "'' is no whole number from 0 to 100.");
    row("forty", companion::NotANumber, "'forty' is no whole number from 0 to 100.");
    row("40%", companion::NotANumber, "'40%' is no whole number");
    row("+40", companion::NotANumber, "'+40' is no whole number");
    row(" 40", companion::NotANumber, "' 40' is no whole number");
    row("40 50", companion::NotANumber, "'40 50' is no whole number");
    row("4.5", companion::NotANumber, "'4.5' is no whole number");
    row("0x28", companion::NotANumber, "'0x28' is no whole number");
    row("4:", companion::NotANumber, "'4:' is no whole number");
    row("4/", companion::NotANumber, "'4/' is no whole number");
    row("40\n", companion::NotANumber, "'40\n' is no whole number");
    row("--5", companion::WrongOption, "5");
    row("-5x", companion::NotANumber, "'-5x' is no whole number");
    row("-", companion::NotANumber, "'-' is no whole number");
    row("\u0664\u0660", companion::NotANumber, "'\u0664\u0660' is no whole number");
    row("%1", companion::NotANumber, "'%1' is no whole number from 0 to 100.");
    row("--brightness", companion::WrongOption, "brightness");
    row("-x|40", companion::WrongOption, "x");
    row("--help-all", companion::WrongOption, "help-all");
}

void TestBrightnessArguments::wrongUse()
{
    QFETCH(QString, arguments);
    QFETCH(QString, what);
    const auto decision = decide(commandLine(arguments), version);
    QVERIFY(std::holds_alternative<Notice>(decision));
    const auto &notice = std::get<Notice>(decision);
    QTEST(int(notice.exitCode), "code");
    QVERIFY2(notice.text.startsWith(QStringLiteral("lumikey-brightness: ")),
             qPrintable(notice.text));
    QVERIFY2(notice.text.contains(what), qPrintable(notice.text));
    QVERIFY(notice.text.endsWith(QStringLiteral("\nTry lumikey-brightness --help.\n")));
}

void TestBrightnessArguments::help_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("long") << QStringLiteral("--help");
    QTest::newRow("short") << QStringLiteral("-h");
    QTest::newRow("beside a number") << QStringLiteral("40|--help");
    QTest::newRow("beside wrong ones") << QStringLiteral("-1|101|--help");
}

void TestBrightnessArguments::help()
{
    QFETCH(QString, arguments);
    const auto decision = decide(commandLine(arguments), version);
    QVERIFY(std::holds_alternative<Notice>(decision));
    const auto &notice = std::get<Notice>(decision);
    QCOMPARE(notice.exitCode, companion::Done);
    const QString text = notice.text;
    QCOMPARE(
        text.section(QLatin1Char('\n'), 1),
        QString::fromLatin1(
            R"(Sets the brightness of the keyboard, in percent, as a companion application does: a
running Lumikey takes it over. That takes this program about four seconds.

Exit codes:
  0  published for as long as a running Lumikey needs to take it over
  1  no Lumikey runs beside this program for this user
  2  no number was given
  3  what was given is no whole number
  4  the number is below 0
  5  the number is above 100
  6  more than one number was given
  7  an option that does not exist
  8  the segment is locked, too small for the text, or another user's

Options:
  -v, --version  Displays version information.
  -h, --help     Print this help and end.

Arguments:
  brightness     A whole number from 0 to 100.
)"));
    QVERIFY2(text.startsWith(QStringLiteral("Usage: ")), qPrintable(text));
    QVERIFY2(
        text.section(QLatin1Char('\n'), 0, 0).endsWith(QStringLiteral(" [options] brightness")),
        qPrintable(text));
}

void TestBrightnessArguments::versionIsTold()
{
    for (const char *option : {"--version", "-v"}) {
        const auto decision = decide(commandLine(QLatin1String(option)), version);
        QVERIFY(std::holds_alternative<Notice>(decision));
        QCOMPARE(std::get<Notice>(decision).exitCode, companion::Done);
        QCOMPARE(std::get<Notice>(decision).text, QStringLiteral("lumikey-brightness 7.8.9\n"));
    }
}

void TestBrightnessArguments::eachCodeHasOneMeaning()
{
    int code = 0;
    for (const companion::Meaning &meaning : companion::meanings) {
        QCOMPARE(int(meaning.code), code++);
    }
}

QTEST_GUILESS_MAIN(TestBrightnessArguments)
#include "tst_brightnessarguments.moc"
