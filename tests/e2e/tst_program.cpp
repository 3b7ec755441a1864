#include "system/platform.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/serviceclient.h"
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

namespace {

const QString offLine = QStringLiteral("3758108672,3758108672,3758108672,3758108672,0");
const QString wakeLine = QStringLiteral("3758616583,3758616583,3758616583,3758616583,0");
constexpr const char *threeZones = "backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
                                   "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=1 2 3\n";
const QString threeZonesLine = QStringLiteral("4026597120,4043309311,4076797952,4077060354,0");
/// Settings are applied a second after the window was made.
constexpr int appliedAfterMs = 2000;

/// Runs a helper program to its end; what it wrote.
QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        qFatal("%s did not end", qPrintable(program));
    }
    return process.readAllStandardOutput();
}

QByteArray xdotool(const QStringList &arguments)
{
    return run(QStringLiteral("xdotool"), arguments);
}

/// The window of another process on this display, by its title; 0 when none is shown.
qulonglong visibleWindow()
{
    return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                    QStringLiteral("--name"), QStringLiteral("^Lumikey$")})
        .trimmed()
        .toULongLong();
}

} // namespace

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
    void closeButtonSavesTheGeometry();
    void appUrlIsWritten();
    void hiddenStart();
    void portTaken();
    void badSettings_data();
    void badSettings();
    void documentsFolderIsAFile();
    void settingsPathIsADirectory();
    void autostartEntryFollowsTheStart();
    void systemFolderStart();
    void noAutostartEntryStaysAway();
    void argumentsAreNotExamined();
    void agentUnderstandsTheProgram();

private:
    /// Where a widget's middle is on the screen, by a window of this process laid out like the
    /// program's.
    QPoint onScreen(const char *name, const QPoint &offsetFromCentre = {}) const;
    void click(const QPoint &position) const;

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

QPoint TestProgram::onScreen(const char *name, const QPoint &offsetFromCentre) const
{
    const QByteArray geometry =
        xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"),
                 QString::number(visibleWindow())});
    const auto number = [&geometry](const char *field) {
        const QRegularExpression line(QLatin1String(field) + QStringLiteral("=(-?\\d+)"));
        return line.match(QString::fromLatin1(geometry)).captured(1).toInt();
    };
    twin->window->resize(number("WIDTH"), number("HEIGHT"));
    twin->window->grab(); // lays everything out without showing it
    const QWidget *const target = twin->get<QWidget>(name);
    return QPoint(number("X"), number("Y"))
           + target->mapTo(twin->window.get(), target->rect().center()) + offsetFromCentre;
}

void TestProgram::click(const QPoint &position) const
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()),
             QString::number(position.y()), QStringLiteral("click"), QStringLiteral("1")});
}

void TestProgram::answerByteByByte()
{
    program->writeSettings(threeZones);
    QVERIFY(program->startAndServe());
    QByteArray expected = QByteArray::fromHex("005e0000005a");
    for (const char letter : wakeLine.toLatin1()) {
        expected += '\0';
        expected += letter;
    }
    QCOMPARE(ServiceClient::readAnswer().toHex(), expected.toHex());
}

void TestProgram::wakeWakeNormal()
{
    program->writeSettings(threeZones);
    QVERIFY(program->startAndServe());
    QTest::qWait(appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), wakeLine);
    QCOMPARE(ServiceClient::readLine(), wakeLine);
    QCOMPARE(ServiceClient::readLine(), threeZonesLine);
    QCOMPARE(ServiceClient::readLine(), threeZonesLine);
}

void TestProgram::theLifeOfOneChange()
{
    program->writeSettings(threeZones);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(visibleWindow() != 0);
    QTest::qWait(appliedAfterMs);
    ServiceClient::readLine();
    ServiceClient::readLine();
    QCOMPARE(ServiceClient::readLine(), threeZonesLine);

    twin = std::make_unique<TestWindow>();
    twin->construct();
    click(onScreen("backlight_off"));
    QTRY_COMPARE(ServiceClient::readLine(), offLine);
    QCOMPARE(program->stored("backlight_off"), QStringLiteral("true"));
    QCOMPARE(program->stored("backlight_on"), QStringLiteral("false"));

    click(onScreen("backlight_on"));
    QTRY_COMPARE(program->stored("backlight_off"), QStringLiteral("false"));
    QCOMPARE(ServiceClient::readLine(), wakeLine);
    QCOMPARE(ServiceClient::readLine(), wakeLine);
    // The stripe stays black until the slider moves.
    QCOMPARE(ServiceClient::readLine(),
             QStringLiteral("4026597120,4043309311,4076797952,4076863488,0"));
    const QByteArray text = readFile(program->settingsFile());
    QVERIFY(text.contains("\nbacklight_on=true\n"));
    QVERIFY(text.contains("\nbacklight_off=false\n"));
    QVERIFY(text.contains("\nZone1Color=255 0 0\n"));
}

void TestProgram::keysMoveTheSlider()
{
    program->writeSettings(threeZones);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(visibleWindow() != 0);
    QTest::qWait(appliedAfterMs);
    ServiceClient::readLine();
    ServiceClient::readLine();

    twin = std::make_unique<TestWindow>();
    twin->construct();
    click(onScreen("horizontalSlider")); // takes the focus
    xdotool({QStringLiteral("key"), QStringLiteral("Home")});
    QTRY_COMPARE(program->stored("brightlevel"), QStringLiteral("0"));
    QCOMPARE(ServiceClient::readLine(), offLine);
    xdotool({QStringLiteral("key"), QStringLiteral("End"), QStringLiteral("Left"),
             QStringLiteral("Left")});
    QTRY_COMPARE(program->stored("brightlevel"), QStringLiteral("98"));
    // 255 at 98 percent is 249; the stripe's 1 2 3 becomes 0 1 2.
    QTRY_COMPARE(ServiceClient::readLine(),
                 QStringLiteral("4026595584,4043309305,4076404736,4076994561,0"));
}

