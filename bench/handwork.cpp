#include "system/testing/roughhandling.h"
#include "tests/support/programtwin.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QRadioButton>
#include <QSlider>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>

// The window used with the real pointer, or by clients that come all at once, while an agent asks
// it from outside:
//
//   handwork drag             one line: seconds from the press to the end of the release, repaints
//   handwork click ROUNDS     one line a round: when the button was let go over "Enabled"
//   handwork flood ROUNDS     20,000 clients that leave at once; one line a round: the longest turn
//                             of the event loop, and the most computed in one
//
// First tells the port for agents, last waits for the end of its input. Times are seconds of the
// system's steady clock.
namespace {

constexpr int settledAfterMs = 2000; // the settings are applied anew a second after the start
constexpr int sweeps = 3;
constexpr int movesOfASweep = 80; // so that each changes the brightness
constexpr double dragSeconds = 4;
constexpr int betweenClicksMs = 400;
constexpr int clientsAtOnce = 20'000;
constexpr int afterAFloodMs = 1000;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Seconds for which this thread has computed.
double computed()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Has the tool that stands for a hand do something, with the window served meanwhile.
void useHand(const QStringList &commands)
{
    QProcess hand;
    QEventLoop loop;
    QObject::connect(&hand, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    hand.start(QStringLiteral("xdotool"), commands);
    loop.exec();
}

QStringList pointerAt(const QWidget &widget, double share)
{
    const QPoint point =
        widget.mapToGlobal({static_cast<int>(widget.width() * share), widget.height() / 2});
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

/// What happens to a widget.
class Watch : public QObject
{
public:
    explicit Watch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Paint:
            ++repaints;
            break;
        case QEvent::MouseButtonPress:
            pressed = now();
            break;
        case QEvent::MouseButtonRelease:
            letGo = now();
            break;
        default:
            break;
        }
        return false;
    }

    int repaints = 0;
    double pressed = 0;
    double letGo = 0;
};

void drag(const TestWindow &world)
{
    auto *const slider = world.get<QSlider>("horizontalSlider");
    Watch watch(slider);
    double stored = 0;
    QObject::connect(slider, &QSlider::sliderReleased, [&] { stored = now(); }); // the last to hear
    QStringList commands =
        pointerAt(*slider, 0.9) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")};
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        for (int move = 1; move <= movesOfASweep; ++move) {
            const int place = sweep % 2 == 0 ? movesOfASweep - move : move;
            commands << QStringLiteral("sleep")
                     << QString::number(dragSeconds / sweeps / movesOfASweep)
                     << pointerAt(*slider, 0.1 + 0.8 * place / movesOfASweep);
        }
    }
    commands << QStringLiteral("mouseup") << QStringLiteral("1");
    useHand(commands);
    while (stored == 0) {
        wait(1);
    }
    if (world.stored(SettingKeys::brightLevel) != QString::number(slider->value())
        || slider->value() > 20) {
        qFatal("the handle did not go where the pointer went");
    }
    out() << stored - watch.pressed << ' ' << watch.repaints << '\n';
}

void click(const TestWindow &world, int rounds)
{
    auto *const enabled = world.get<QRadioButton>("backlight_on");
    Watch watch(enabled);
    const auto clickOn = [](const QWidget &button) {
        useHand(pointerAt(button, 0.1) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
        wait(betweenClicksMs);
    };
    for (int round = 0; round < rounds; ++round) {
        clickOn(*world.get<QRadioButton>("backlight_off"));
        clickOn(*enabled);
        if (!enabled->isChecked()) {
            qFatal("the click did not reach the button");
        }
        out() << QString::number(watch.letGo, 'f', 6) << '\n';
    }
}

void flood(const TestWindow &world, int rounds)
{
    const quint16 port = world.servicePort();
    for (int round = 0; round < rounds; ++round) {
        double longest = 0;
        double last = now();
        double mostComputed = 0;
        double lastComputed = computed();
        QTimer turns; // without an interval it would wait until there is nothing else
        QObject::connect(&turns, &QTimer::timeout, [&] {
            const double current = now();
            longest = std::max(longest, current - last);
            last = current;
            const double currentComputed = computed();
            mostComputed = std::max(mostComputed, currentComputed - lastComputed);
            lastComputed = currentComputed;
        });
        turns.setTimerType(Qt::PreciseTimer);
        turns.start(1);
        std::atomic<bool> gone = false;
        std::thread clients([&] {
            RoughHandling::comeAndGo(world.endpoint.address, port, clientsAtOnce);
            gone = true;
        });
        while (!gone) {
            wait(10);
        }
        clients.join();
        wait(afterAFloodMs);
        turns.stop();
        out() << longest << ' ' << mostComputed << '\n';
        out().flush();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        qFatal("usage: handwork drag|click|flood [ROUNDS]");
    }
    ProgramTwin::takeOnItsLooks();
    TestWindow world;
    world.writeSettings("backlight_on=true\nbacklight_off=false\nbrightlevel=100\n"
                        "Zone1Color=0 120 255\nZone2Color=0 120 255\nZone3Color=0 120 255\n"
                        "StripeLid=0 255 0\n");
    world.start().show();
    wait(settledAfterMs);
    out() << world.servicePort() << '\n';
    out().flush();
    if (arguments.at(1) == QLatin1String("drag")) {
        drag(world);
    } else if (arguments.at(1) == QLatin1String("click")) {
        click(world, arguments.value(2).toInt());
    } else {
        flood(world, arguments.value(2).toInt());
    }
    out().flush();
    // Agents are answered up to the end.
    const QSocketNotifier end(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
