#include "programlines.h"
#include "system/testing/sleepnotices.h"

#include "tests/support/programprocess.h"
#include "tests/support/serviceclient.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

const QString blackLine = QStringLiteral("4026531840,4043309056,4060086272,4076863488,0");
constexpr const char *ping = "PING PBT_APMRESUMESUSPEND";

constexpr qint64 settlingMs = 10'000;
/// From the end of the settling until the settings are applied again.
constexpr qint64 reloadMs = 2000;
/// A busy machine is late, never early: what must not be too early is measured from before its
/// cause to after its effect. Half of what a second settling would take.
constexpr qint64 lateness = 5000;
/// Timers of this kind keep their times to a twentieth.
constexpr qint64 earliness = 200;

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
    void startWithColours(const QByteArray &settings, const QString &line = Lines::threeZones);
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

/// Starts, and takes the two wake lines of the start.
void TestResume::startWithColours(const QByteArray &settings, const QString &line)
{
    ProgramProcess::writeSettings(settings);
    QVERIFY(program->startAndServe());
    QTRY_COMPARE(ServiceClient::readLine(), line);
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), line);
}

void TestResume::timeline()
{
    startWithColours(Lines::threeZonesSettings);
    for (int resume = 1; resume <= 2; ++resume) { // the later one is a new one
        QElapsedTimer sinceResume;
        sinceResume.start();
        sleep->resume(SleepNotices::Delivery::Told);
        QTRY_COMPARE(pings(), resume);

        // Whoever asks meanwhile waits for the settling, and finds the keyboard to be woken.
        QCOMPARE(ServiceClient::lineOf(ServiceClient::readAnswer(15'000)), Lines::wake);
        const qint64 settled = sinceResume.elapsed();
        QVERIFY2(settled > settlingMs - earliness, qPrintable(QString::number(settled)));
        QVERIFY2(settled < settlingMs + lateness, qPrintable(QString::number(settled)));
        QCOMPARE(ServiceClient::readLine(), Lines::wake);
        QCOMPARE(ServiceClient::readLine(), blackLine);

        QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::threeZones, 6000);
        const qint64 restored = sinceResume.elapsed();
        QVERIFY2(restored > settlingMs + reloadMs - earliness,
                 qPrintable(QString::number(restored)));
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
    startWithColours(Lines::threeZonesSettings);
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
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
}

void TestResume::hiddenAndOff()
{
    startWithColours("start_hidden=1\nbacklight_on=false\nbrightlevel=100\n", Lines::off);
    QElapsedTimer sinceResume;
    sinceResume.start();
    sleep->resume(SleepNotices::Delivery::Told);
    QTRY_COMPARE(pings(), 1);
    QCOMPARE(ServiceClient::lineOf(ServiceClient::readAnswer(15'000)), Lines::off);
    QVERIFY(sinceResume.elapsed() > settlingMs - earliness);
    while (sinceResume.elapsed() < settlingMs + reloadMs + 1500) {
        QCOMPARE(ServiceClient::readLine(), Lines::off); // no wake line
        QTest::qWait(50);
    }
    QCOMPARE(pings(), 1);
}

void TestResume::otherNotices()
{
    startWithColours(Lines::threeZonesSettings);
    sleep->suspend();
    QElapsedTimer sinceNotice;
    sinceNotice.start();
    while (sinceNotice.elapsed() < 2000) {
        QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
        QTest::qWait(50);
    }
    QCOMPARE(pings(), 0);
}

QTEST_MAIN(TestResume)
#include "tst_resume.moc"
