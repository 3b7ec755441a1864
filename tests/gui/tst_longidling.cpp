#include "dimworld.h"

#include "system/testing/resourceusage.h"
#include "tests/support/companionprocess.h"

#include <QTimer>

#include <algorithm>

namespace {

constexpr qint64 pollMs = 100;
constexpr qint64 minuteMs = 60'000;
/// Bytes that the heap may gain in an hour: pictures and texts that are kept once.
constexpr qint64 heapAllowance = 500'000;

/// Everything that the window has of its own.
struct Belongings
{
    int objects = 0;
    int timers = 0;
    int running = 0;
};

Belongings belongings(const MainWindow &window)
{
    const QList<QTimer *> timers = window.findChildren<QTimer *>();
    const auto running = std::count_if(timers.begin(), timers.end(),
                                       [](const QTimer *timer) { return timer->isActive(); });
    return {window.findChildren<QObject *>().size(), timers.size(), static_cast<int>(running)};
}

} // namespace

/// An hour by a fast clock: nobody waits for it, but every poll, tick and application is made.
class TestLongIdling : public QObject
{
    Q_OBJECT

private slots:
    void hourOfIdlingAndWaking_data();
    void hourOfIdlingAndWaking();
};

void TestLongIdling::hourOfIdlingAndWaking_data()
{
    QTest::addColumn<bool>("companionRuns");
    QTest::newRow("alone") << false;
    QTest::newRow("beside the companion") << true;
}

void TestLongIdling::hourOfIdlingAndWaking()
{
    QFETCH(bool, companionRuns);
    CompanionProcess companion;
    if (companionRuns) {
        QVERIFY2(companion.publish(QStringLiteral("on,9")), companion.error());
    }
    DimWorld world;
    world.startDimming("brightlevel=9\n");
    MainWindow &window = *world.window;

    int darkened = 0;
    int woken = 0;
    // A key once a minute; in between the slider goes all the way.
    const auto idleFor = [&](qint64 milliseconds) {
        for (qint64 time = pollMs; time <= milliseconds; time += pollMs) {
            const int before = world.shown();
            if (time % minuteMs == 0) {
                world.platform.presses.set(DimWorld::aKey);
            }
            world.poll();
            darkened += before > 0 && world.shown() == 0 ? 1 : 0;
            woken += before < world.shown() ? 1 : 0;
            if (time % 1000 == 0) {
                window.sharedmemtimer();
            }
        }
    };

    idleFor(minuteMs); // what is made once is made
    const ResourceUsage usage = resourceUsage();
    const Belongings had = belongings(window);
    const int pollsThen = world.platform.polls;
    darkened = 0;
    woken = 0;
    idleFor(60 * minuteMs);

    QCOMPARE(world.platform.polls - pollsThen, 36'000);
    QCOMPARE(darkened, 60);
    QCOMPARE(woken, 60);
    const Belongings has = belongings(window);
    QCOMPARE(has.objects, had.objects);
    QCOMPARE(has.timers, had.timers);
    QCOMPARE(has.running, had.running);
    const ResourceUsage now = resourceUsage();
    QCOMPARE(now.handles, usage.handles);
    QCOMPARE(now.sharedSegments, usage.sharedSegments);
    const qint64 gained = now.memory - usage.memory;
    QVERIFY2(gained < heapAllowance, qPrintable(QString::number(gained)));
}

QTEST_MAIN(TestLongIdling)
#include "tst_longidling.moc"
