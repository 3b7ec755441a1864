#include "programlines.h"

#include "app/connectionmessage.h"
#include "system/testing/desktop.h"
#include "tests/support/instancesocket.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testsystem.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QRandomGenerator>
#include <QTest>

#include <limits>

namespace {

constexpr int twenty = 20;
/// The guard's promise is a fraction of a second; the rest is for a busy machine to load a process.
constexpr int leavesWithinMs = 10'000;

/// The first line of the log behind the guard, before there is a window.
constexpr const char *pastTheGuard = "Logical DPI";

/// A further start beside the one of ProgramProcess.
class FurtherStart
{
public:
    explicit FurtherStart(const ProgramProcess &first,
                          const QString &program = ProgramProcess::executable())
    {
        process.setProcessEnvironment(first.process.processEnvironment());
        process.setWorkingDirectory(QFileInfo(program).absolutePath());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, QStringList());
    }
    ~FurtherStart()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY(FurtherStart)

    bool runs() const { return process.state() != QProcess::NotRunning; }
    /// Whether it ends with code 0 and without having passed the guard.
    bool leaves()
    {
        return QTest::qWaitFor([this] { return !runs(); }, leavesWithinMs)
               && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
               && !logs(pastTheGuard);
    }
    bool logs(const char *text)
    {
        output += process.readAll();
        return output.contains(text);
    }

    QProcess process;

private:
    QByteArray output;
};

using Starts = std::vector<std::unique_ptr<FurtherStart>>;

Starts startTwenty(const ProgramProcess &first)
{
    Starts starts;
    for (int start = 0; start < twenty; ++start) {
        starts.push_back(std::make_unique<FurtherStart>(first));
    }
    return starts;
}

int running(const Starts &starts)
{
    return static_cast<int>(std::count_if(starts.begin(), starts.end(),
                                          [](const auto &start) { return start->runs(); }));
}

/// How many windows of the program the screen shows.
int shownWindows()
{
    return Desktop::shownWindows(QStringLiteral("^Lumikey$")).size();
}

/// Asks again for 10 s of real time; the desktop's tools take theirs.
template<class Condition> bool eventually(Condition condition)
{
    return QTest::qWaitFor(condition, 10'000);
}

/// Whether the only window is shown and has the focus.
bool inFront()
{
    const quintptr window = ProgramWindow::shown();
    return window != 0 && Desktop::activeWindow() == window;
}

void copyFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir()) {
            copyFolder(entry.filePath(), target);
        } else if (!QFile::copy(entry.filePath(), target)) {
            qFatal("cannot copy %s", qPrintable(entry.filePath()));
        }
    }
}

/// The executable of a copy of the whole program in @p folder.
QString copyProgram(const QTemporaryDir &folder)
{
    const QString copy = folder.filePath(QStringLiteral("Lumikey copy"));
    copyFolder(ProgramProcess::programFolder(), copy);
    return copy + QLatin1Char('/') + QFileInfo(ProgramProcess::executable()).fileName();
}

} // namespace

/// The real program, started more than once.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void secondStart_data();
    void secondStart();
    void secondStartLeavesAtOnce();
    void secondStartWhenCovered();
    void twentyAtOnce();
    void twentyBesideOne();
    void whileTheFirstIsStarting_data();
    void whileTheFirstIsStarting();
    void killedHardAndStartedAgain();
    void anotherFolder();
    void strangers();

private:
    std::unique_ptr<ProgramProcess> first;
};

void TestSingleInstance::initTestCase()
{
    // For the twin that tells where a button is.
    QApplication::setStyle(new DarkStyle);
}

void TestSingleInstance::init()
{
    first = std::make_unique<ProgramProcess>();
}

void TestSingleInstance::secondStart_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("minimised") << QByteArray();
    QTest::newRow("hidden in the tray") << QByteArray("start_hidden=1\n");
}

