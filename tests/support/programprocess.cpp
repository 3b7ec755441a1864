#include "tests/support/programprocess.h"

#include "tests/support/guitest.h"

#include <QFileInfo>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTest>

ProgramProcess::ProgramProcess()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    QObject::connect(&process, &QProcess::readyRead, &process,
                     [this] { output += process.readAll(); });
}

ProgramProcess::~ProgramProcess()
{
    process.kill();
    process.waitForFinished();
}

QString ProgramProcess::settingsFile() const
{
    return documents() + QStringLiteral("/Corvane/Lumikey/lumikey.ini");
}

QString ProgramProcess::autostartFile() const
{
    return home.filePath(QStringLiteral("config/autostart/Lumikey.desktop"));
}

QString ProgramProcess::executable()
{
    return QStringLiteral(LUMIKEY_PROGRAM_PATH);
}

QString ProgramProcess::programFolder()
{
    return QFileInfo(executable()).absolutePath();
}

void ProgramProcess::writeSettings(const QByteArray &lines) const
{
    writeFile(settingsFile(), "[settings]\n" + lines);
}

QString ProgramProcess::stored(const char *key) const
{
    return QSettings(settingsFile(), QSettings::IniFormat)
        .value(QStringLiteral("settings/") + QLatin1String(key), QStringLiteral("(none)"))
        .toString();
}

bool ProgramProcess::start(const QString &directory)
{
    output.clear();
    process.setWorkingDirectory(directory);
    process.start(executable(), QStringList());
    return process.waitForStarted();
}

bool ProgramProcess::waitForLog(const QByteArray &text, int timeoutMs)
{
    return QTest::qWaitFor([&] { return output.contains(text); }, timeoutMs);
}

bool ProgramProcess::startAndServe(const QString &directory)
{
    return start(directory) && waitForLog("The Service Server is running!");
}
