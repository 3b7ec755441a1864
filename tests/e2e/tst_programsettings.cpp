#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"

#include <QTest>

/// The settings file, as the program finds and leaves it.
class TestProgramSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstStart();
    void formsInTheFile();
    void badSettings_data();
    void badSettings();
    void folderIsAFile();
    void pathIsADirectory();

private:
    std::unique_ptr<ProgramProcess> program;
};

void TestProgramSettings::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestProgramSettings::firstStart()
{
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(ProgramWindow::geometry().size(), QSize(630, 630));
    QCOMPARE(ProgramProcess::stored("appurl"),
             QDir::toNativeSeparators(ProgramProcess::executable()));
}

void TestProgramSettings::formsInTheFile()
{
    // Qt's own notation: truth as a word, an index as a number, a path with its escapes.
    ProgramProcess::writeSettings("backlight_on=true\neffects=3\n");
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QString path = QDir::toNativeSeparators(ProgramProcess::executable());
    path.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    const QByteArray end = QByteArray("\n");
    QByteArray text = readFile(ProgramProcess::settingsFile());
    text.replace("\r\n", end);
    QVERIFY2(text.startsWith("[settings]\n"), text.constData());
    QVERIFY2(text.contains("\nappurl=" + path.toUtf8() + end), text.constData());
    QVERIFY(text.contains("\nbacklight_on=true\n"));
    QVERIFY(text.contains("\neffects=3\n"));
    QCOMPARE(ServiceClient::readLine(),
             QStringLiteral("3758108672,3758108672,3758108672,3758108672,2147483648"));
}

void TestProgramSettings::badSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << QByteArray("\0\1\2\xff\xfe[=\n]]\0=", 12);
    QTest::newRow("half written") << QByteArray(
        "[settings]\nmainWindowGeometry=@ByteArray(\\x1\\xd");
    QTest::newRow("wrong types") << QByteArray("[settings]\nmainWindowGeometry=7\n"
                                               "brightlevel=@Point(1 2)\neffects=99\n");
}

void TestProgramSettings::badSettings()
{
    QFETCH(QByteArray, content);
    writeFile(ProgramProcess::settingsFile(), content);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    QVERIFY(readFile(ProgramProcess::settingsFile()).contains("appurl="));
    QVERIFY(!program->log().contains("ERROR"));
}

void TestProgramSettings::folderIsAFile()
{
    const QString folder = ProgramProcess::documents() + QStringLiteral("/Corvane");
    writeFile(folder, "not a folder");
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    QCOMPARE(readFile(folder), QByteArray("not a folder"));
    QVERIFY2(program->log().contains("Cannot write file: "), program->log().constData());
}

void TestProgramSettings::pathIsADirectory()
{
    QVERIFY(QDir().mkpath(ProgramProcess::settingsFile()));
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    QCOMPARE(ServiceClient::readLine(), Lines::off);
    QVERIFY(QFileInfo(ProgramProcess::settingsFile()).isDir());
}

QTEST_MAIN(TestProgramSettings)
#include "tst_programsettings.moc"
