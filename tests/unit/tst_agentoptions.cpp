#include "examples/agent/options.h"

#include <QTest>

using agent::Notice;
using agent::Options;

class TestAgentOptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void options_data();
    void options();
    void wrongUse_data();
    void wrongUse();
    void help_data();
    void help();
    void version();

private:
    /// @param arguments with blanks between them
    static std::variant<Options, Notice> parse(const char *arguments)
    {
        const QString all = QStringLiteral("agent ") + QString::fromLatin1(arguments);
        return agent::parseOptions(all.split(QLatin1Char(' ')));
    }
};

void TestAgentOptions::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("some-agent"));
    QCoreApplication::setApplicationVersion(QStringLiteral("7.8.9"));
}

void TestAgentOptions::options_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<QString>("flags");
    const auto row = [](const char *arguments, int period, int timeout, const char *flags = "") {
        QTest::newRow(arguments) << period << timeout << QString::fromLatin1(flags);
    };
    row("--", 100, 2000);
    row("--once", 100, 2000, " once");
    row("--json", 100, 2000, " json");
    row("--wait", 100, 2000, " wait");
    row("--wait --json --once", 100, 2000, " once json wait");
    row("--period 1", 1, 2000);
    row("--period 3600000", 3600000, 2000);
    row("--period=250 --timeout=007", 250, 7);
    row("--timeout 1", 100, 1);
    row("--timeout 3600000", 100, 3600000);
    row("--period 1234567890 --period 5", 5, 2000); // the last one counts
}

void TestAgentOptions::options()
{
    const auto parsed = parse(QTest::currentDataTag());
    QVERIFY(std::holds_alternative<Options>(parsed));
    const auto &options = std::get<Options>(parsed);
    QTEST(options.period, "period");
    QTEST(options.timeout, "timeout");
    QString flags;
    flags += options.once ? QStringLiteral(" once") : QString();
    flags += options.json ? QStringLiteral(" json") : QString();
    flags += options.wait ? QStringLiteral(" wait") : QString();
    QTEST(flags, "flags");
}

void TestAgentOptions::wrongUse_data()
{
    QTest::addColumn<QString>("what");
    const auto row = [](const char *arguments, const char *what) {
        QTest::newRow(arguments) << QString::fromLatin1(what);
    };
    row("--period 0", "--period takes milliseconds from 1 to 3600000, not '0'.");
    row("--period 3600001", "--period takes milliseconds from 1 to 3600000, not '3600001'.");
    row("--period 2147483648", "--period takes milliseconds from 1 to 3600000, not '2147483648'.");
    row("--period 4294967396", "--period takes milliseconds from 1 to 3600000, not '4294967396'.");
    row("--period -1", "--period takes milliseconds from 1 to 3600000, not '-1'.");
    row("--period +1", "--period takes milliseconds from 1 to 3600000, not '+1'.");
    row("--period 1/", "--period takes milliseconds from 1 to 3600000, not '1/'.");
    row("--period 1:", "--period takes milliseconds from 1 to 3600000, not '1:'.");
    row("--period 0x10", "--period takes milliseconds from 1 to 3600000, not '0x10'.");
    row("--period=", "--period takes milliseconds from 1 to 3600000, not ''.");
    row("--timeout 0", "--timeout takes milliseconds from 1 to 3600000, not '0'.");
    row("--timeout 3600001", "--timeout takes milliseconds from 1 to 3600000, not '3600001'.");
    row("--timeout x --period x", "--period takes milliseconds from 1 to 3600000, not 'x'.");
    row("once", "unexpected argument 'once'.");
    row("--json first second", "unexpected argument 'first'.");
    row("--period", "Missing value after '--period'.");
    row("--twice", "Unknown option 'twice'.");
    row("--help-all", "Unknown option 'help-all'.");
}

void TestAgentOptions::wrongUse()
{
    QFETCH(QString, what);
    const auto parsed = parse(QTest::currentDataTag());
    QVERIFY(std::holds_alternative<Notice>(parsed));
    const auto &notice = std::get<Notice>(parsed);
    QCOMPARE(notice.text, QStringLiteral("lumikey-agent: ") + what
                              + QStringLiteral("\nTry lumikey-agent --help.\n"));
    QCOMPARE(notice.exitCode, 3);
}

void TestAgentOptions::help_data()
{
    QTest::addColumn<int>("unused");
    for (const char *arguments :
         {"--help", "-h", "--once --help", "--help --period 0", "-h once"}) {
        QTest::newRow(arguments) << 0;
    }
}

void TestAgentOptions::help()
{
    const auto parsed = parse(QTest::currentDataTag());
    QVERIFY(std::holds_alternative<Notice>(parsed));
    const auto &notice = std::get<Notice>(parsed);
    QCOMPARE(notice.exitCode, 0);
    const QString usage = notice.text.section(QLatin1Char('\n'), 0, 0);
    QVERIFY2(usage.startsWith(QStringLiteral("Usage: ")), qPrintable(usage));
    QVERIFY2(usage.endsWith(QStringLiteral(" [options]")), qPrintable(usage));
    QCOMPARE(notice.text.section(QLatin1Char('\n'), 1),
             QString::fromLatin1(R"(Shows the lighting that Lumikey hands out at 127.0.0.9:52316.

In a terminal the picture is drawn in place (NO_COLOR is respected); otherwise a
line is printed whenever the lighting has changed.

Exit codes: 0 done, 1 no server, 2 malformed answer or time limit, 3 wrong use.

Options:
  -v, --version   Displays version information.
  -h, --help      Print this help and end.
  --once          Print one answer and end.
  --json          Print every answer as one JSON object a line.
  --wait          While no server is there, keep trying instead of ending.
  --period <ms>   Connect every <ms> milliseconds (default 100).
  --timeout <ms>  Give one connection <ms> milliseconds (default 2000).
)"));
}

void TestAgentOptions::version()
{
    for (const char *option : {"--version", "-v"}) {
        const auto parsed = parse(option);
        QVERIFY(std::holds_alternative<Notice>(parsed));
        QCOMPARE(std::get<Notice>(parsed).text, QStringLiteral("some-agent 7.8.9\n"));
        QCOMPARE(std::get<Notice>(parsed).exitCode, 0);
    }
}

QTEST_GUILESS_MAIN(TestAgentOptions)
#include "tst_agentoptions.moc"
