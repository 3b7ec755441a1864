// The real lumikey-agent, which asks again and again, against a server in this process.

#include "agentharness.h"
#include "agentlines.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

using namespace AgentLines;

class TestAgentPolling : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pollingStopsAtAMalformedAnswer();
    void printsOnlyChanges();
    void jsonPrintsEveryAnswer();
    void periodIsKept();
    void vanishedServer();
    void connectionDroppedByAnEndingServer();
    void singleConnectionsDropped();
    void singleConnectionsUnanswered();
    void waitsForTheServer();
    void waitsAgainWhenTheServerVanishes();

private:
    std::unique_ptr<Server> server;
};

void TestAgentPolling::init()
{
    server = std::make_unique<Server>();
}

void TestAgentPolling::pollingStopsAtAMalformedAnswer()
{
    server->replies = repliesOf({normalText, normalText, QStringLiteral("1,2,3,4,5,6")});
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--wait")});
    QCOMPARE(agent.exitCode(), 2);
    QCOMPARE(agent.output(), normalLine);
    QCOMPARE(agent.errors(), QStringLiteral("lumikey-agent: malformed answer: "
                                            "the line has 6 field(s) instead of 5\n"));
    QCOMPARE(server->times.size(), 3);
}

void TestAgentPolling::printsOnlyChanges()
{
    server->replies = repliesOf({wakeText, wakeText, normalText, normalText, effectText, offText,
                                 offText, dimmedText, normalText});
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--period"), QStringLiteral("20")});
    QTRY_VERIFY(server->times.size() >= 12);
    const QString expected = wakeLine + normalLine + effectLine + offLine + dimmedLine + normalLine;
    QTRY_COMPARE(agent.output(), expected);
    QVERIFY(agent.running());
    QCOMPARE(agent.errors(), QString());
}

void TestAgentPolling::jsonPrintsEveryAnswer()
{
    const QStringList texts{wakeText, wakeText, normalText, normalText, offText};
    server->replies = repliesOf(texts);
    server->onAnswered = [this, &texts](int count) {
        if (count == texts.size()) {
            server->stop();
        }
    };
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--json"), QStringLiteral("--period"), QStringLiteral("20")});
    QCOMPARE(agent.exitCode(), 1);
    QStringList kinds;
    const QStringList lines = agent.output().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const auto object = QJsonDocument::fromJson(line.toUtf8()).object();
        kinds += object.value(QStringLiteral("kind")).toString(QStringLiteral("broken"));
    }
    QCOMPARE(kinds.join(QLatin1Char(' ')), QStringLiteral("wake wake normal normal off"));
}

void TestAgentPolling::periodIsKept()
{
    server->replies = repliesOf({normalText});
    QVERIFY(server->listen());
    const auto fourPeriods = [this](const QStringList &arguments) {
        server->times.clear();
        Agent agent(arguments);
        const bool came = QTest::qWaitFor([this] { return server->times.size() >= 5; }, patienceMs);
        return came ? server->times.at(4) - server->times.at(0) : -1;
    };
    // A busy machine makes connections late, never early by more than a tick.
    const qint64 usual = fourPeriods({});
    QVERIFY2(usual > 300, QByteArray::number(usual).constData());
    const qint64 slow = fourPeriods({QStringLiteral("--period"), QStringLiteral("500")});
    QVERIFY2(slow > 1800, QByteArray::number(slow).constData());
    const qint64 fast = fourPeriods({QStringLiteral("--period"), QStringLiteral("5")});
    QVERIFY2(fast >= 0 && fast < slow, QByteArray::number(fast).constData());
}