void TestSingleInstance::secondStart()
{
    QFETCH(QByteArray, settings);
    ProgramProcess::writeSettings(settings);
    QVERIFY(first->startAndServe());
    if (settings.isEmpty()) {
        QVERIFY(eventually(inFront));
        TestWindow twin;
        twin.construct();
        ProgramWindow::click(ProgramWindow::onScreen(*twin.window, "minimizeButton"));
    }
    QVERIFY(eventually([&] { return ServiceClient::readLine() == Lines::off; }));
    QVERIFY(eventually([&] { return shownWindows() == 0; }));

    FurtherStart second(*first);
    QVERIFY(second.leaves());
    QVERIFY(eventually(inFront));
    // The button that was clicked has lost the focus, so a key does not minimise the window again.
    Desktop::press({QStringLiteral("space")});
    QTest::qWait(200);
    QVERIFY(inFront());
    QCOMPARE(shownWindows(), 1);
    QCOMPARE(first->process.state(), QProcess::Running);
}

/// Telling the first one takes 100 ms at most, and the time to connect. What the machine needs to
/// load the program it also needs for a start that stays, so that is the measure.
void TestSingleInstance::secondStartLeavesAtOnce()
{
    constexpr int rounds = 5;
    constexpr qint64 toldWithinMs = 250;
    QElapsedTimer timer;
    qint64 alone = std::numeric_limits<qint64>::max();
    qint64 beside = alone;
    for (int round = 0; round < rounds; ++round) {
        timer.start();
        FurtherStart start(*first);
        QVERIFY(QTest::qWaitFor([&start] { return start.logs(pastTheGuard); }, leavesWithinMs));
        alone = qMin(alone, timer.elapsed());
    }
    QVERIFY(first->startAndServe());
    for (int round = 0; round < rounds; ++round) {
        timer.start();
        FurtherStart second(*first);
        QVERIFY(second.leaves());
        beside = qMin(beside, timer.elapsed());
    }
    QVERIFY2(beside <= alone + toldWithinMs,
             qPrintable(QStringLiteral("%1 ms, and %2 ms when alone").arg(beside).arg(alone)));
}

/// Under Wine the focus is the window manager's to give, so the order of the windows tells.
void TestSingleInstance::secondStartWhenCovered()
{
    QVERIFY(first->startAndServe());
    QVERIFY(eventually(inFront));
    const quintptr window = ProgramWindow::shown();
    QVERIFY(eventually([&] { return Desktop::topWindow() == window; }));
    const QTemporaryDir elsewhere;
    const FurtherStart cover(*first, copyProgram(elsewhere)); // opens in the same place
    QVERIFY(eventually([&] { return shownWindows() == 2 && Desktop::topWindow() != window; }));

    FurtherStart second(*first);
    QVERIFY(second.leaves());
    QVERIFY(eventually([&] { return Desktop::topWindow() == window; }));
    QCOMPARE(shownWindows(), 2);
}

void TestSingleInstance::twentyAtOnce()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    const Starts starts = startTwenty(*first);
    int mostWindows = 0;
    QElapsedTimer waiting;
    waiting.start();
    while (running(starts) > 1 && waiting.elapsed() < qint64{3} * leavesWithinMs) {
        mostWindows = qMax(mostWindows, shownWindows());
        QTest::qWait(20);
    }
    QVERIFY(mostWindows <= 1);
    QCOMPARE(running(starts), 1);
    for (const auto &start : starts) {
        QVERIFY(start->runs() || start->leaves());
        QVERIFY(!start->runs()
                || QTest::qWaitFor([&] { return start->logs("The Service Server is running!"); },
                                   leavesWithinMs));
    }
    QVERIFY(eventually([&] { return shownWindows() == 1; }));
    QTRY_COMPARE(ServiceClient::readLine(), Lines::threeZones);
    QCOMPARE(running(starts), 1);
}

void TestSingleInstance::twentyBesideOne()
{
    ProgramProcess::writeSettings("start_hidden=1\n");
    QVERIFY(first->startAndServe());
    QVERIFY(eventually([&] { return ServiceClient::readLine() == Lines::off; }));
    const Starts starts = startTwenty(*first);
    for (const auto &start : starts) {
        QVERIFY(start->leaves());
    }
    QVERIFY(eventually([&] { return shownWindows() == 1; }));
    QCOMPARE(first->process.state(), QProcess::Running);
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
}

