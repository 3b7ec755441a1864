#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/testsystem.h"

#include <QTest>

/// Before there is a window: the working directory and the autostart entry.
class TestProgramStart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void entryFollowsTheStart_data();
    void entryFollowsTheStart();
    void entryStays_data();
    void entryStays();
    void entryOutlivesLogIns();
    void noEntryStaysAway();
    void startFromASystemFolderFindsTheBranding();
    void argumentsAreNotExamined();

private:
    std::unique_ptr<ProgramProcess> program;
};

namespace {

QString fileName()
{
    return QFileInfo(ProgramProcess::executable()).fileName();
}

/// The window's upper part, with the pictures that come from the program's own folder; the box that
/// shows the autostart entry is below.
QImage brandedPart()
{
    constexpr int height = 420;
    const QImage whole = ProgramWindow::picture();
    return whole.copy(0, 0, whole.width(), height);
}

} // namespace

void TestProgramStart::init()
{
    program = std::make_unique<ProgramProcess>();
}

void TestProgramStart::entryFollowsTheStart_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("entryFolder");
    QTest::newRow("started elsewhere") << QStringLiteral("Tools") << QStringLiteral("/old place/");
    QTest::newRow("folder with a blank") << QStringLiteral("My Tools") << QStringLiteral("/old/");
    QTest::newRow("folder beyond ASCII") << QString::fromUtf8("Gerät") << QStringLiteral("/old/");
    QTest::newRow("own folder, rewritten all the same") << QString() << QString();
}

void TestProgramStart::entryFollowsTheStart()
{
    QFETCH(QString, folder);
    QFETCH(QString, entryFolder);
    QString start = ProgramProcess::programFolder();
    if (!folder.isEmpty()) {
        start = program->home.filePath(folder);
        QVERIFY(QDir().mkpath(start));
    }
    TestSystem::setAutostartEntry(entryFolder.isEmpty()
                                      ? QDir::toNativeSeparators(ProgramProcess::executable())
                                      : QDir::toNativeSeparators(entryFolder) + fileName());
    QVERIFY(program->startAndServe(start));
    QCOMPARE(TestSystem::autostartEntry().value_or(QString()),
             QDir::toNativeSeparators(start + QLatin1Char('/') + fileName()));
}

void TestProgramStart::entryStays_data()
{
    QTest::addColumn<bool>("systemFolder");
    QTest::addColumn<QString>("entry");
    const QString own = QDir::toNativeSeparators(ProgramProcess::executable());
    QTest::newRow("started by the system") << true << own;
    QTest::newRow("name in another case") << false << own.toUpper();
    QTest::newRow("another program") << false << QStringLiteral("another");
    QTest::newRow("nothing in it") << false << QStringLiteral("");
}

void TestProgramStart::entryStays()
{
    QFETCH(bool, systemFolder);
    QFETCH(QString, entry);
    TestSystem::setAutostartEntry(entry);
    QVERIFY(program->startAndServe(systemFolder ? TestSystem::systemFolder(program->home)
                                                : ProgramProcess::programFolder()));
    QCOMPARE(TestSystem::autostartEntry().value_or(QStringLiteral("(none)")), entry);
}

void TestProgramStart::entryOutlivesLogIns()
{
    const QString own = QDir::toNativeSeparators(ProgramProcess::executable());
    TestSystem::setAutostartEntry(own);
    QVERIFY(program->startAndServe()); // which writes the entry
    for (int logIn = 1; logIn <= 2; ++logIn) {
        program->kill();
        QVERIFY(program->startAndServe(TestSystem::logInFolder(program->home)));
        QCOMPARE(TestSystem::autostartEntry().value_or(QStringLiteral("(none)")), own);
    }
}

void TestProgramStart::noEntryStaysAway()
{
    QVERIFY(program->startAndServe());
    QVERIFY(!TestSystem::autostartEntry().has_value());
}

void TestProgramStart::startFromASystemFolderFindsTheBranding()
{
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    const QImage expected = brandedPart();
    program = std::make_unique<ProgramProcess>();

    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    TestSystem::setAutostartEntry(QDir::toNativeSeparators(ProgramProcess::executable()));
    QVERIFY(program->startAndServe(TestSystem::systemFolder(program->home)));
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    QVERIFY(!expected.isNull());
    QVERIFY(brandedPart() == expected);
    program = std::make_unique<ProgramProcess>();

    // The same without the entry that tells where the program is, as an elevated start does.
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe(TestSystem::systemFolder(program->home)));
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    QVERIFY(brandedPart() == expected);
    QVERIFY(!TestSystem::autostartEntry().has_value());
}

void TestProgramStart::argumentsAreNotExamined()
{
    QVERIFY(program->startAndServe(ProgramProcess::programFolder(),
                                   {QStringLiteral("--help"), QStringLiteral("no such file")}));
    QCOMPARE(program->process.state(), QProcess::Running);
}

QTEST_MAIN(TestProgramStart)
#include "tst_programstart.moc"