void TestAgentPolling::vanishedServer()
{
    server->replies = repliesOf({normalText});
    server->onAnswered = [this](int count) {
        if (count == 3) {
            server->stop();
        }
    };
    QVERIFY(server->listen());
    Agent agent({});
    QCOMPARE(agent.exitCode(), 1);
    QCOMPARE(agent.output(), normalLine);
    const QRegularExpression form(QRegularExpression::anchoredPattern(QStringLiteral(
        "lumikey-agent: the server at 127\\.0\\.0\\.9:52316 has gone \\([^()]+\\)\n")));
    QVERIFY2(form.match(agent.errors()).hasMatch(), qPrintable(agent.errors()));
}

void TestAgentPolling::connectionDroppedByAnEndingServer()
{
    server->replies = {{frame(normalText)}, {QByteArray()}};
    server->onAnswered = [this](int count) {
        if (count == 2) {
            server->stop();
        }
    };
    QVERIFY(server->listen());
    Agent agent({});
    // The second connection brought nothing, but because the server went, not because it is wrong.
    QCOMPARE(agent.exitCode(), 1);
    QVERIFY2(agent.errors().contains(QStringLiteral("has gone")), qPrintable(agent.errors()));
}

/// Only two connections in a row that bring nothing are a fault.
void TestAgentPolling::singleConnectionsDropped()
{
    server->replies = {{QByteArray()}, {frame(normalText)}, {QByteArray()}, {frame(normalText)}};
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--wait"), QStringLiteral("--period"), QStringLiteral("20")});
    QTRY_VERIFY(server->times.size() >= 6);
    QVERIFY(agent.running());
    QCOMPARE(agent.errors(), QString());
}

void TestAgentPolling::singleConnectionsUnanswered()
{
    const Server::Reply never{QByteArray(), false, false};
    server->replies = {never, {frame(normalText)}, never, {frame(normalText)}};
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--wait"), QStringLiteral("--period"), QStringLiteral("20"),
                 QStringLiteral("--timeout"), QStringLiteral("1000")});
    QTRY_VERIFY(server->times.size() >= 6);
    QVERIFY(agent.running());
    QCOMPARE(agent.errors(), QString());
}

void TestAgentPolling::waitsForTheServer()
{
    Agent agent({QStringLiteral("--wait"), QStringLiteral("--once")});
    QTRY_VERIFY(agent.errors().endsWith(QLatin1Char('\n')));
    QVERIFY(
        agent.errors().startsWith(QStringLiteral("lumikey-agent: no server at 127.0.0.9:52316 (")));
    QVERIFY(agent.errors().endsWith(QStringLiteral("; waiting for Lumikey\n")));
    QTest::qWait(350);
    QVERIFY(agent.running());

    server->replies = repliesOf({wakeText});
    QVERIFY(server->listen());
    QCOMPARE(agent.exitCode(), 0);
    QCOMPARE(agent.output(), wakeLine);
    QCOMPARE(agent.errors().count(QLatin1Char('\n')), 1);
}

void TestAgentPolling::waitsAgainWhenTheServerVanishes()
{
    server->replies = repliesOf({normalText});
    QVERIFY(server->listen());
    Agent agent({QStringLiteral("--wait"), QStringLiteral("--period"), QStringLiteral("20")});
    QTRY_COMPARE(agent.output(), normalLine);

    server->stop();
    QTRY_VERIFY2(agent.errors().endsWith(QStringLiteral("; waiting for Lumikey\n")),
                 qPrintable(agent.errors()));
    QVERIFY(agent.errors().contains(QStringLiteral("has gone (")));
    QVERIFY(agent.running());

    // The same lighting again is news after an absence.
    QVERIFY(server->listen());
    QTRY_COMPARE(agent.output(), normalLine + normalLine);
    QVERIFY(agent.running());
    QCOMPARE(agent.errors().count(QLatin1Char('\n')), 1);

    // And so is the next absence.
    server->stop();
    QTRY_VERIFY2(agent.errors().count(QStringLiteral("has gone (")) == 2,
                 qPrintable(agent.errors()));
}

QTEST_GUILESS_MAIN(TestAgentPolling)

#include "tst_agentpolling.moc"
