#include "lighting/autodim.h"
#include "lighting/idletimes.h"

#include <QSet>
#include <QTest>

namespace {

constexpr qint64 pollMs = 100;
constexpr qint32 fiveSeconds = idleTimesMs.front();
/// Somewhere within the low 32 bits, far from their wrap.
constexpr quint32 noon = 1'000'000'000;

/// What a poll changes, as one text: "slider/flag", then wake, the left word, the slider's being
/// enabled and what the user is told.
QString told(const DimStep &step)
{
    QString text = QStringLiteral("%1/%2").arg(step.brightness).arg(step.state.active);
    if (step.wake) {
        text += QStringLiteral(" wake");
    }
    if (step.leftOff) {
        text += QStringLiteral(" left-off");
    }
    if (step.sliderEnabled) {
        text += *step.sliderEnabled ? QStringLiteral(" enable") : QStringLiteral(" disable");
    }
    if (step.told) {
        const std::initializer_list<const char *> names{" watching", " dimming", " dimmed"};
        text += QLatin1String(names.begin()[static_cast<int>(*step.told)]);
    }
    return text;
}

DimPoll pollAt(quint32 now, int brightness)
{
    DimPoll poll;
    poll.now = now;
    poll.brightness = brightness;
    return poll;
}

/// A keyboard that is polled ten times a second, by a clock that the test moves.
struct Night
{
    qint64 clock = noon;
    DimState state;
    int brightness = 0; ///< the slider
    bool enabled = true;
    int steps = 0;
    int wakes = 0;
    int darkened = 0;
    qint64 firstStepAt = -1; ///< on the clock
    qint64 darkAt = -1;

    Night(int itsBrightness, qint32 idleTime, qint64 start = noon)
        : clock(start)
        , brightness(itsBrightness)
    {
        state.lastActivity = static_cast<quint32>(clock);
        state.idleTime = idleTime;
        state.userBrightness = brightness;
    }

    DimStep poll(bool input = false)
    {
        clock += pollMs;
        const DimPoll now = pollAt(static_cast<quint32>(clock), brightness);
        if (input) {
            state.lastActivity = now.now;
        }
        const DimStep step = dimStep(state, now);
        if (step.brightness < brightness) {
            ++steps;
            firstStepAt = firstStepAt < 0 ? clock : firstStepAt;
        }
        if (step.leftOff) {
            ++darkened;
            darkAt = clock;
        }
        wakes += step.wake ? 1 : 0;
        enabled = step.sliderEnabled.value_or(enabled);
        brightness = step.brightness;
        state = step.state;
        return step;
    }

    void pollFor(qint64 milliseconds)
    {
        for (qint64 time = 0; time < milliseconds; time += pollMs) {
            poll();
        }
    }
};

} // namespace

class TestAutoDim : public QObject
{
    Q_OBJECT

private slots:
    void onePoll_data();
    void onePoll();
    void nothingIsKnownAtFirst();
    void effectStopsEverything();
    void elapsedTime_data();
    void elapsedTime();
    void ramp_data();
    void ramp();
    void rampStopsAtInput();
    void idleTimesOfTheList();
    void idleTimes_data();
    void idleTimes();
    void wholeNight_data();
    void wholeNight();
    void tinyBrightnessIsNeverDimmed();
    void darkenedByTheUser();
    void countedCodes();
    void nothingPressed();
    void keyBesideTheMouse();
};

void TestAutoDim::onePoll_data()
{
    QTest::addColumn<bool>("idle");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("userBrightness");
    QTest::addColumn<bool>("active");
    QTest::addColumn<QString>("expected");
    const auto row = [](bool idle, int brightness, int user, bool active, const char *expected) {
        QTest::newRow(qPrintable(QStringLiteral("%1 %2 of %3, flag %4")
                                     .arg(idle ? QStringLiteral("idle") : QStringLiteral("busy"))
                                     .arg(brightness)
                                     .arg(user)
                                     .arg(active)))
            << idle << brightness << user << active << QString::fromLatin1(expected);
    };
    row(true, 100, 100, false, "98/1 dimming");
    row(true, 98, 100, true, "96/1 dimming");
    row(true, 5, 100, true, "3/1 dimming");
    row(true, 4, 100, true, "0/1 left-off disable dimmed");
    row(true, 4, 4, false, "0/1 left-off disable dimmed");
    row(true, 3, 3, false, "0/1 left-off disable dimmed");
    row(true, 2, 2, false, "2/0");
    row(true, 1, 1, false, "1/0");
    row(true, 2, 100, true, "2/1"); // the user's hand was there
    row(true, 0, 100, true, "0/1 dimmed");
    row(true, 0, 0, false, "0/0 dimmed");
    row(false, 100, 100, false, "100/0");
    row(false, 99, 100, true, "100/0 wake enable watching");
    row(false, 0, 100, true, "100/0 wake enable watching");
    row(false, 0, 1, true, "1/0 wake enable watching");
    row(false, 40, 70, false, "70/0 wake enable watching"); // raised by another program
    row(false, 70, 40, false, "70/0");
    row(false, 70, 70, true, "70/1"); // nothing to bring back, so the flag stays
    row(false, 0, 0, false, "0/0");
}

