#include "system/testing/desktop.h"
#include "tests/e2e/programlines.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QVector>

namespace {

constexpr qint64 idleMs = 5000;
constexpr int soonerThanIdleMs = 4500;
constexpr int longerThanIdleMs = 6000;
/// What a busy machine may take longer.
constexpr int slackMs = 2000;
/// Until a program that starts with auto-dim on is dark: it applies the settings, waits five
/// seconds before it starts to watch, and five more until it dims.
constexpr int darkAfterStartMs = 20'000;

/// Brightness 9 is dark five polls after the first step.
constexpr const char *dimSettings = "backlight_on=true\nbrightlevel=9\nZone1Color=255 0 0\n"
                                    "AutoDim=true\ndimtimer=0\n";
const QString blackLine = QStringLiteral("4026531840,4043309056,4060086272,4076863488,0");
const QString dimLine = QStringLiteral("4026537472,4043309056,4060086272,4076863488,0");
const QString breathLine = QStringLiteral("4026537472,4043309056,4060086272,4076863488,268607488");
const QString twoPercentLine = QStringLiteral("4026533120,4043309056,4060086272,4076863488,0");

/// The brightness that a line shows in its left word, whose colour is pure red.
int shownBrightness(const QString &line)
{
    const quint32 word = line.section(QLatin1Char(','), 0, 0).toUInt();
    const int red = static_cast<int>(word >> 8 & 0xFF);
    return (red * 100 + 254) / 255; // the one percentage that is truncated to it
}

/// Waits for the first of the two wake lines, and takes it.
bool wakeComes()
{
    return QTest::qWaitFor([] { return ServiceClient::readLine() == Lines::wake; }, patienceMs);
}

/// The first line that is not dark, nothing when none comes. The words follow the slider with the
/// next tick, and until then are those of the darkness.
QString firstLight()
{
    QString line;
    const auto isLit = [&line] {
        line = ServiceClient::readLine();
        return line != Lines::off && line != blackLine;
    };
    return QTest::qWaitFor(isLit, patienceMs) ? line : QString();
}

/// Turns the wheel over a place of the window, which is no input.
void turnWheel(const QPoint &place, bool away)
{
    Desktop::movePointer(place);
    Desktop::turnWheel(away);
}

void pressKey()
{
    Desktop::press({QStringLiteral("a")});
}

} // namespace

/// Auto-dim from outside: real keys and clicks, and what the agent receives meanwhile.
class TestDimming : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void nightAndMorning();
    void mouseWakesWithTheBox();
    void hiddenInTheTray();
    void effectBoxAndSlider();

private:
    /// Starts the program, and reads the lines that wake the keyboard.
    void startShown(const QByteArray &settings);
    /// Reads lines until @p last comes; each brightness seen, once. Empty when it does not come.
    QVector<int> brightnessesUntil(const QString &last, int timeoutMs);
    QPoint onScreen(const char *name) const { return ProgramWindow::onScreen(*twin->window, name); }

    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestDimming::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
}

void TestDimming::init()
{
    twin.reset();
    program = std::make_unique<ProgramProcess>();
}

void TestDimming::startShown(const QByteArray &settings)
{
    ProgramProcess::writeSettings(settings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<TestWindow>();
    twin->construct();
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
}

QVector<int> TestDimming::brightnessesUntil(const QString &last, int timeoutMs)
{
    QVector<int> seen;
    QElapsedTimer time;
    time.start();
    while (!time.hasExpired(timeoutMs)) {
        const QString line = ServiceClient::readLine();
        if (line == last) {
            return seen;
        }
        if (seen.isEmpty() || seen.last() != shownBrightness(line)) {
            seen.append(shownBrightness(line));
        }
        QTest::qWait(15);
    }
    return {};
}

void TestDimming::nightAndMorning()
{
    startShown(Lines::threeZonesSettings);
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);

    const QPoint box = onScreen("CheckBox_AutoDim");
    const QPoint title = onScreen("Title");
    QElapsedTimer time;
    time.start();
    ProgramWindow::click(box);
    QTRY_COMPARE(ProgramProcess::stored("AutoDim"), QStringLiteral("true"));
    const qint64 clickedMs = time.elapsed();

    // Five seconds of nothing that counts.
    QTest::qWait(static_cast<int>(idleMs / 2));
    ProgramWindow::click(title);
    while (ServiceClient::readLine() == Lines::threeZones && !time.hasExpired(3 * idleMs)) {
        QTest::qWait(15);
    }
    const qint64 firstStepMs = time.elapsed();
    QVERIFY2(firstStepMs >= idleMs, qPrintable(QString::number(firstStepMs)));
    QVERIFY2(firstStepMs < idleMs + clickedMs + slackMs, qPrintable(QString::number(firstStepMs)));

    // Down by two points a step; a slow reader may miss a step, but never sees another.
    const QVector<int> ramp = brightnessesUntil(Lines::off, 10'000);
    const qint64 rampMs = time.elapsed() - firstStepMs;
    QVERIFY2(rampMs > 4000, qPrintable(QString::number(rampMs))); // 49 polls
    QVERIFY2(ramp.size() > 10, qPrintable(QString::number(ramp.size())));
    int byTwo = 0;
    for (int i = 1; i < ramp.size(); ++i) {
        const int step = ramp.at(i - 1) - ramp.at(i);
        QVERIFY2(step > 0 && step % 2 == 0, qPrintable(QString::number(step)));
        byTwo += step == 2 ? 1 : 0;
    }
    QVERIFY2(byTwo > 2, qPrintable(QString::number(byTwo)));

    // Dark, and a click leaves it so.
    ProgramWindow::click(title);
    QTest::qWait(1000);
    QCOMPARE(ServiceClient::readLine(), Lines::off);

    pressKey();
    QVERIFY(wakeComes());
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(firstLight(), Lines::threeZones);
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("100"));
}

