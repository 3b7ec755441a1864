// Starts the real lumikey-brightness beside the real program.

#include "companion/arguments.h"
#include "companion/publication.h"
#include "lighting/companion.h"
#include "system/testing/desktop.h"
#include "tests/e2e/documentpages.h"
#include "tests/e2e/programlines.h"
#include "tests/support/companionprocess.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSharedMemory>
#include <QTest>

namespace {

/// More than one look takes.
constexpr int aLookMs = 1500;

const QString page = QStringLiteral("docs/companion-protocol.md");

/// One start of lumikey-brightness, from the folder that Lumikey runs from.
class Brightness
{
public:
    explicit Brightness(const ProgramProcess &beside, const QStringList &arguments)
    {
        process.setProcessEnvironment(beside.process.processEnvironment());
        process.start(executable(), arguments);
    }
    ~Brightness()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY(Brightness)

    static QString executable()
    {
        return ProgramProcess::programFolder() + QLatin1Char('/')
               + QFileInfo(ProgramProcess::executable())
                     .fileName()
                     .replace(QStringLiteral("Lumikey"), QStringLiteral("lumikey-brightness"));
    }

    /// Its exit code; -1 when it does not end by itself.
    int exitCode()
    {
        const bool ended =
            QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, patienceMs);
        const bool normal = process.error() == QProcess::UnknownError
                            && process.exitStatus() == QProcess::NormalExit;
        return ended && normal ? process.exitCode() : -1;
    }

    QString output() { return text(process.readAllStandardOutput()); }
    QString errors() { return text(process.readAllStandardError()); }

private:
    static QString text(const QByteArray &bytes)
    {
        return QString::fromUtf8(bytes).remove(QLatin1Char('\r'));
    }

    QProcess process;
};

/// What the segment holds for everybody who looks; nothing where there is none.
std::optional<QByteArray> segmentContents()
{
    QSharedMemory segment(companionSegmentName);
    if (!segment.attach(QSharedMemory::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes(static_cast<const char *>(segment.constData()), segment.size());
    segment.detach();
    return bytes;
}

QString segmentText()
{
    return companionText(segmentContents().value_or(QByteArray()));
}

} // namespace

class TestBrightnessProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void helpAndVersion();
    void isFollowed();
    void badInputChangesNothing();
    void withoutLumikey();
    void sameNumberAgain();
    void laterOneWins();
    void hiddenWindowStaysHidden();
    void besideACompanion();
    void besideACompanionThatWritesOnAndOn();
    void companionThatHangs();
    void companionWithoutRoom();
    void pageTellsTheCodes();
    void pageShowsTheSegment();
    void pageTellsTheNames();
    void pageHoldsTheExample();
    void exampleIsFollowed();

private:
    void startServing(const QByteArray &settings = {})
    {
        ProgramProcess::writeSettings("backlight_on=true\nZone1Color=255 0 0\nbrightlevel=100\n"
                                      + settings);
        QVERIFY(program->startAndServe());
        QTest::qWait(Lines::appliedAfterMs);
        QCOMPARE(ServiceClient::readLine(), Lines::wake);
        QCOMPARE(ServiceClient::readLine(), Lines::wake);
        QCOMPARE(ServiceClient::readLine(), line(100));
    }
    void publish(const char *brightness) const
    {
        Brightness run(*program, {QLatin1String(brightness)});
        QCOMPARE(run.exitCode(), int(companion::Done));
        QCOMPARE(run.output() + run.errors(), QString());
    }
    /// The line of a left zone of full red at a brightness in percent.
    static QString line(int brightness)
    {
        const auto red = static_cast<quint32>(255 * brightness / 100);
        return brightness == 0 ? Lines::off
                               : QStringLiteral("%1,4043309056,4060086272,4076863488,0")
                                     .arg(0xF0000000U | red << 8);
    }

    std::unique_ptr<ProgramProcess> program;
};

void TestBrightnessProgram::initTestCase()
{
    ProgramTwin::takeOnItsLooks();
}

void TestBrightnessProgram::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestBrightnessProgram::helpAndVersion()
{
    Brightness help(*program, {QStringLiteral("--help")});
    QCOMPARE(help.exitCode(), int(companion::Done));
    QVERIFY2(help.output().startsWith(QStringLiteral("Usage: ")), "its own words come first");
    QCOMPARE(help.errors(), QString());

    Brightness version(*program, {QStringLiteral("--version")});
    QCOMPARE(version.exitCode(), int(companion::Done));
    const QString text = version.output();
    const QRegularExpression form(QStringLiteral("^lumikey-brightness \\d+\\.\\d+\\.\\d+\n$"));
    QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
}

void TestBrightnessProgram::isFollowed()
{
    startServing();
    for (const char *brightness : {"40", "0", "100"}) {
        publish(brightness);
        const int number = QByteArray(brightness).toInt();
        QTRY_COMPARE(ServiceClient::readLine(), line(number));
        QCOMPARE(ProgramProcess::stored("brightlevel"), QLatin1String(brightness));
        QVERIFY2(!segmentContents(), "the segment has gone");
    }
}

