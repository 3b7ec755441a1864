#include "programlines.h"

#include "app/connectionmessage.h"
#include "app/instancename.h"
#include "system/platform.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testsystem.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QRandomGenerator>
#include <QTest>
#include <QWidget>

namespace {

constexpr int twenty = 20;
/// The guard's promise is a fraction of a second; the rest is for a busy machine to load a process.
constexpr int leavesWithinMs = 10'000;

const QString xdotool = QStringLiteral("xdotool");
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

qulonglong activeWindow()
{
    return TestSystem::runDesktopTool(xdotool, {QStringLiteral("getactivewindow")})
        .trimmed()
        .toULongLong();
}

/// How many windows of the program the screen shows.
int shownWindows()
{
    const QByteArray windows = TestSystem::runDesktopTool(
        xdotool, {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--name"), QStringLiteral("^Lumikey$")});
    return windows.count('\n');
}

bool inFront()
{
    const qulonglong window = ProgramWindow::shown();
    return window != 0 && activeWindow() == window;
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

} // namespace

/// The real program, started more than once.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void secondStart_data();
    void secondStart();
    void twentyAtOnce();
    void twentyBesideOne();
    void whileTheFirstIsStarting();
    void killedHardAndStartedAgain();
    void anotherFolder();
    void strangers();

private:
    /// Another client of what later starts meet the running one under.
    std::unique_ptr<QLocalSocket> stranger();

    std::unique_ptr<ProgramProcess> first;
    QString name;
};

void TestSingleInstance::init()
{
    first = std::make_unique<ProgramProcess>();
    name.clear();
}

void TestSingleInstance::secondStart_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<bool>("minimise");
    QTest::newRow("covered") << QByteArray() << false;
    QTest::newRow("minimised") << QByteArray() << true;
    QTest::newRow("hidden in the tray") << QByteArray("start_hidden=1\n") << false;
}

void TestSingleInstance::secondStart()
{
    QFETCH(QByteArray, settings);
    QFETCH(bool, minimise);
    ProgramProcess::writeSettings(settings);
    QVERIFY(first->startAndServe());
    const bool hidden = !settings.isEmpty();
    if (!hidden) {
        QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), 1, 10'000);
    }
    if (minimise) {
        ProgramWindow::input(
            {QStringLiteral("windowminimize"), QString::number(ProgramWindow::shown())});
    }
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), hidden || minimise ? 0 : 1, 10'000);
    QWidget cover;
    cover.setGeometry(0, 0, 1200, 1000);
    cover.show();
    cover.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&cover));
    QVERIFY(!inFront());

    FurtherStart second(*first);
    QVERIFY(second.leaves());
    QTRY_VERIFY_WITH_TIMEOUT(inFront(), 10'000);
    QCOMPARE(shownWindows(), 1);
    QCOMPARE(first->process.state(), QProcess::Running);
}

void TestSingleInstance::twentyAtOnce()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    const Starts starts = startTwenty(*first);
    int mostWindows = 0;
    QElapsedTimer waiting;
    waiting.start();
    while (running(starts) > 1 && waiting.elapsed() < 3 * leavesWithinMs) {
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
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), 1, 10'000);
    QTRY_COMPARE_WITH_TIMEOUT(ServiceClient::readLine(), Lines::threeZones, 10'000);
    QCOMPARE(running(starts), 1);
}

void TestSingleInstance::twentyBesideOne()
{
    ProgramProcess::writeSettings("start_hidden=1\n");
    QVERIFY(first->startAndServe());
    const Starts starts = startTwenty(*first);
    for (const auto &start : starts) {
        QVERIFY(start->leaves());
    }
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), 1, 10'000);
    QCOMPARE(first->process.state(), QProcess::Running);
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
}