void TestDimming::mouseWakesWithTheBox()
{
    startShown(QByteArray(dimSettings) + "touchwake=true\n");
    const QPoint title = onScreen("Title");
    QCOMPARE(ServiceClient::readLine(), dimLine);
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::off, darkAfterStartMs);

    // The wheel and the pointer's way are no input.
    turnWheel(title, false);
    QTest::qWait(500);
    QCOMPARE(ServiceClient::readLine(), Lines::off);

    ProgramWindow::click(title);
    QVERIFY(wakeComes());
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(firstLight(), dimLine);
}

void TestDimming::hiddenInTheTray()
{
    ProgramProcess::writeSettings(QByteArray(dimSettings) + "start_hidden=1\n");
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    ServiceClient::readLine();
    ServiceClient::readLine();
    QCOMPARE(ServiceClient::readLine(), dimLine);
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::off, darkAfterStartMs);
    QCOMPARE(ProgramWindow::shown(), 0ULL);

    // Somebody types into another program.
    QWidget other;
    other.setGeometry(100, 100, 300, 200);
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    pressKey();
    QVERIFY(wakeComes());
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(firstLight(), dimLine);
    QCOMPARE(ProgramWindow::shown(), 0ULL);
}

/// What keeps the light from dimming, by hand. The mouse does not count here, so that nothing but
/// the end of what kept it can be seen.
void TestDimming::effectBoxAndSlider()
{
    startShown("backlight_on=true\nbrightlevel=9\nZone1Color=255 0 0\n");
    QCOMPARE(ServiceClient::readLine(), dimLine);
    const QPoint box = onScreen("CheckBox_AutoDim");
    const QPoint effect = onScreen("Combo_Effect");
    const QPoint slider = onScreen("horizontalSlider");

    // While an effect is chosen, nothing dims; without it the idle time has long been over.
    ProgramWindow::click(box);
    turnWheel(effect, false);
    QTRY_COMPARE(ServiceClient::readLine(), breathLine);
    QTest::qWait(longerThanIdleMs);
    QCOMPARE(ServiceClient::readLine(), breathLine);
    turnWheel(effect, true);
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::off, soonerThanIdleMs);

    // Unchecked while it is dark: lit again, without waking the keyboard, and to be moved again.
    ProgramWindow::click(box);
    QTRY_COMPARE(ProgramProcess::stored("AutoDim"), QStringLiteral("false"));
    QCOMPARE(firstLight(), dimLine);
    ProgramWindow::click(slider); // takes the focus
    Desktop::press({QStringLiteral("Home"), QStringLiteral("Right"), QStringLiteral("Right")});
    QTRY_COMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("2"));

    // Two percent stay; one more does not.
    ProgramWindow::click(box);
    QTRY_COMPARE(ProgramProcess::stored("AutoDim"), QStringLiteral("true"));
    QTest::qWait(longerThanIdleMs);
    QCOMPARE(ServiceClient::readLine(), twoPercentLine);
    turnWheel(slider, true);
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::off, soonerThanIdleMs);
}

QTEST_MAIN(TestDimming)
#include "tst_dimming.moc"