void TestBrightnessProgram::badInputChangesNothing()
{
    startServing();
    struct Row
    {
        QStringList arguments;
        companion::ExitCode code;
        QString what;
    };
    const auto words = [](const char *text) {
        return QString::fromUtf8(text).split(QLatin1Char(' '));
    };
    const QVector<Row> rows{
        {{}, companion::NoNumber, QStringLiteral("which brightness? Give a number from 0 to 100.")},
        {words("101"), companion::TooLarge, QStringLiteral("101 is too large")},
        {words("-1"), companion::TooSmall, QStringLiteral("-1 is too small")},
        {words("40 50"), companion::SeveralNumbers, QStringLiteral("give one number")},
        {words("h\u00e4lfte"), companion::NotANumber,
         QString::fromUtf8("'h\u00e4lfte' is no whole number")},
        {words("--loud 40"), companion::WrongOption, QStringLiteral("loud")},
    };
    for (const Row &row : rows) {
        Brightness run(*program, row.arguments);
        QCOMPARE(run.exitCode(), int(row.code));
        QCOMPARE(run.output(), QString());
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(QStringLiteral("lumikey-brightness: ") + row.what)
                     || (row.code == companion::WrongOption && errors.contains(row.what)),
                 qPrintable(errors));
        QVERIFY(!segmentContents());
    }
    QTest::qWait(aLookMs);
    QCOMPARE(ServiceClient::readLine(), line(100));
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("100"));
}

/// Neither before its start nor after its end, however it ended: a killed one leaves on some
/// systems all behind by which others knew it.
void TestBrightnessProgram::withoutLumikey()
{
    const auto isRefused = [this] {
        Brightness run(*program, {QStringLiteral("40")});
        QCOMPARE(run.exitCode(), int(companion::NoLumikey));
        QCOMPARE(run.output(), QString());
        QCOMPARE(run.errors(), QStringLiteral("lumikey-brightness: no Lumikey runs from %1; start "
                                              "it first.\n")
                                   .arg(QDir::toNativeSeparators(ProgramProcess::programFolder())));
        QVERIFY(!segmentContents());
    };
    isRefused();
    startServing();
    program->kill();
    isRefused();
    QCOMPARE(ProgramProcess::stored("brightlevel"), QStringLiteral("100"));
}

/// Lumikey passes over what it has read last; whoever has moved the slider meanwhile wants it
/// again.
void TestBrightnessProgram::sameNumberAgain()
{
    startServing();
    publish("40");
    QTRY_COMPARE(ServiceClient::readLine(), line(40));
    const ProgramTwin twin("backlight_on=true\nbrightlevel=40\n");
    twin.click("horizontalSlider"); // takes the focus
    Desktop::press({QStringLiteral("End")});
    QTRY_COMPARE(ServiceClient::readLine(), line(100));
    publish("40");
    QTRY_COMPARE(ServiceClient::readLine(), line(40));
}

void TestBrightnessProgram::laterOneWins()
{
    startServing();
    Brightness first(*program, {QStringLiteral("20")});
    QTest::qWait(500);
    Brightness second(*program, {QStringLiteral("60")});
    QCOMPARE(first.exitCode(), int(companion::Done));
    QCOMPARE(second.exitCode(), int(companion::Done));
    QTRY_COMPARE(ServiceClient::readLine(), line(60));
    QTest::qWait(aLookMs);
    QCOMPARE(ServiceClient::readLine(), line(60));
    QVERIFY(!segmentContents());
}

/// The running program is asked whether it is there, as a later start asks it to come to the front.
void TestBrightnessProgram::hiddenWindowStaysHidden()
{
    startServing("start_hidden=1\n");
    QCOMPARE(ProgramWindow::shown(), quintptr(0));
    publish("40");
    QTRY_COMPARE(ServiceClient::readLine(), line(40));
    QCOMPARE(ProgramWindow::shown(), quintptr(0));
    QCOMPARE(program->process.state(), QProcess::Running);
}

void TestBrightnessProgram::besideACompanion()
{
    startServing();
    CompanionProcess other;
    QVERIFY2(other.publish(QStringLiteral("lit,70,whatever")), other.error());
    QTRY_COMPARE(ServiceClient::readLine(), line(70));
    publish("40");
    QTRY_COMPARE(ServiceClient::readLine(), line(40));
    // It stays so, with all else that the companion says, for as long as that says nothing new.
    QTest::qWait(aLookMs);
    QCOMPARE(ServiceClient::readLine(), line(40));
    QCOMPARE(segmentText(), QStringLiteral("lit,40,whatever"));
    QVERIFY(other.publish(QStringLiteral("lit,70,whatever")));
    QTRY_COMPARE(ServiceClient::readLine(), line(70));
}