void TestAutoDim::onePoll()
{
    QFETCH(bool, idle);
    QFETCH(int, brightness);
    QFETCH(int, userBrightness);
    QFETCH(bool, active);
    DimState state;
    state.lastActivity = noon - fiveSeconds + (idle ? 0 : 1);
    state.idleTime = fiveSeconds;
    state.userBrightness = userBrightness;
    state.active = active;
    QTEST(told(dimStep(state, pollAt(noon, brightness))), "expected");
}

void TestAutoDim::nothingIsKnownAtFirst()
{
    const DimState state;
    QCOMPARE(state.lastActivity, 0U);
    QCOMPARE(state.idleTime, 0);
    QCOMPARE(state.userBrightness, 0);
    QVERIFY(!state.active);
    const DimPoll poll;
    QCOMPARE(poll.now, 0U);
    QCOMPARE(poll.brightness, 0);
    QVERIFY(!poll.effectChosen);
    QCOMPARE(told(DimStep()), QStringLiteral("0/0"));
}

void TestAutoDim::effectStopsEverything()
{
    for (const quint32 idle : {0U, 4999U, 5000U, 3'600'000U}) {
        for (const int brightness : {0, 2, 50, 100}) {
            for (const bool active : {false, true}) {
                DimState state;
                state.lastActivity = noon - idle;
                state.idleTime = fiveSeconds;
                state.userBrightness = 100;
                state.active = active;
                DimPoll poll = pollAt(noon, brightness);
                poll.effectChosen = true;
                QCOMPARE(told(dimStep(state, poll)),
                         QStringLiteral("%1/%2").arg(brightness).arg(active));
            }
        }
    }
}

void TestAutoDim::elapsedTime_data()
{
    QTest::addColumn<quint32>("now");
    QTest::addColumn<quint32>("lastActivity");
    QTest::addColumn<bool>("dims");
    const auto row = [](const char *name, quint32 now, quint32 lastActivity, bool dims) {
        QTest::newRow(name) << now << lastActivity << dims;
    };
    row("a millisecond early", noon + 4999, noon, false);
    row("on time", noon + 5000, noon, true);
    row("input after the time was taken", noon, noon + 1, false);
    row("across the wrap, early", 4998, 0xFFFFFFFF, false);
    row("across the wrap, on time", 4999, 0xFFFFFFFF, true);
    row("from the wrap on", 5000, 0, true);
    row("input just behind the wrap", 0xFFFFFFFF, 0, false);
    row("across the sign", 0x80000000U + 1000, 0x80000000U - 4000, true);
    row("longest that is told", noon + 0x7FFFFFFFU, noon, true);
    // 24.8 days of idling read as a time to come, since the difference is a signed number.
    row("beyond", noon + 0x80000000U, noon, false);
}

void TestAutoDim::elapsedTime()
{
    QFETCH(quint32, now);
    QFETCH(quint32, lastActivity);
    QFETCH(bool, dims);
    DimState state;
    state.lastActivity = lastActivity;
    state.idleTime = fiveSeconds;
    state.userBrightness = 100;
    QCOMPARE(dimStep(state, pollAt(now, 100)).brightness, dims ? 98 : 100);
}

void TestAutoDim::ramp_data()
{
    QTest::addColumn<int>("brightness");
    for (int brightness = 3; brightness <= 100; ++brightness) {
        QTest::addRow("%d", brightness) << brightness;
    }
}

void TestAutoDim::ramp()
{
    QFETCH(int, brightness);
    Night night(brightness, fiveSeconds);
    night.pollFor(fiveSeconds - pollMs);
    QCOMPARE(night.brightness, brightness);
    QVERIFY(!night.state.active);

    // By two points until two or fewer are left, which go at once.
    for (int shown = brightness - 2; shown > 2; shown -= 2) {
        QCOMPARE(told(night.poll()), QStringLiteral("%1/1 dimming").arg(shown));
        QVERIFY(night.enabled);
    }
    QCOMPARE(told(night.poll()), QStringLiteral("0/1 left-off disable dimmed"));
    QCOMPARE(night.steps, qMax(1, (brightness - 1) / 2));
    QCOMPARE(night.darkAt - night.firstStepAt, (night.steps - 1) * pollMs);
    for (int poll = 0; poll < 10; ++poll) {
        QCOMPARE(told(night.poll()), QStringLiteral("0/1 dimmed"));
    }
    QCOMPARE(told(night.poll(true)), QStringLiteral("%1/0 wake enable watching").arg(brightness));
    QCOMPARE(told(night.poll()), QStringLiteral("%1/0").arg(brightness));
}

