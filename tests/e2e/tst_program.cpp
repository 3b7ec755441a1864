#include "system/testing/desktop.h"
#include "system/testing/loadedlibraries.h"
#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testpaths.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTest>

/// The main job, from outside: what a person does to the window and what an agent then receives.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void answerByteByByte();
    void wakeWakeNormal();
    void theLifeOfOneChange();
    void keysMoveTheSlider();
    void closeButtonEndsTheProgram();
    void movedWindowComesBack();
    void hiddenStart();
    void portTaken();
    void agentUnderstandsTheProgram();
    void loadsNoOpenGl();

private:
    /// Starts with @p settings and waits until they are applied and the window is shown.
    void startShown(const QByteArray &settings = QByteArray());
    QPoint onScreen(const char *name, const QPoint &offset = {}) const
    {
        return ProgramWindow::onScreen(*twin->window, name, offset);
    }

    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestProgram::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
}

void TestProgram::init()
{
    twin.reset();
    program = std::make_unique<ProgramProcess>();
}

void TestProgram::startShown(const QByteArray &settings)
{
    if (!settings.isEmpty()) {
        ProgramProcess::writeSettings(settings);
    }
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<TestWindow>();
    twin->construct();
}

void TestProgram::answerByteByByte()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QByteArray expected = QByteArray::fromHex("005e0000005a");
    for (const char letter : Lines::wake.toLatin1()) {
        expected += '\0';
        expected += letter;
    }
    QCOMPARE(ServiceClient::readAnswer().toHex(), expected.toHex());
}

void TestProgram::wakeWakeNormal()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
}

void TestProgram::theLifeOfOneChange()
{
    startShown(Lines::threeZonesSettings);
    ServiceClient::readLine();
    ServiceClient::readLine();
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);

    ProgramWindow::click(onScreen("backlight_off"));
    QTRY_COMPARE(ServiceClient::readLine(), Lines::off);
    QTRY_COMPARE(ProgramProcess::stored("backlight_on"), QStringLiteral("false"));
    QCOMPARE(ProgramProcess::stored("backlight_off"), QStringLiteral("true"));

    ProgramWindow::click(onScreen("backlight_on"));
    QTRY_COMPARE(ProgramProcess::stored("backlight_off"), QStringLiteral("false"));
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    // The stripe stays black until the slider moves.
    QCOMPARE(ServiceClient::readLine(),
             QStringLiteral("4026597120,4043309311,4076797952,4076863488,0"));
}

void TestProgram::keysMoveTheSlider()
{
    startShown(Lines::threeZonesSettings);
    ServiceClient::readLine();
    ServiceClient::readLine();

    Desktop::press({QStringLiteral("Down")});           // for nobody: no control has the focus yet
    ProgramWindow::click(onScreen("horizontalSlider")); // takes it
    QTRY_COMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("50"));
    Desktop::press({QStringLiteral("Home")});
    QTRY_COMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("0"));
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    Desktop::press({QStringLiteral("End"), QStringLiteral("Left"), QStringLiteral("Left")});
    QTRY_COMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("98"));
    // 255 at 98 percent is 249; the stripe's 1 2 3 becomes 0 1 2.
    QTRY_COMPARE(ServiceClient::readLine(),
                 QStringLiteral("4026595584,4043309305,4076404736,4076994561,0"));
}

void TestProgram::closeButtonEndsTheProgram()
{
    startShown();
    ProgramWindow::click(onScreen("closeButton"));
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    const QByteArray text = readFile(ProgramProcess::settingsFile());
    QVERIFY2(text.contains("\nmainWindowGeometry=@ByteArray("), text.constData());
    QVERIFY(text.contains("\nmainWindowState=\"@ByteArray(")
            || text.contains("\nmainWindowState=@ByteArray("));
}

void TestProgram::movedWindowComesBack()
{
    startShown();
    const QRect before = ProgramWindow::geometry();
    const QPoint grip = onScreen("Title");
    ProgramWindow::drag(grip, grip + QPoint(-90, 60));
    const QRect moved = before.translated(-90, 60);
    QTRY_COMPARE(ProgramWindow::geometry(), moved);

    ProgramWindow::click(onScreen("closeButton"));
    QTRY_COMPARE(program->process.state(), QProcess::NotRunning);
    QVERIFY(program->startAndServe());
    QTRY_COMPARE(ProgramWindow::geometry(), moved);
}

void TestProgram::hiddenStart()
{
    ProgramProcess::writeSettings("start_hidden=1\nbacklight_on=true\nbrightlevel=100\n");
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ProgramWindow::shown(), 0ULL);
    QCOMPARE(ServiceClient::readLine(), Lines::wake);
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgram::portTaken()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QStringLiteral("127.0.0.9")), 52316));
    QVERIFY(program->start());
    QVERIFY(program->waitForLog("Could not start the Service Server"));
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgram::agentUnderstandsTheProgram()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QByteArray answer;
    for (int client = 0; client < 3; ++client) {
        QProcess agent;
        agent.start(TestPaths::helper(QStringLiteral(LUMIKEY_AGENT_PATH)),
                    {QStringLiteral("--once"), QStringLiteral("--json")});
        QVERIFY(agent.waitForFinished());
        answer = agent.readAllStandardOutput();
    }
    const QJsonObject object = QJsonDocument::fromJson(answer).object();
    QCOMPARE(object.value(QStringLiteral("kind")).toString(), QStringLiteral("normal"));
    QCOMPARE(object.value(QStringLiteral("words")).toArray().first().toVariant().toULongLong(),
             4026597120ULL);
}

/// A system's driver for it is most of the memory of a small window, and of the time that it takes
/// to start.
void TestProgram::loadsNoOpenGl()
{
    startShown();
    const QStringList loaded = loadedLibraries(program->process.processId());
    QVERIFY(!loaded.filter(QStringLiteral("Qt5Gui")).isEmpty());
    // Not opengl32: Wine's Direct3D, which Qt for Windows links, loads it. Makers' drivers count.
    const QRegularExpression driver(
        QStringLiteral("(glx|egl)-integration|libGLX_|^(nvoglv|atio|atig|ig\\w*icd)\\w*\\.dll"),
        QRegularExpression::CaseInsensitiveOption);
    QCOMPARE(loaded.filter(driver), QStringList());
}

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
