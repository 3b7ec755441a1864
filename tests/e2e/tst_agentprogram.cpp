// Starts the real lumikey-agent against a server in this process.

#include "agentharness.h"
#include "agentlines.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

#include <memory>
#include <vector>

using namespace AgentLines;

class TestAgentProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void helpAndVersion();
    void wrongUse_data();
    void wrongUse();
    void noServer_data();
    void noServer();
    void noConnectionInTime();
    void once_data();
    void once();
    void onceAsJson();
    void malformed_data();
    void malformed();
    void outputThatCannotBeWritten();
    void coloursInATerminal_data();
    void coloursInATerminal();

private:
    std::unique_ptr<Server> server;
};

void TestAgentProgram::init()
{
    server = std::make_unique<Server>();
}

void TestAgentProgram::helpAndVersion()
{
    Agent help({QStringLiteral("--help")});
    QCOMPARE(help.exitCode(), 0);
    for (const char *option : {"--once", "--json", "--wait", "--period <ms>", "--timeout <ms>"}) {
        QVERIFY2(help.output().contains(QLatin1String(option)), option);
    }
    for (const char *limit : {"(default 100)", "(default 2000)"}) {
        QVERIFY2(help.output().contains(QLatin1String(limit)), limit);
    }
    QCOMPARE(help.errors(), QString());

    Agent version({QStringLiteral("--version")});
    QCOMPARE(version.exitCode(), 0);
    const QRegularExpression form(QStringLiteral("^lumikey-agent \\d+\\.\\d+\\.\\d+\n$"));
    QVERIFY2(form.match(version.output()).hasMatch(), qPrintable(version.output()));
}

void TestAgentProgram::wrongUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char *name, const QStringList &arguments, const char *complaint) {
        QTest::newRow(name) << arguments << QString::fromLatin1(complaint);
    };
    const auto period = [](const char *value) {
        return QStringList{QStringLiteral("--period"), QString::fromLatin1(value)};
    };
    row("unknown option", {QStringLiteral("--twice")}, "twice");
    row("unknown help", {QStringLiteral("--help-all")}, "help-all");
    row("stray argument", {QStringLiteral("once")}, "unexpected argument 'once'.");
    row("period without a value", {QStringLiteral("--period")}, "period");
    row("period 0", period("0"), "--period takes milliseconds from 1 to 3600000, not '0'.");
    row("period empty", period(""), "--period takes milliseconds from 1 to 3600000, not ''.");
    row("period negative", {QStringLiteral("--period=-5")}, "not '-5'.");
    row("period with a sign", period("+5"), "not '+5'.");
    row("period with a blank", period(" 5"), "not ' 5'.");
    row("period with a unit", period("5ms"), "not '5ms'.");
    row("period too long", period("3600001"), "not '3600001'.");
    row("period beyond 64 bits", period("99999999999999999999"), "not '99999999999999999999'.");
    row("timeout 0", {QStringLiteral("--timeout"), QStringLiteral("0")},
        "--timeout takes milliseconds from 1 to 3600000, not '0'.");
}

void TestAgentProgram::wrongUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);

    Agent agent(arguments);
    QCOMPARE(agent.exitCode(), 3);
    QCOMPARE(agent.output(), QString());
    QVERIFY2(agent.errors().contains(complaint), qPrintable(agent.errors()));
}

void TestAgentProgram::noServer_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("polling") << QStringList();
    QTest::newRow("once") << QStringList{QStringLiteral("--once")};
    QTest::newRow("json") << QStringList{QStringLiteral("--json")};
    QTest::newRow("once as json") << QStringList{QStringLiteral("--once"),
                                                 QStringLiteral("--json")};
}

void TestAgentProgram::noServer()
{
    QFETCH(QStringList, arguments);

    Agent agent(arguments);
    QCOMPARE(agent.exitCode(), 1);
    QCOMPARE(agent.output(), QString());
    const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("lumikey-agent: no server at 127\\.0\\.0\\.9:52316 \\([^()]+\\); "
                       "is Lumikey running\\?\n")));
    QVERIFY2(form.match(agent.errors()).hasMatch(), qPrintable(agent.errors()));
}