void TestAutoDim::rampStopsAtInput()
{
    Night night(99, fiveSeconds);
    night.pollFor(fiveSeconds + 10 * pollMs);
    QCOMPARE(night.brightness, 99 - 2 * 11);
    QCOMPARE(told(night.poll(true)), QStringLiteral("99/0 wake enable watching"));
    night.pollFor(fiveSeconds - pollMs);
    QCOMPARE(night.brightness, 99);
    QCOMPARE(told(night.poll()), QStringLiteral("97/1 dimming"));
}

void TestAutoDim::idleTimesOfTheList()
{
    constexpr qint32 second = 1000;
    constexpr qint32 minute = 60 * second;
    constexpr std::array<qint32, 9> told{5 * second,  10 * second, 30 * second,
                                         minute,      5 * minute,  10 * minute,
                                         15 * minute, 30 * minute, 60 * minute};
    QVERIFY(idleTimesMs == told);
}

void TestAutoDim::idleTimes_data()
{
    QTest::addColumn<qint32>("idleTime");
    for (const qint32 idleTime : idleTimesMs) {
        QTest::addRow("%d ms", idleTime) << idleTime;
    }
}

void TestAutoDim::idleTimes()
{
    QFETCH(qint32, idleTime);
    // The second night passes the wrap while the time runs.
    for (const qint64 start : {qint64{noon}, (qint64{1} << 32) - idleTime / 2}) {
        Night night(100, idleTime, start);
        night.pollFor(idleTime + 10'000);
        QCOMPARE(night.firstStepAt - start, qint64{idleTime});
        QCOMPARE(night.darkAt - start, idleTime + 48 * pollMs); // the 49th poll from there
        QCOMPARE(night.wakes, 0);
    }
}

void TestAutoDim::wholeNight_data()
{
    QTest::addColumn<qint32>("idleTime");
    QTest::addColumn<int>("brightness");
    for (const qint32 idleTime : idleTimesMs) {
        for (const int brightness : {0, 1, 2, 3, 4, 57, 99, 100}) {
            QTest::addRow("%d ms at %d", idleTime, brightness) << idleTime << brightness;
        }
    }
}

void TestAutoDim::wholeNight()
{
    QFETCH(qint32, idleTime);
    QFETCH(int, brightness);
    constexpr qint64 hour = 3'600'000;
    // Ten hours with the wrap at their middle; somebody touches a key now and then.
    Night night(brightness, idleTime, (qint64{1} << 32) - 5 * hour);
    const qint64 morning = night.clock + 10 * hour;
    const bool dims = brightness > 2;
    const qint64 rampMs = dims ? (qMax(1, (brightness - 1) / 2) - 1) * pollMs : 0;
    int sleeps = 0;
    qint64 pause = idleTime / 2; // shorter than the idle time at first, longer each time
    for (; night.clock + pause < morning; pause += idleTime / 2 + 700) {
        night.pollFor(pause);
        QVERIFY(dims || night.brightness == brightness);
        sleeps += dims && pause >= idleTime + rampMs ? 1 : 0;
        night.poll(true);
        QCOMPARE(night.brightness, brightness);
        QVERIFY(night.enabled);
        QVERIFY(!night.state.active);
    }
    QCOMPARE(night.darkened, sleeps);
    QVERIFY(!dims || sleeps > 0);
    QVERIFY(night.wakes >= sleeps);
    QVERIFY(dims || night.wakes == 0);
}

void TestAutoDim::tinyBrightnessIsNeverDimmed()
{
    for (const int brightness : {1, 2}) {
        Night night(brightness, fiveSeconds);
        for (int poll = 0; poll < 1000; ++poll) {
            QCOMPARE(told(night.poll()), QStringLiteral("%1/0").arg(brightness));
        }
    }
}

void TestAutoDim::darkenedByTheUser()
{
    Night night(0, fiveSeconds);
    night.pollFor(fiveSeconds - pollMs);
    QCOMPARE(told(night.poll()), QStringLiteral("0/0 dimmed")); // only told so
    QCOMPARE(told(night.poll(true)), QStringLiteral("0/0"));
    QVERIFY(night.enabled);
}

void TestAutoDim::countedCodes()
{
    const QSet<int> mouse{1, 2, 3, 4, 5, 6};
    for (int code = 0; code < static_cast<int>(KeyPresses().size()); ++code) {
        KeyPresses presses;
        presses.set(static_cast<std::size_t>(code));
        QVERIFY(countsAsInput(presses, true));
        QCOMPARE(countsAsInput(presses, false), !mouse.contains(code));
    }
}

void TestAutoDim::nothingPressed()
{
    QVERIFY(!countsAsInput(KeyPresses(), true));
    QVERIFY(!countsAsInput(KeyPresses(), false));
}

void TestAutoDim::keyBesideTheMouse()
{
    QVERIFY(countsAsInput(KeyPresses().set(1).set(65), false));
    QVERIFY(!countsAsInput(KeyPresses().set(1).set(6), false));
}

QTEST_GUILESS_MAIN(TestAutoDim)
#include "tst_autodim.moc"
