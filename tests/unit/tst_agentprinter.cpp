#include "examples/agent/printer.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <string>

using agent::Answer;

namespace {

const Answer red{{0xF000FF00U, 0xF1000000U, 0xF2000000U, 0xF3000000U}, 0};
const Answer wake{{agent::wakeWord, agent::wakeWord, agent::wakeWord, agent::wakeWord}, 0};
const Answer off{{agent::offWord, agent::offWord, agent::offWord, agent::offWord}, 0};

/// What one letter of the script has the printer do.
void perform(agent::Printer &printer, char letter)
{
    switch (letter) {
    case 'r':
        printer.show(red);
        break;
    case 'w':
        printer.show(wake);
        break;
    case 'o':
        printer.show(off);
        break;
    default:
        printer.complain(QStringLiteral("trouble"));
        break;
    }
}

/// The printer writes to the standard streams, so it works in a process of its own.
int print(const std::string &form, const std::string &script)
{
    agent::Options options;
    options.json = form == "json";
    options.once = form == "once";
    agent::Printer printer(options, form == "terminal" || form == "once", false);
    for (const char letter : script) {
        perform(printer, letter);
    }
    return 0;
}

} // namespace

class TestAgentPrinter : public QObject
{
    Q_OBJECT

private slots:
    void aLineWheneverSomethingChanges();
    void aLineOfJsonForEachAnswer();
    void pictureInPlace();
    void pictureOfOneAnswer();
    void complaints();

private:
    QString written(const char *form, const char *script)
    {
        QProcess process;
        process.start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("--print"), QString::fromLatin1(form), QString::fromLatin1(script)});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            return QStringLiteral("(failed)");
        }
        errors = QString::fromUtf8(process.readAllStandardError()).remove(QLatin1Char('\r'));
        return QString::fromUtf8(process.readAllStandardOutput()).remove(QLatin1Char('\r'));
    }

    QString errors;
};

void TestAgentPrinter::aLineWheneverSomethingChanges()
{
    const QStringList lines = written("plain", "rrrwwr").split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4); // the last one is empty
    QVERIFY(lines.at(0).startsWith(QStringLiteral("normal: left #ff0000 ")));
    QVERIFY(lines.at(1).startsWith(QStringLiteral("wake: left raw ")));
    QCOMPARE(lines.at(2), lines.at(0));
    QCOMPARE(lines.at(3), QString());
}

void TestAgentPrinter::aLineOfJsonForEachAnswer()
{
    const QStringList lines = written("json", "rro").split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(1), lines.at(0));
    QVERIFY(lines.at(0).contains(QStringLiteral("\"kind\":\"normal\"")));
    QVERIFY(lines.at(2).contains(QStringLiteral("\"kind\":\"off\"")));
}

void TestAgentPrinter::pictureInPlace()
{
    const QString output = written("terminal", "rwor");
    QVERIFY(output.contains(
        QStringLiteral("Lumikey lighting, 127.0.0.9:52316, every 100 ms (Ctrl+C ends)")));
    const QStringList counts{
        QStringLiteral("1 normal, 0 wake, 0 off"), QStringLiteral("1 normal, 1 wake, 0 off"),
        QStringLiteral("1 normal, 1 wake, 1 off"), QStringLiteral("2 normal, 1 wake, 1 off")};
    int at = 0;
    for (const QString &count : counts) {
        at = output.indexOf(count, at);
        QVERIFY2(at >= 0, qPrintable(count));
    }
    // Each picture but the first goes up by its own lines, and comes down again.
    const QRegularExpression up(QStringLiteral("\x1b\\[([0-9]+)A"));
    QCOMPARE(output.count(up), 3);
    QCOMPARE(output.count(QLatin1Char('\n')), 4 * up.match(output).captured(1).toInt());
}

void TestAgentPrinter::pictureOfOneAnswer()
{
    const QString output = written("once", "r");
    QVERIFY(output.contains(QStringLiteral("127.0.0.9:52316\x1b")));
    QVERIFY(!output.contains(QStringLiteral("every")));
    QVERIFY(!output.contains(QStringLiteral("so far")));
}

void TestAgentPrinter::complaints()
{
    // What follows a complaint is told again, and drawn below it.
    QCOMPARE(written("plain", "rcr").count(QLatin1Char('\n')), 2);
    QCOMPARE(errors, QStringLiteral("lumikey-agent: trouble\n"));
    QVERIFY(
        !written("terminal", "rcr").contains(QRegularExpression(QStringLiteral("\x1b\\[[0-9]+A"))));
    QCOMPARE(errors, QStringLiteral("lumikey-agent: trouble\n"));
}

int main(int argc, char **argv)
{
    if (argc == 4 && argv[1] == std::string("--print")) {
        return print(argv[2], argv[3]);
    }
    QCoreApplication application(argc, argv);
    TestAgentPrinter test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_agentprinter.moc"
