#include "lighting/myeventfilter.h"
#include "tests/support/fakeplatform.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr const char *resumed = "resumed"; // what the platform in hand takes for the notice

/// Longer than repetitions of one resume are apart.
constexpr int later = 700;
/// Shorter than that.
constexpr int soon = 300;

} // namespace

class TestMyEventFilter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void resumeMessage();
    void otherMessagesPass();
    void noticeWithoutMessage();
    void oneResumeIsOneSettlingTime();
    void waitingMessagesAreOfTheSameResume();
    void lateNoticesAreOfTheSameResume();
    void aLaterResumeIsANewOne();
    void deliveredFromWithin();
    void noticesEndWithTheFilter();

private:
    bool filterMessage(const char *type)
    {
        return filter->nativeEventFilter(type, nullptr, &result);
    }

    FakePlatform platform;
    std::unique_ptr<MyEventFilter> filter;
    std::unique_ptr<QSignalSpy> awake;
    long result = 4711;
};

void TestMyEventFilter::init()
{
    awake.reset();
    filter.reset();
    platform.sleeps.clear();
    platform.whileAsleep = {};
    filter = std::make_unique<MyEventFilter>(platform);
    awake = std::make_unique<QSignalSpy>(filter.get(), SIGNAL(emitawake()));
    QVERIFY(awake->isValid());
}

void TestMyEventFilter::resumeMessage()
{
    QTest::ignoreMessage(QtDebugMsg, "PING PBT_APMRESUMESUSPEND");
    int asleepWithoutSignal = 0;
    platform.whileAsleep = [&] {
        asleepWithoutSignal += awake->isEmpty() ? 1 : 0;
    };
    QVERIFY(filterMessage(resumed));
    QCOMPARE(platform.sleeps, QVector<int>(10, 1000));
    QCOMPARE(asleepWithoutSignal, 10);
    QCOMPARE(awake->count(), 1);
    QCOMPARE(result, 4711L);
}

void TestMyEventFilter::otherMessagesPass()
{
    QVERIFY(!filterMessage("suspended"));
    QVERIFY(!filterMessage(""));
    QVERIFY(platform.sleeps.isEmpty());
    QVERIFY(awake->isEmpty());
}

void TestMyEventFilter::noticeWithoutMessage()
{
    QTest::ignoreMessage(QtDebugMsg, "PING PBT_APMRESUMESUSPEND");
    platform.resumeNotice();
    QCOMPARE(platform.sleeps, QVector<int>(10, 1000));
    QCOMPARE(awake->count(), 1);
}

void TestMyEventFilter::oneResumeIsOneSettlingTime()
{
    QTest::ignoreMessage(QtDebugMsg, "PING PBT_APMRESUMESUSPEND");
    for (int topLevelWindow = 0; topLevelWindow < 5; ++topLevelWindow) {
        QVERIFY(filterMessage(resumed));
        QCoreApplication::processEvents(); // the sender waited for the answer
    }
    platform.resumeNotice();
    QCOMPARE(platform.sleeps.size(), 10);
    QCOMPARE(awake->count(), 1);
}

void TestMyEventFilter::waitingMessagesAreOfTheSameResume()
{
    // Posted while the thread sleeps, however many.
    platform.whileAsleep = [this] {
        QMetaObject::invokeMethod(
            filter.get(), [this] { QVERIFY(filterMessage(resumed)); }, Qt::QueuedConnection);
    };
    QVERIFY(filterMessage(resumed));
    QTest::qWait(2 * later);
    QCOMPARE(platform.sleeps.size(), 10);
    QCOMPARE(awake->count(), 1);
}

void TestMyEventFilter::lateNoticesAreOfTheSameResume()
{
    // Each within half a second of the one before, though not of the first.
    for (int notice = 0; notice < 4; ++notice) {
        QVERIFY(filterMessage(resumed));
        QTest::qWait(soon);
    }
    QCOMPARE(platform.sleeps.size(), 10);
    QCOMPARE(awake->count(), 1);
}

void TestMyEventFilter::aLaterResumeIsANewOne()
{
    for (int resume = 1; resume <= 3; ++resume) {
        QVERIFY(filterMessage(resumed));
        QVERIFY(filterMessage(resumed));
        QCOMPARE(platform.sleeps.size(), 10 * resume);
        QCOMPARE(awake->count(), resume);
        QTest::qWait(later);
    }
}

void TestMyEventFilter::deliveredFromWithin()
{
    platform.whileAsleep = [this] {
        QVERIFY(filterMessage(resumed));
    };
    connect(filter.get(), &MyEventFilter::emitawake, this,
            [this] { QVERIFY(filterMessage(resumed)); });
    QVERIFY(filterMessage(resumed));
    QCOMPARE(platform.sleeps.size(), 10);
    QCOMPARE(awake->count(), 1);
}

void TestMyEventFilter::noticesEndWithTheFilter()
{
    QVERIFY(platform.resumeNotice != nullptr);
    filter.reset();
    QVERIFY(platform.resumeNotice == nullptr);
}

QTEST_GUILESS_MAIN(TestMyEventFilter)
#include "tst_myeventfilter.moc"