void TestSingleInstance::whileTheFirstIsStarting()
{
    // Whichever is the first to reach the guard; the other leaves, and the window is in front.
    for (const int delayMs : {0, 20, 60, 150}) {
        FurtherStart one(*first);
        QTest::qWait(delayMs);
        FurtherStart other(*first);
        QVERIFY(QTest::qWaitFor([&] { return one.runs() != other.runs(); }, leavesWithinMs));
        FurtherStart &gone = one.runs() ? other : one;
        FurtherStart &stayed = one.runs() ? one : other;
        QVERIFY(gone.leaves());
        QVERIFY(QTest::qWaitFor([&] { return stayed.logs("The Service Server is running!"); },
                                leavesWithinMs));
        QTRY_VERIFY_WITH_TIMEOUT(inFront(), 10'000);
        QCOMPARE(shownWindows(), 1);
    }
}

void TestSingleInstance::killedHardAndStartedAgain()
{
    for (int round = 0; round < 3; ++round) {
        QVERIFY(first->startAndServe());
        FurtherStart second(*first);
        QVERIFY(second.leaves());
        first->process.kill();
        QVERIFY(first->process.waitForFinished());
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
    const QString copy = elsewhere.filePath(QStringLiteral("Lumikey copy"));
    copyFolder(ProgramProcess::programFolder(), copy);
    FurtherStart beside(*first, copy + QLatin1Char('/')
                                    + QFileInfo(ProgramProcess::executable()).fileName());
    QVERIFY(QTest::qWaitFor([&] { return beside.logs("Could not start the Service Server"); },
                            leavesWithinMs));
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), 2, 10'000);
    QVERIFY(beside.runs());
    QCOMPARE(first->process.state(), QProcess::Running);
}

std::unique_ptr<QLocalSocket> TestSingleInstance::stranger()
{
    // The toolkit takes the version from the executable where executables have one.
    const QStringList names =
        name.isEmpty() ? QStringList{QString(), QStringLiteral("1.0.4.0")} : QStringList{name};
    for (const QString &candidate : names) {
        const QString tried = name.isEmpty()
                                  ? instanceName({QStringLiteral("Lumikey"), QString(), QString(),
                                                  candidate, ProgramProcess::executable(),
                                                  createPlatform()->userName(), QStringList()},
                                                 InstanceOptions::perUser)
                                  : name;
        auto client = std::make_unique<QLocalSocket>();
        client->connectToServer(tried);
        if (client->waitForConnected(5000)) {
            name = tried;
            return client;
        }
    }
    qFatal("nobody listens under the program's name");
    return nullptr;
}

void TestSingleInstance::strangers()
{
    ProgramProcess::writeSettings("start_hidden=1\n");
    QVERIFY(first->startAndServe());
    const auto silent = stranger();
    QTRY_COMPARE(silent->state(), QLocalSocket::UnconnectedState);

    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes(1 + random.bounded(200), Qt::Uninitialized);
        std::generate(bytes.begin(), bytes.end(),
                      [&random] { return static_cast<char>(random.bounded(256)); });
        const auto client = stranger();
        client->write(bytes);
        QVERIFY(client->waitForDisconnected(5000));
    }

    const QByteArray message = encodeConnectionMessage(name, {ConnectionMessage::NewStart, 0});
    const auto slow = stranger();
    for (const char byte : message) {
        if (slow->write(&byte, 1) != 1 || !slow->waitForBytesWritten(1000)) {
            break; // dropped
        }
        QTest::qWait(10);
    }
    QTRY_COMPARE(slow->state(), QLocalSocket::UnconnectedState);
    QByteArray wrong = message;
    wrong[wrong.size() - 1] = static_cast<char>(wrong.at(wrong.size() - 1) ^ 1);
    const auto forger = stranger();
    forger->write(wrong);
    QVERIFY(forger->waitForDisconnected(5000));

    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(shownWindows(), 0);
    const auto genuine = stranger();
    genuine->write(message);
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows(), 1, 10'000);
}

QTEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