void TestSingleInstance::whileTheFirstIsStarting_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("shown") << QByteArray();
    if (TestSystem::messagesOutliveTheirSender()) {
        QTest::newRow("hidden in the tray") << QByteArray("start_hidden=1\n");
    }
}

/// Whichever is the first to reach the guard; the other leaves, and the window is in front.
void TestSingleInstance::whileTheFirstIsStarting()
{
    QFETCH(QByteArray, settings);
    ProgramProcess::writeSettings(settings);
    for (const int delayMs : {0, 20, 60, 100, 150, 200, 250}) {
        FurtherStart one(*first);
        QTest::qWait(delayMs);
        FurtherStart other(*first);
        QVERIFY(QTest::qWaitFor([&] { return one.runs() != other.runs(); }, leavesWithinMs));
        FurtherStart &gone = one.runs() ? other : one;
        FurtherStart &stayed = one.runs() ? one : other;
        QVERIFY(gone.leaves());
        QVERIFY(QTest::qWaitFor([&] { return stayed.logs("The Service Server is running!"); },
                                leavesWithinMs));
        QVERIFY(eventually(inFront));
        QCOMPARE(shownWindows(), 1);
    }
}

void TestSingleInstance::killedHardAndStartedAgain()
{
    for (int round = 0; round < 3; ++round) {
        QVERIFY(first->startAndServe());
        FurtherStart second(*first);
        QVERIFY(second.leaves());
        first->kill();
    }
    // In the middle of its start, too.
    QVERIFY(first->start());
    QTest::qWait(30);
    first->process.kill();
    QVERIFY(first->process.waitForFinished());
    QVERIFY(first->startAndServe());
}

void TestSingleInstance::anotherFolder()
{
    QVERIFY(first->startAndServe());
    const QTemporaryDir elsewhere;
    FurtherStart beside(*first, copyProgram(elsewhere));
    QVERIFY(QTest::qWaitFor([&] { return beside.logs("Could not start the Service Server"); },
                            leavesWithinMs));
    const bool bothShown = eventually([&] { return shownWindows() == 2; });
    QVERIFY(beside.runs());
    QCOMPARE(first->process.state(), QProcess::Running);
    QVERIFY2(bothShown, qPrintable(QString::number(shownWindows())));
}

void TestSingleInstance::strangers()
{
    ProgramProcess::writeSettings("start_hidden=1\n");
    QVERIFY(first->startAndServe());
    const auto silent = InstanceSocket::connect();
    QTRY_COMPARE(silent->state(), QLocalSocket::UnconnectedState);

    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes(1 + random.bounded(200), Qt::Uninitialized);
        std::generate(bytes.begin(), bytes.end(),
                      [&random] { return static_cast<char>(random.bounded(256)); });
        const auto client = InstanceSocket::connect();
        client->write(bytes);
        QVERIFY(client->waitForDisconnected(5000));
    }

    const QByteArray message =
        encodeConnectionMessage(InstanceSocket::name(), {ConnectionMessage::NewStart, 0});
    const auto slow = InstanceSocket::connect();
    for (const char letter : message) {
        if (slow->write(&letter, 1) != 1 || !slow->waitForBytesWritten(1000)) {
            break; // dropped
        }
        QTest::qWait(10);
    }
    QTRY_COMPARE(slow->state(), QLocalSocket::UnconnectedState);
    QByteArray wrong = message;
    wrong[wrong.size() - 1] = static_cast<char>(wrong.at(wrong.size() - 1) ^ 1);
    const auto forger = InstanceSocket::connect();
    forger->write(wrong);
    QVERIFY(forger->waitForDisconnected(5000));

    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(shownWindows(), 0);
    // One whom a busy machine holds up before it can speak is dropped like the silent one.
    QVERIFY(eventually([&] {
        const auto genuine = InstanceSocket::connect();
        genuine->write(message);
        genuine->flush();
        return QTest::qWaitFor([] { return shownWindows() == 1; }, 2000);
    }));
}

QTEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
