#include "tests/support/standins.h"

#include "tests/support/guitest.h"
#include "tests/support/testpaths.h"

#include <QCoreApplication>

namespace {

QString recorder()
{
    // The path may name no drive; a test may have moved to another one.
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(TestPaths::kit().isEmpty()
                              ? QStringLiteral(LUMIKEY_RECORDER_PATH)
                              : TestPaths::helper(QStringLiteral(LUMIKEY_RECORDER_PATH)));
}

bool programsHaveASuffix()
{
    return recorder().endsWith(QLatin1String(".exe"));
}

void copyRecorder(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile::remove(path);
    if (!QFile::copy(recorder(), path)) {
        qFatal("cannot make %s", qPrintable(path));
    }
}

} // namespace

StandIns::StandIns(const QString &folderOfPrograms)
    : folder(QDir(folderOfPrograms).absolutePath())
    , oldPath(qgetenv("PATH"))
{
    const QByteArray separator(1, QDir::listSeparator().toLatin1());
    qputenv("PATH", QFile::encodeName(QDir::toNativeSeparators(folder)) + separator + oldPath);
    qputenv("LUMIKEY_RECORD", QFile::encodeName(recordFile()));
}

StandIns::~StandIns()
{
    qputenv("PATH", oldPath);
    qunsetenv("LUMIKEY_RECORD");
}

void StandIns::add(const QString &path, int waitMs) const
{
    QString file = folder + QLatin1Char('/') + path;
    if (programsHaveASuffix() && !file.endsWith(QLatin1String(".exe"))) {
        file += QStringLiteral(".exe");
    }
    copyRecorder(file);
    makeWait(QFileInfo(file).completeBaseName(), waitMs);
}

void StandIns::makeWait(const QString &name, int waitMs) const
{
    if (waitMs > 0) {
        writeFile(waitFile(name), QByteArray::number(waitMs));
    }
}

void StandIns::hurry(const QString &name) const
{
    QFile::remove(waitFile(name));
}

void StandIns::addBatch(const QString &path, int waitMs) const
{
    const QString file = folder + QLatin1Char('/') + path;
    makeWait(QFileInfo(file).fileName(), waitMs);
    if (!programsHaveASuffix()) {
        copyRecorder(file);
        return;
    }
    copyRecorder(file + QStringLiteral(".exe"));
    writeFile(file, "@\"%~f0.exe\" %*\r\n");
}

QString StandIns::recordFile() const
{
    return records.filePath(QStringLiteral("runs.txt"));
}

QString StandIns::waitFile(const QString &name) const
{
    return recordFile() + QLatin1Char('.') + name;
}

QStringList StandIns::lines() const
{
    return QString::fromUtf8(readFile(recordFile())).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList StandIns::runs() const
{
    QStringList result;
    const QStringList recorded = lines();
    for (const QString &line : recorded) {
        result.append(
            line.section(QLatin1Char('\t'), 1).replace(QLatin1Char('\t'), QLatin1Char(' ')));
    }
    return result;
}

QString StandIns::folderOfRun(int index) const
{
    return QDir::fromNativeSeparators(lines().value(index).section(QLatin1Char('\t'), 0, 0));
}
