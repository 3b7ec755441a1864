#include "system/firmwarelibrary.h"

#include "tests/support/fakeplatform.h"
#include "tests/support/guitest.h"
#include "tests/support/standins.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QString source = QStringLiteral("installer/CLEVOMOF.dll");
/// Where there is no such drive this is a folder in the current one.
const QString systemFolder = QStringLiteral("C:/Windows/SysWOW64");
const QString target = systemFolder + QStringLiteral("/clevomof.dll");
const QStringList commands{QStringLiteral("net stop winmgmt /y"),
                           QStringLiteral("regsvr32 /s C:/Windows/SysWOW64/clevomof.dll"),
                           QStringLiteral("net start winmgmt")};

} // namespace

/// The steps that install the library, as real processes of stand-ins.
class TestFirmwareLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stepsInOrder();
    void libraryIsThereAlready();
    void nothingToInstallWith();
    void commandThatHangs();

private:
    void install() { FirmwareLibrary(*platform).install(); }

    QString startDirectory;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<StandIns> standIns;
    std::unique_ptr<FakePlatform> platform;
};

void TestFirmwareLibrary::init()
{
    startDirectory = QDir::currentPath();
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(folder->path()));
    standIns = std::make_unique<StandIns>(QDir::currentPath());
    platform = std::make_unique<FakePlatform>();
    QDir().mkpath(systemFolder);
    QFile::remove(target);
}

void TestFirmwareLibrary::cleanup()
{
    QFile::remove(target);
    standIns.reset();
    QVERIFY(QDir::setCurrent(startDirectory));
    folder.reset();
}

void TestFirmwareLibrary::stepsInOrder()
{
    standIns->add(QStringLiteral("net"));
    standIns->add(QStringLiteral("regsvr32"));
    writeFile(source, "library");
    QStringList before;
    QByteArray copied;
    platform->whenLibraryIsSet = [&] {
        before = standIns->runs();
        copied = readFile(target);
    };
    install();
    QCOMPARE(before, commands.mid(0, 2));
    QCOMPARE(copied, QByteArray("library"));
    QCOMPARE(platform->firmwareLibrary.value_or(QString()),
             QStringLiteral("syswow64\\clevomof.dll"));
    QCOMPARE(standIns->runs(), commands);
}

void TestFirmwareLibrary::libraryIsThereAlready()
{
    standIns->add(QStringLiteral("net"));
    standIns->add(QStringLiteral("regsvr32"));
    writeFile(source, "new");
    writeFile(target, "old");
    install();
    QCOMPARE(readFile(target), QByteArray("old"));
    QCOMPARE(standIns->runs(), commands);
    QVERIFY(platform->firmwareLibrary);
}

void TestFirmwareLibrary::nothingToInstallWith()
{
    // No library to copy, and a command that cannot be run.
    standIns->add(QStringLiteral("net"));
    writeFile(QStringLiteral("regsvr32"), "not a program");
    writeFile(QStringLiteral("regsvr32.exe"), "not a program");
    install();
    QCOMPARE(standIns->runs(), (QStringList{commands.constFirst(), commands.constLast()}));
    QVERIFY(platform->firmwareLibrary);
}

void TestFirmwareLibrary::commandThatHangs()
{
    standIns->add(QStringLiteral("net"), 40000);
    standIns->add(QStringLiteral("regsvr32"));
    // The first command is given up after half a minute; later ones are quick again.
    QElapsedTimer timer;
    qint64 untilRegistration = 0;
    platform->whenLibraryIsSet = [&] {
        untilRegistration = timer.elapsed();
        standIns->hurry(QStringLiteral("net"));
    };
    timer.start();
    install();
    QVERIFY2(untilRegistration >= 29900, qPrintable(QString::number(untilRegistration)));
    QVERIFY2(timer.elapsed() < 39000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(standIns->runs(), commands);
}

QTEST_GUILESS_MAIN(TestFirmwareLibrary)
#include "tst_firmwarelibrary.moc"
