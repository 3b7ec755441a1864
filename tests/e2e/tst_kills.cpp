#include "app/appsettings.h"
#include "system/testing/desktop.h"
#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/testpaths.h"

#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kills = 200;
constexpr int mostSteps = 35;
constexpr int killsInUse = 10;
/// A write takes about as long as the longest wait before a kill.
constexpr int longestWaitMs = 10;

/// The only file that the writer ever leaves: nothing else in it, nothing missing.
QByteArray fileWith(int number)
{
    const QByteArray text = QByteArray::number(number);
    return "[settings]\nbrightlevel=" + text + "\ndimtimer=" + text + "\nkept=as it was\n";
}

QByteArray withPlainLineEnds(QByteArray text)
{
    return text.replace("\r\n", "\n");
}

} // namespace

/// Hard kills while settings are being written: the file is whole, with the old or the new value.
class TestKills : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { ProgramTwin::takeOnItsLooks(); }
    void writerKilled();
    void programKilledInUse();
};

void TestKills::writerKilled()
{
    const QTemporaryDir documents;
    const AppSettings settings(documents.path());
    writeFile(settings.settingsIni(), fileWith(0));
    QRandomGenerator random(7);
    int last = 0;
    int oldValues = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess writer;
        writer.start(TestPaths::helper(QStringLiteral(LUMIKEY_SETTINGS_WRITER_PATH)),
                     {documents.path(), QString::number(last + 1)});
        // Until it has stored one: a lock that the last kill left is out of the way.
        QByteArray output;
        while (output.count('\n') < 2) {
            QVERIFY(writer.waitForReadyRead(20'000));
            output += writer.readAllStandardOutput();
        }
        QTest::qSleep(1 + random.bounded(longestWaitMs));
        writer.kill();
        QVERIFY(writer.waitForFinished());
        QCOMPARE(writer.exitStatus(), QProcess::CrashExit);

        output += writer.readAllStandardOutput();
        output.truncate(output.lastIndexOf('\n'));
        const int newest = output.mid(output.lastIndexOf('\n') + 1).trimmed().toInt();
        QVERIFY(newest > last);
        const QByteArray text = withPlainLineEnds(readFile(settings.settingsIni()));
        const bool old = text == fileWith(newest - 1);
        QVERIFY2(old || text == fileWith(newest), text.constData());
        oldValues += old ? 1 : 0;
        last = newest;
    }
    qInfo("%d kills, %d numbers stored: %d times the old value, %d times the new", kills, last,
          oldValues, kills - oldValues);
    QVERIFY(oldValues > 0 && oldValues < kills); // or no kill came in the middle
}

void TestKills::programKilledInUse()
{
    QRandomGenerator random(7);
    const QByteArray lines = Lines::threeZonesSettings;
    ProgramProcess program;
    ProgramProcess::writeSettings(lines + "kept=as it was\n");
    QSet<int> levels;
    for (int kill = 0; kill < killsInUse; ++kill) {
        QVERIFY(program.startAndServe());
        QTRY_VERIFY(ProgramWindow::shown() != 0);
        QTest::qWait(Lines::appliedAfterMs);
        {
            const ProgramTwin twin(lines);
            twin.click("horizontalSlider");
        }
        // Each key is a step of the slider, and a write. Not always as many, so that the brightness
        // tells whether they arrived also where all of them were faster than the kill.
        const int steps = 10 + random.bounded(mostSteps);
        Desktop::press(QVector<QString>(steps, QStringLiteral("Left")).toList());
        // One system takes them as they are handled, another has them all before the first one is:
        // there a kill meets a write only after some have been.
        QTest::qSleep(1 + random.bounded(kill % 2 == 0 ? longestWaitMs : longestWaitMs * steps));
        program.process.kill();
        QVERIFY(program.process.waitForFinished());
        QTRY_COMPARE(ProgramWindow::shown(), 0ULL); // or the next round takes it for its own

        const QByteArray text = withPlainLineEnds(readFile(ProgramProcess::settingsFile()));
        QVERIFY2(text.startsWith("[settings]\n") && text.endsWith('\n'), text.constData());
        for (const char *line : {"kept=as it was", "backlight_on=true", "Zone1Color=255 0 0",
                                 "Zone2Color=0 255 0", "Zone3Color=0 0 255", "StripeLid=1 2 3"}) {
            QVERIFY2(text.contains(QByteArray(1, '\n') + line + '\n'), text.constData());
        }
        bool isNumber = false;
        const int brightness = ProgramProcess::stored("brightlevel").toInt(&isNumber);
        QVERIFY(isNumber && brightness >= 0 && brightness <= 100);
        levels.insert(brightness);
    }
    QVERIFY(levels.size() > 2); // the keys have moved it
    QVERIFY(program.startAndServe());
    QVERIFY(!QFileInfo::exists(ProgramProcess::settingsFile() + QStringLiteral(".damaged")));
}

QTEST_MAIN(TestKills)
#include "tst_kills.moc"