void TestProgram::closeButtonSavesTheGeometry()
{
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(visibleWindow() != 0);
    twin = std::make_unique<TestWindow>();
    twin->construct();
    click(onScreen("closeButton"));
    QVERIFY(program->process.waitForFinished(5000));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    const QByteArray text = readFile(program->settingsFile());
    QVERIFY2(text.contains("\nmainWindowGeometry=@ByteArray("), text.constData());
    QVERIFY(text.contains("\nmainWindowState=\"@ByteArray(")
            || text.contains("\nmainWindowState=@ByteArray("));
}

void TestProgram::appUrlIsWritten()
{
    QVERIFY(program->startAndServe());
    QTRY_COMPARE(program->stored("appurl"), QDir::toNativeSeparators(ProgramProcess::executable()));
}

void TestProgram::hiddenStart()
{
    program->writeSettings("start_hidden=1\nbacklight_on=true\nbrightlevel=100\n");
    QVERIFY(program->startAndServe());
    QTest::qWait(appliedAfterMs);
    QCOMPARE(visibleWindow(), 0ULL);
    QCOMPARE(ServiceClient::readLine(), wakeLine);
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgram::portTaken()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QStringLiteral("127.0.0.9")), 52316));
    QVERIFY(program->start());
    QVERIFY(program->waitForLog("Could not start the Service Server"));
    QTRY_VERIFY(visibleWindow() != 0);
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgram::badSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << QByteArray("\0\1\2\xff\xfe[=\n]]\0=", 12);
    QTest::newRow("half written") << QByteArray(
        "[settings]\nmainWindowGeometry=@ByteArray(\\x1\\xd");
    QTest::newRow("wrong types") << QByteArray("[settings]\nmainWindowGeometry=7\n"
                                               "brightlevel=@Point(1 2)\neffects=99\n");
}

void TestProgram::badSettings()
{
    QFETCH(QByteArray, content);
    writeFile(program->settingsFile(), content);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(visibleWindow() != 0);
    QTest::qWait(appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), offLine);
    QVERIFY(readFile(program->settingsFile()).contains("appurl="));
    QVERIFY(!program->log().contains("ERROR"));
}

void TestProgram::documentsFolderIsAFile()
{
    writeFile(program->documents(), "not a folder");
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(visibleWindow() != 0);
    QTest::qWait(appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), offLine);
    QCOMPARE(readFile(program->documents()), QByteArray("not a folder"));
    QVERIFY(program->log().contains("Cannot write file: "));
}

void TestProgram::settingsPathIsADirectory()
{
    QVERIFY(QDir().mkpath(program->settingsFile()));
    QVERIFY(program->startAndServe());
    QTest::qWait(appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), offLine);
    QVERIFY(QFileInfo(program->settingsFile()).isDir());
}

void TestProgram::autostartEntryFollowsTheStart()
{
    writeFile(program->autostartFile(), "[Desktop Entry]\nExec=\"/old place/Lumikey\"\n");
    QVERIFY(program->startAndServe());
    QVERIFY(readFile(program->autostartFile())
                .contains("Exec=\"" + ProgramProcess::programFolder().toUtf8() + "/Lumikey\"\n"));
}

void TestProgram::systemFolderStart()
{
    const QByteArray entry =
        "[Desktop Entry]\nExec=\"" + ProgramProcess::executable().toUtf8() + "\"\n";
    writeFile(program->autostartFile(), entry);
    const QString systemFolder = program->home.filePath(QStringLiteral("WINDOWS/system32"));
    QVERIFY(QDir().mkpath(systemFolder));
    QVERIFY(program->startAndServe(systemFolder));
    QCOMPARE(readFile(program->autostartFile()), entry);
    const QString here =
        QFile::symLinkTarget(QStringLiteral("/proc/%1/cwd").arg(program->process.processId()));
    QCOMPARE(here, ProgramProcess::programFolder());
}

void TestProgram::noAutostartEntryStaysAway()
{
    QVERIFY(program->startAndServe());
    QVERIFY(!QFileInfo::exists(program->autostartFile()));
}

void TestProgram::argumentsAreNotExamined()
{
    program->process.setWorkingDirectory(ProgramProcess::programFolder());
    program->process.start(ProgramProcess::executable(),
                           {QStringLiteral("--help"), QStringLiteral("no such file")});
    QVERIFY(program->waitForLog("The Service Server is running!"));
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestProgram::agentUnderstandsTheProgram()
{
    program->writeSettings(threeZones);
    QVERIFY(program->startAndServe());
    QTest::qWait(appliedAfterMs);
    QByteArray answer;
    for (int client = 0; client < 3; ++client) {
        answer = run(QStringLiteral(LUMIKEY_AGENT_PATH),
                     {QStringLiteral("--once"), QStringLiteral("--json")});
    }
    const QJsonObject object = QJsonDocument::fromJson(answer).object();
    QCOMPARE(object.value(QStringLiteral("kind")).toString(), QStringLiteral("normal"));
    QCOMPARE(object.value(QStringLiteral("words")).toArray().first().toVariant().toULongLong(),
             4026597120ULL);
}

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
