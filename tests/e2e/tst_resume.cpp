#include "sleepnotices.h"

#include "tests/support/programprocess.h"
#include "tests/support/serviceclient.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

const QString wakeLine = QStringLiteral("3758616583,3758616583,3758616583,3758616583,0");
const QString offLine = QStringLiteral("3758108672,3758108672,3758108672,3758108672,0");
const QString blackLine = QStringLiteral("4026531840,4043309056,4060086272,4076863488,0");
const QString colouredLine = QStringLiteral("4026597120,4043309311,4076797952,4077060354,0");
constexpr const char *colours = "brightlevel=100\nZone1Color=255 0 0\nZone2Color=0 255 0\n"
                                "Zone3Color=0 0 255\nStripeLid=1 2 3\n";
constexpr const char *ping = "PING PBT_APMRESUMESUSPEND";

constexpr qint64 settlingMs = 10'000;
/// From the end of the settling until the settings are applied again.
constexpr qint64 reloadMs = 2000;
/// A busy machine is late, never early.
constexpr qint64 lateness = 1500;

} // namespace

Q_DECLARE_METATYPE(SleepNotices::Delivery)

/// The real program around a resume, watched by an agent and in the log.
class TestResume : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void timeline();
    void oneResumeSettlesOnce_data();
    void oneResumeSettlesOnce();
    void hiddenAndOff();
    void otherNotices();

private:
    void startWithColours(const QByteArray &settings);
    int pings() const { return program->log().count(ping); }

    std::unique_ptr<SleepNotices> sleep;
    std::unique_ptr<ProgramProcess> program;
};

void TestResume::init()
{
    program.reset();
    sleep.reset();
    sleep = std::make_unique<SleepNotices>();
    program = std::make_unique<ProgramProcess>();
}

/// Starts and drinks the wake lines of the start.
void TestResume::startWithColours(const QByteArray &settings)
{
    program->writeSettings(settings + colours);
    QVERIFY(program->startAndServe());
    const QString line = settings.contains("backlight_on=true") ? colouredLine : offLine;
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), line, 10'000);
    QTest::qWait(1000); // any answers of the start that may still change
    QCOMPARE(ServiceClient::readLine(), line);
}

void TestResume::timeline()
{
    startWithColours("backlight_on=true\n");
    for (int resume = 1; resume <= 2; ++resume) { // the later one is a new one
        sleep->resume(SleepNotices::Delivery::Told);
        QTRY_COMPARE(pings(), resume);
        QElapsedTimer sincePing;
        sincePing.start();

        // Whoever asks meanwhile waits for the settling, and finds the keyboard to be woken.
        QCOMPARE(ServiceClient::lineOf(ServiceClient::readAnswer(15'000)), wakeLine);
        const qint64 settled = sincePing.elapsed();
        QVERIFY2(settled > settlingMs - 500, qPrintable(QString::number(settled)));
        QVERIFY2(settled < settlingMs + lateness, qPrintable(QString::number(settled)));
        QCOMPARE(ServiceClient::readLine(), wakeLine);
        QCOMPARE(ServiceClient::readLine(), blackLine);
        QVERIFY(sincePing.elapsed() < settled + 500); // nothing settled a second time

        QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), colouredLine, 6000);
        const qint64 restored = sincePing.elapsed();
        QVERIFY2(restored > settlingMs + reloadMs - 500, qPrintable(QString::number(restored)));
        QVERIFY2(restored < settlingMs + reloadMs + lateness,
                 qPrintable(QString::number(restored)));
        QCOMPARE(pings(), resume);
    }
}

void TestResume::oneResumeSettlesOnce_data()
{
    QTest::addColumn<SleepNotices::Delivery>("delivery");
    QTest::newRow("asked one by one") << SleepNotices::Delivery::Asked;
    QTest::newRow("in the queue") << SleepNotices::Delivery::Queued;
}

void TestResume::oneResumeSettlesOnce()
{
    QFETCH(SleepNotices::Delivery, delivery);
    startWithColours("backlight_on=true\n");
    sleep->resume(delivery);
    QTRY_COMPARE(pings(), 1);
    ServiceClient::readAnswer(15'000);
    QElapsedTimer sinceSettled;
    sinceSettled.start();
    qint64 longestAnswer = 0;
    while (sinceSettled.elapsed() < 4000) {
        QElapsedTimer asking;
        asking.start();
        QVERIFY(!ServiceClient::readAnswer(15'000).isEmpty());
        longestAnswer = qMax(longestAnswer, asking.elapsed());
        QTest::qWait(20);
    }
    QVERIFY2(longestAnswer < lateness, qPrintable(QString::number(longestAnswer)));
    QCOMPARE(pings(), 1);
    QCOMPARE(ServiceClient::readLine(), colouredLine);
}

void TestResume::hiddenAndOff()
{
    startWithColours("start_hidden=1\nbacklight_on=false\n");
    sleep->resume(SleepNotices::Delivery::Told);
    QTRY_COMPARE(pings(), 1);
    QElapsedTimer sincePing;
    sincePing.start();
    QCOMPARE(ServiceClient::lineOf(ServiceClient::readAnswer(15'000)), offLine);
    QVERIFY(sincePing.elapsed() > settlingMs - 500);
    while (sincePing.elapsed() < settlingMs + reloadMs + lateness) {
        QCOMPARE(ServiceClient::readLine(), offLine); // no wake line
        QTest::qWait(50);
    }
    QCOMPARE(pings(), 1);
}

void TestResume::otherNotices()
{
    startWithColours("backlight_on=true\n");
    sleep->suspend();
    QElapsedTimer sinceNotice;
    sinceNotice.start();
    while (sinceNotice.elapsed() < 2000) {
        QCOMPARE(ServiceClient::readLine(), colouredLine);
        QTest::qWait(50);
    }
    QCOMPARE(pings(), 0);
}

QTEST_MAIN(TestResume)
#include "tst_resume.moc"
