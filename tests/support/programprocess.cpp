#include "tests/support/programprocess.h"

#include "tests/support/guitest.h"
#include "tests/support/programwindow.h"
#include "tests/support/testpaths.h"
#include "tests/support/testsystem.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

ProgramProcess::ProgramProcess()
{
    TestSystem::throwAwayUser(home);
    process.setProcessEnvironment(TestSystem::programEnvironment(programFolder()));
    // Into a file rather than a pipe: nobody need read along, and no reader is there to go wrong.
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(logFile());
}

ProgramProcess::~ProgramProcess()
{
    kill();
}

void ProgramProcess::kill()
{
    if (process.state() == QProcess::NotRunning) {
        return;
    }
    const qulonglong window = ProgramWindow::shown();
    process.kill();
    // By its notice, before anything waits for it: Wine's thread pool may call back into a wait
    // that is given up at that moment.
    if (!QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, patienceMs)) {
        process.waitForFinished();
    }
    // The screen may show the window a moment longer: nobody is to take it for that of the program
    // which is started next.
    if (window != 0
        && !QTest::qWaitFor([window] { return ProgramWindow::shown() != window; }, patienceMs)) {
        qWarning("the window of a killed program does not go");
    }
}

QString ProgramProcess::documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString ProgramProcess::settingsFile()
{
    return documents() + QStringLiteral("/Corvane/Lumikey/lumikey.ini");
}

QString ProgramProcess::executable()
{
    return TestPaths::lumikey(QStringLiteral(LUMIKEY_PROGRAM_PATH));
}

QString ProgramProcess::programFolder()
{
    return QFileInfo(executable()).absolutePath();
}

void ProgramProcess::writeSettings(const QByteArray &lines)
{
    writeFile(settingsFile(), "[settings]\n" + lines);
}

QString ProgramProcess::stored(const char *key)
{
    return QSettings(settingsFile(), QSettings::IniFormat)
        .value(QStringLiteral("settings/") + QLatin1String(key), QStringLiteral("(none)"))
        .toString();
}

bool ProgramProcess::start(const QString &directory, const QStringList &arguments)
{
    process.setWorkingDirectory(directory);
    QStringList command = launcher + QStringList{executable()} + arguments;
    const QString first = command.takeFirst();
    process.start(first, command);
    return process.waitForStarted();
}

QByteArray ProgramProcess::log() const
{
    return readFile(logFile());
}

bool ProgramProcess::waitForLog(const QByteArray &text, int timeoutMs) const
{
    return QTest::qWaitFor([&] { return log().contains(text); }, timeoutMs);
}

bool ProgramProcess::startAndServe(const QString &directory, const QStringList &arguments)
{
    return start(directory, arguments) && waitForLog("The Service Server is running!");
}