/// The server is there, but nobody takes the connections in its queue, which is full.
void TestAgentProgram::noConnectionInTime()
{
    QTcpServer crowded;
    QVERIFY(crowded.listen(QHostAddress(QStringLiteral("127.0.0.9")), port));
    crowded.pauseAccepting();
    std::vector<std::unique_ptr<QTcpSocket>> queue;
    do {
        QVERIFY(queue.size() < 1000);
        queue.push_back(std::make_unique<QTcpSocket>());
        queue.back()->connectToHost(crowded.serverAddress(), port);
    } while (queue.back()->waitForConnected(500));
    if (queue.back()->error() == QAbstractSocket::ConnectionRefusedError) {
        QSKIP("this system turns away whom it has no room for");
    }
    Agent agent({QStringLiteral("--timeout"), QStringLiteral("300")});
    QCOMPARE(agent.exitCode(), 1);
    QCOMPARE(agent.errors(), QStringLiteral("lumikey-agent: no server at 127.0.0.9:52316 (no "
                                            "connection within 300 ms); is Lumikey running?\n"));
}

void TestAgentProgram::once_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("byteAtATime");
    QTest::addColumn<QString>("line");

    QTest::newRow("normal") << normalText << false << normalLine;
    QTest::newRow("normal, a byte at a time") << normalText << true << normalLine;
    QTest::newRow("effect") << effectText << false << effectLine;
    QTest::newRow("off") << offText << false << offLine;
    QTest::newRow("brightness zero") << dimmedText << false << dimmedLine;
    QTest::newRow("wake") << wakeText << false << wakeLine;
    QTest::newRow("wake, a byte at a time") << wakeText << true << wakeLine;
}

void TestAgentProgram::once()
{
    QFETCH(QString, text);
    QFETCH(bool, byteAtATime);
    QFETCH(QString, line);

    server->replies = {{frame(text), byteAtATime}};
    QVERIFY(server->listen());
    QStringList arguments{QStringLiteral("--once")};
    if (byteAtATime) {
        // On a busy machine the bytes may need longer than the usual limit.
        arguments += {QStringLiteral("--timeout"), QString::number(patienceMs)};
    }
    Agent agent(arguments);
    QCOMPARE(agent.exitCode(), 0);
    QCOMPARE(agent.output(), line);
    QCOMPARE(agent.errors(), QString());
    QCOMPARE(server->times.size(), 1);
}

void TestAgentProgram::onceAsJson()
{
    server->replies = repliesOf({effectText});
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--json"), QStringLiteral("--once")});
    QCOMPARE(agent.exitCode(), 0);
    QCOMPARE(
        agent.output(),
        QStringLiteral("{\"effect\":{\"name\":\"Wave\",\"word\":2952790016},\"kind\":\"normal\","
                       "\"words\":[4026597120,4043309056,4060086272,4076863488],"
                       "\"zones\":{\"centre\":{\"b\":0,\"g\":0,\"r\":0},"
                       "\"left\":{\"b\":0,\"g\":0,\"r\":255},"
                       "\"right\":{\"b\":0,\"g\":0,\"r\":0},"
                       "\"stripe\":{\"b\":0,\"g\":0,\"r\":0}}}\n"));
}

