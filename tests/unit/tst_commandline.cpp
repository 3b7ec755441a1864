#include "lighting/commandline.h"
#include "tests/support/lightinglines.h"
#include "tests/support/serviceclient.h"

#include <QTest>

namespace {

const QString &offLine = LightingLines::off;
const QString &wakeLine = LightingLines::wake;
const QString redLine = QStringLiteral("4026597120,4043309056,4060086272,4076863488,0");

LightingState redLeft()
{
    LightingState state;
    state.blacken();
    state.leftWord = QStringLiteral("4026597120");
    return state;
}

QString flags(const WakeSequence &wake)
{
    return QStringLiteral("%1%2%3").arg(wake.wakePending).arg(wake.wakeSent).arg(wake.wakeRepeat);
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void line_data();
    void line();
    void threeClientsAfterAWake();
    void wakeWaitsWhileOffOrDark();
    void wakeAgainBetweenTheTwo();
    void firstWakeIsNoted_data();
    void firstWakeIsNoted();
    void frame();
    void frameOfAnyLength_data();
    void frameOfAnyLength();
};

void TestCommandLine::line_data()
{
    QTest::addColumn<bool>("off");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<bool>("repeat");
    QTest::addColumn<QString>("effectWord");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("flagsAfter");
    const QString none = QStringLiteral("0");
    const QString breath = QStringLiteral("268607488");
    const QString darkBreath =
        QStringLiteral("3758108672,3758108672,3758108672,3758108672,268607488");
    const QString redBreath =
        QStringLiteral("4026597120,4043309056,4060086272,4076863488,268607488");

    QTest::newRow("normal") << false << 100 << false << false << none << redLine << "000";
    QTest::newRow("effect") << false << 1 << false << false << breath << redBreath << "000";
    QTest::newRow("off") << true << 100 << false << false << none << offLine << "000";
    QTest::newRow("off with effect") << true << 100 << false << false << breath << offLine << "000";
    QTest::newRow("off at 0") << true << 0 << false << false << breath << offLine << "000";
    QTest::newRow("off, wake waits") << true << 100 << true << false << none << offLine << "100";
    QTest::newRow("off, repeat waits") << true << 100 << false << true << none << offLine << "001";
    QTest::newRow("dark") << false << 0 << false << false << none << offLine << "000";
    QTest::newRow("dark with effect")
        << false << 0 << false << false << breath << darkBreath << "000";
    QTest::newRow("dark, wake waits")
        << false << 0 << true << false << breath << darkBreath << "100";
    QTest::newRow("dark, repeat waits") << false << 0 << false << true << none << offLine << "001";
    QTest::newRow("wake") << false << 50 << true << false << breath << wakeLine << "001";
    QTest::newRow("wake again") << false << 50 << false << true << breath << wakeLine << "000";
    QTest::newRow("wake raised before the second")
        << false << 50 << true << true << none << wakeLine << "001";
}

void TestCommandLine::line()
{
    QFETCH(bool, off);
    QFETCH(int, brightness);
    QFETCH(bool, pending);
    QFETCH(bool, repeat);
    QFETCH(QString, effectWord);
    LightingState state = redLeft();
    state.effectWord = effectWord;
    const LineChoice choice = chooseLine(state, {off, brightness, {pending, false, repeat}});
    QTEST(choice.line, "line");
    QTEST(flags(choice.wake), "flagsAfter");
}

void TestCommandLine::threeClientsAfterAWake()
{
    WakeSequence wake; // raised from the start
    QStringList lines;
    for (int client = 0; client < 4; ++client) {
        const LineChoice choice = chooseLine(redLeft(), {false, 100, wake});
        lines << choice.line;
        wake = choice.wake;
    }
    QCOMPARE(lines, (QStringList{wakeLine, wakeLine, redLine, redLine}));
}

void TestCommandLine::wakeWaitsWhileOffOrDark()
{
    WakeSequence wake;
    for (const LineInputs &inputs : {LineInputs{true, 100, wake}, LineInputs{false, 0, wake}}) {
        QCOMPARE(flags(chooseLine(redLeft(), inputs).wake), QStringLiteral("100"));
    }
    wake = chooseLine(redLeft(), {false, 100, wake}).wake;
    wake = chooseLine(redLeft(), {true, 100, wake}).wake; // between the two wake lines
    QCOMPARE(chooseLine(redLeft(), {false, 100, wake}).line, wakeLine);
}

void TestCommandLine::wakeAgainBetweenTheTwo()
{
    WakeSequence wake = chooseLine(redLeft(), {false, 100, WakeSequence()}).wake;
    wake.wakePending = true;
    for (int client = 0; client < 2; ++client) {
        const LineChoice choice = chooseLine(redLeft(), {false, 100, wake});
        QCOMPARE(choice.line, wakeLine);
        wake = choice.wake;
    }
    QCOMPARE(chooseLine(redLeft(), {false, 100, wake}).line, redLine);
}

void TestCommandLine::firstWakeIsNoted_data()
{
    QTest::addColumn<bool>("off");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<bool>("repeat");
    QTest::addColumn<QString>("flagsAfter");
    QTest::newRow("by a normal line") << false << 50 << false << false << QStringLiteral("001");
    QTest::newRow("by the off line") << true << 50 << true << false << QStringLiteral("001");
    QTest::newRow("by that of brightness 0") << false << 0 << true << true << QStringLiteral("001");
    QTest::newRow("by the wake line") << false << 50 << true << false << QStringLiteral("001");
    QTest::newRow("the second one ends it")
        << false << 50 << false << true << QStringLiteral("000");
}

/// What any answer makes of the flag that the first wake line has gone out.
void TestCommandLine::firstWakeIsNoted()
{
    QFETCH(bool, off);
    QFETCH(int, brightness);
    QFETCH(bool, pending);
    QFETCH(bool, repeat);
    const LineChoice choice = chooseLine(redLeft(), {off, brightness, {pending, true, repeat}});
    QTEST(flags(choice.wake), "flagsAfter");
}

void TestCommandLine::frame()
{
    for (const QString &line : {offLine, wakeLine}) {
        const QByteArray bytes = frameLine(line);
        QCOMPARE(bytes.size(), 96);
        QCOMPARE(bytes.left(8).toHex(), QByteArray("005e0000005a0033"));
    }
    QCOMPARE(frameLine(QStringLiteral("1,2")).toHex(),
             QByteArray("000a") + "00000006" + "0031" + "002c" + "0032");
}

void TestCommandLine::frameOfAnyLength_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("effect of one digit") << redLine;
    QTest::newRow("effect of nine digits") << redLine + QStringLiteral("12345678");
    QTest::newRow("effect of ten digits") << redLine + QStringLiteral("123456789");
}

void TestCommandLine::frameOfAnyLength()
{
    QFETCH(QString, line);
    const QByteArray bytes = frameLine(line);
    QCOMPARE(bytes.size(), 6 + 2 * line.size());
    QCOMPARE(ServiceClient::lineOf(bytes), line);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