/// One that repeats itself takes the brightness back at its next word.
void TestBrightnessProgram::besideACompanionThatWritesOnAndOn()
{
    startServing();
    CompanionProcess other;
    QVERIFY2(other.publish(QStringLiteral("lit,70")), other.error());
    QTRY_COMPARE(ServiceClient::readLine(), line(70));
    Brightness run(*program, {QStringLiteral("40")});
    for (int time = 0; time < 20; ++time) {
        QTest::qWait(300);
        QVERIFY(other.publish(QStringLiteral("lit,70")));
    }
    QCOMPARE(run.exitCode(), int(companion::Done));
    QTRY_COMPARE(ServiceClient::readLine(), line(70));
    QCOMPARE(segmentText(), QStringLiteral("lit,70"));
}

void TestBrightnessProgram::companionThatHangs()
{
    startServing();
    CompanionProcess other;
    QVERIFY2(other.publish(QStringLiteral("lit,70")), other.error());
    QTRY_COMPARE(ServiceClient::readLine(), line(70));
    QVERIFY(other.lock());
    Brightness run(*program, {QStringLiteral("40")});
    QCOMPARE(run.exitCode(), int(companion::NotPublished));
    QCOMPARE(run.errors(), QStringLiteral("lumikey-brightness: the brightness cannot be published: "
                                          "another program keeps the segment locked.\n"));
    QVERIFY(other.unlock());
    QCOMPARE(segmentText(), QStringLiteral("lit,70"));
    QTest::qWait(aLookMs);
    QCOMPARE(ServiceClient::readLine(), line(70));
}

void TestBrightnessProgram::companionWithoutRoom()
{
    startServing();
    constexpr int wholePage = 4096;
    const QString text =
        QStringLiteral("lit,7,").leftJustified((wholePage - 4) / 2, QLatin1Char('x'));
    CompanionProcess other;
    QVERIFY2(other.publishBytes(companion::segmentBytes(text), wholePage), other.error());
    QTRY_COMPARE(ServiceClient::readLine(), line(7));
    Brightness run(*program, {QStringLiteral("40")});
    QCOMPARE(run.exitCode(), int(companion::NotPublished));
    QCOMPARE(run.errors(), QStringLiteral("lumikey-brightness: the brightness cannot be published: "
                                          "the segment is too small for the text.\n"));
    QCOMPARE(segmentText(), text);
    publish("8"); // for which there is room
    QTRY_COMPARE(ServiceClient::readLine(), line(8));
}

void TestBrightnessProgram::pageTellsTheCodes()
{
    const QString text = DocumentPages::text(page);
    for (const companion::Meaning &meaning : companion::meanings) {
        const QString row =
            QStringLiteral("\n| %1 | %2 |\n").arg(meaning.code).arg(QLatin1String(meaning.text));
        QVERIFY2(text.contains(row), qPrintable(row));
    }
}

/// The page's dump is what the segment begins with while `lumikey-brightness 40` has it.
void TestBrightnessProgram::pageShowsTheSegment()
{
    QByteArray hex;
    const QStringList lines = DocumentPages::block(page, QStringLiteral("dump"))
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &row : lines) {
        QCOMPARE(row.section(QLatin1Char(':'), 0, 0).toInt(nullptr, 16), hex.size() / 2);
        hex += row.mid(10, 47).remove(QLatin1Char(' ')).toLatin1();
    }
    const QByteArray bytes = QByteArray::fromHex(hex);
    QCOMPARE(companionText(bytes), QStringLiteral(",40"));

    startServing();
    Brightness run(*program, {QStringLiteral("40")});
    QTRY_VERIFY(segmentContents().value_or(QByteArray()).startsWith(bytes));
    QCOMPARE(run.exitCode(), int(companion::Done));
}

/// What programs without the toolkit look for.
void TestBrightnessProgram::pageTellsTheNames()
{
    const QString text = DocumentPages::text(page);
    const QString native = QFileInfo(QSharedMemory(companionSegmentName).nativeKey()).fileName();
    QVERIFY2(text.contains(QLatin1Char('`') + native + QLatin1Char('`')), qPrintable(native));
    const QString lock =
        QString(native).replace(QStringLiteral("sharedmemory"), QStringLiteral("systemsem"));
    QVERIFY2(text.contains(QLatin1Char('`') + lock + QLatin1Char('`')), qPrintable(lock));
}

void TestBrightnessProgram::pageHoldsTheExample()
{
    const QString source = DocumentPages::text(QStringLiteral("examples/minimal/companion.cpp"));
    QVERIFY(!source.isEmpty());
    QCOMPARE(DocumentPages::block(page, QStringLiteral("cpp")), source);
}

void TestBrightnessProgram::exampleIsFollowed()
{
    startServing();
    QProcess example;
    example.start(TestPaths::helper(QStringLiteral(LUMIKEY_MINIMAL_COMPANION_PATH)), QStringList());
    QVERIFY(example.waitForStarted());
    for (const int brightness : {40, 7, 0, 100}) {
        example.write(QByteArray::number(brightness) + '\n');
        QTRY_COMPARE(ServiceClient::readLine(), line(brightness));
    }
    example.closeWriteChannel();
    QVERIFY(example.waitForFinished());
    QCOMPARE(example.exitCode(), 0);
}

QTEST_MAIN(TestBrightnessProgram)
#include "tst_brightnessprogram.moc"