void TestAgentProgram::malformed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("close");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char *name, const QByteArray &bytes, bool close,
                        const char *complaint) {
        QTest::newRow(name) << bytes << close << QString::fromLatin1(complaint);
    };
    const QByteArray good = frame(normalText);
    row("cut short", good.left(50), true,
        "46 of the 94 bytes that the first length announces are missing");
    row("one byte", good.left(1), true, "1 byte(s) of the 2 of the first length are missing");
    row("nothing", QByteArray(), true, "the server closed the connection without sending a byte");
    row("a byte too many", good + '\n', true, "1 byte(s) follow the text");
    row("two answers", good + good, true, "96 byte(s) follow the text");
    row("plain text", "4026597120,4043309056,4060086272,4076863488,0", true,
        "13317 of the 13360 bytes that the first length announces are missing");
    row("four fields", frame(QStringLiteral("1,2,3,4")), true,
        "the line has 4 field(s) instead of 5");
    row("a sign", frame(QStringLiteral("1,2,3,4,-5")), true,
        "field 5 is not a plain decimal number: \"-5\"");
    row("too large", frame(QStringLiteral("1,2,3,4,4294967296")), true,
        "field 5 does not fit 32 bits: \"4294967296\"");
    row("a flood", QByteArray(1000000, '\0'), false,
        "the first length is 0, too short for the second length");
    row("never closed", good, false,
        "the text is complete, but the server's close is missing after the time limit of 1000 ms");
    row("never answered", QByteArray(), false,
        "2 byte(s) of the 2 of the first length are missing after the time limit of 1000 ms");
    row("stopped half-way", good.left(10), false,
        "86 of the 94 bytes that the first length announces are missing after the time limit of "
        "1000 ms");
}

void TestAgentProgram::malformed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, close);
    QFETCH(QString, complaint);

    server->replies = {{bytes, false, close}};
    QVERIFY(server->listen());
    QStringList arguments{QStringLiteral("--once")};
    if (!close) {
        arguments += {QStringLiteral("--timeout"), QStringLiteral("1000")};
    }
    Agent agent(arguments);
    QCOMPARE(agent.exitCode(), 2);
    QCOMPARE(agent.output(), QString());
    QCOMPARE(agent.errors(),
             QStringLiteral("lumikey-agent: malformed answer: %1\n").arg(complaint));
}

void TestAgentProgram::outputThatCannotBeWritten()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full)) {
        QSKIP("This system has no device that is always full.");
    }
    server->replies = repliesOf({normalText});
    QVERIFY(server->listen());
    QProcess agent;
    agent.setStandardOutputFile(full);
    agent.start(QStringLiteral(LUMIKEY_AGENT_PATH), QStringList());
    QTRY_COMPARE(agent.state(), QProcess::NotRunning);
    QCOMPARE(agent.exitCode(), 3);
    QCOMPARE(agent.readAllStandardError(),
             QByteArray("lumikey-agent: cannot write to standard output\n"));
}

void TestAgentProgram::coloursInATerminal_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<bool>("coloured");
    QTest::newRow("wanted") << QString() << true;
    QTest::newRow("not wanted") << QStringLiteral("NO_COLOR=1 ") << false;
    QTest::newRow("an empty wish is none") << QStringLiteral("NO_COLOR= ") << true;
}

void TestAgentProgram::coloursInATerminal()
{
    QFETCH(QString, environment);
    const QString terminal = QStandardPaths::findExecutable(QStringLiteral("script"));
    if (terminal.isEmpty()) {
        QSKIP("Windows has no program that stands in for a terminal");
    }
    QProcess trial;
    trial.start(terminal,
                {QStringLiteral("-qec"), QStringLiteral("true"), QStringLiteral("/dev/null")});
    if (!trial.waitForFinished() || trial.exitCode() != 0) {
        QSKIP("this system lends no terminal");
    }
    server->replies = repliesOf({normalText});
    QVERIFY(server->listen());
    QProcess agent;
    agent.start(terminal,
                {QStringLiteral("-qec"), environment + QStringLiteral(LUMIKEY_AGENT_PATH " --once"),
                 QStringLiteral("/dev/null")});
    QTRY_COMPARE(agent.state(), QProcess::NotRunning);
    QCOMPARE(agent.exitCode(), 0);
    const QByteArray output = agent.readAllStandardOutput();
    QVERIFY2(output.contains("#ff0000"), output.constData());
    QTEST(output.contains("\x1b[48;2;255;0;0m"), "coloured");
}

QTEST_GUILESS_MAIN(TestAgentProgram)

#include "tst_agentprogram.moc"
