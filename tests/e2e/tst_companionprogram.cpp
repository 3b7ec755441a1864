#include "system/testing/desktop.h"
#include "tests/e2e/programlines.h"
#include "tests/support/companionprocess.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

/// The program looks once a second; the words follow a tenth of a second later.
/// Auto-dim waits for five seconds and takes half of one for nine percent.
constexpr int darkWithinMs = 10'000;

} // namespace

/// The companion application and the program as two processes that meet in the system alone.
class TestCompanionProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void missingCompanionIsLogged();
    void wordsFollow();
    void nothingNewChangesNothing();
    void hangingCompanionHoldsNobodyUp();
    void companionComesAndGoes();
    void autoDimTakesItAtTheNextWake();

private:
    void startServing(int brightness = 100)
    {
        ProgramProcess::writeSettings("backlight_on=true\nZone1Color=255 0 0\nbrightlevel="
                                      + QByteArray::number(brightness) + '\n');
        QVERIFY(program->startAndServe());
        QTest::qWait(Lines::appliedAfterMs);
        QCOMPARE(ServiceClient::readLine(), Lines::wake);
        QCOMPARE(ServiceClient::readLine(), Lines::wake);
        QCOMPARE(ServiceClient::readLine(), line(redAt(brightness)));
    }
    /// What full red is at a brightness in percent.
    static quint32 redAt(int brightness) { return static_cast<quint32>(255 * brightness / 100); }
    /// The line of a left zone of this red.
    static QString line(quint32 red)
    {
        return QStringLiteral("%1,4043309056,4060086272,4076863488,0").arg(0xF0000000U | red << 8);
    }

    std::unique_ptr<ProgramProcess> program;
};

void TestCompanionProgram::initTestCase()
{
    ProgramTwin::takeOnItsLooks();
}

void TestCompanionProgram::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestCompanionProgram::missingCompanionIsLogged()
{
    startServing();
    const auto message = QString::fromUtf8("Can\u00B4t attach to memory segment");
    QTRY_VERIFY(QString::fromLocal8Bit(program->log()).count(message) >= 2);
    QCOMPARE(ServiceClient::readLine(), line(0xFF));
}

void TestCompanionProgram::wordsFollow()
{
    startServing();
    CompanionProcess companion;
    QVERIFY2(companion.publish(QStringLiteral("lit,40,whatever")), companion.error());
    QTRY_COMPARE(ServiceClient::readLine(), line(102));
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("40"));
    QVERIFY(companion.publish(QStringLiteral("lit,0")));
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QVERIFY(companion.publish(QStringLiteral("lit,100,")));
    QTRY_COMPARE(ServiceClient::readLine(), line(255));
}

void TestCompanionProgram::nothingNewChangesNothing()
{
    startServing();
    CompanionProcess companion;
    QVERIFY(companion.publish(QStringLiteral("lit,40")));
    QTRY_COMPARE(ServiceClient::readLine(), line(102));
    for (const char *text : {"dark,40", "lit,none", ""}) {
        QVERIFY(companion.publish(QString::fromLatin1(text)));
        QTest::qWait(1500);
        QCOMPARE(ServiceClient::readLine(), line(102));
    }
    QVERIFY(companion.publishBytes(QByteArray::fromHex("fffffffe002c0039"), 64));
    QTest::qWait(1500);
    QCOMPARE(ServiceClient::readLine(), line(102));
}

void TestCompanionProgram::hangingCompanionHoldsNobodyUp()
{
    startServing();
    CompanionProcess companion;
    QVERIFY(companion.publish(QStringLiteral("lit,40")));
    QTRY_COMPARE(ServiceClient::readLine(), line(102));
    QVERIFY(companion.publish(QStringLiteral("lit,20")) && companion.lock());
    // Whether it was read before the lock or not: the window answers, and goes on answering.
    QElapsedTimer time;
    for (time.start(); !time.hasExpired(4000);) {
        QElapsedTimer answer;
        answer.start();
        QVERIFY(ServiceClient::readLine().endsWith(QStringLiteral(",4076863488,0")));
        QVERIFY2(answer.elapsed() < 3000, qPrintable(QString::number(answer.elapsed())));
        QTest::qWait(50);
    }
    QVERIFY(companion.unlock());
    QTRY_COMPARE(ServiceClient::readLine(), line(51));
}

void TestCompanionProgram::companionComesAndGoes()
{
    startServing();
    for (const int brightness : {80, 60, 40}) {
        CompanionProcess companion;
        QVERIFY2(companion.publish(QStringLiteral("lit,%1").arg(brightness)), companion.error());
        QTRY_COMPARE(ServiceClient::readLine(), line(redAt(brightness)));
        QVERIFY(companion.lock());
        companion.kill();
    }
}

void TestCompanionProgram::autoDimTakesItAtTheNextWake()
{
    startServing(9);
    const ProgramTwin twin("backlight_on=true\n");
    twin.click("CheckBox_AutoDim");
    QTRY_COMPARE(ProgramProcess::stored("AutoDim"), QStringLiteral("true"));
    CompanionProcess companion;
    QVERIFY2(companion.publish(QStringLiteral("lit,6")), companion.error());

    // Dark after five seconds, on a way of odd steps.
    QString now;
    QElapsedTimer time;
    for (time.start(); now != Lines::off && !time.hasExpired(darkWithinMs);) {
        now = ServiceClient::readLine();
        QVERIFY(now != line(redAt(6)));
        QTest::qWait(15);
    }
    QCOMPARE(now, Lines::off);
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("9"));

    Desktop::press({QStringLiteral("a")});
    QTRY_COMPARE(ServiceClient::readLine(), line(redAt(6)));
}

QTEST_MAIN(TestCompanionProgram)
#include "tst_companionprogram.moc"
