#include "tests/support/companionprocess.h"

#include "tests/support/testpaths.h"

#include <QDataStream>
#include <QFileInfo>
#include <QIODevice>
#include <QSharedMemory>

namespace {

/// What a segment is made for when nothing is said about its size.
constexpr int usualSize = 64;

/// With its drive, where there are drives: a test may move to another one.
const QString program = TestPaths::helper(QStringLiteral(LUMIKEY_COMPANION_PATH));

} // namespace

CompanionProcess::CompanionProcess()
{
    // Not the test's own folder, which is to go before this does.
    process.setWorkingDirectory(QFileInfo(program).absolutePath());
    process.start(program, QStringList());
    if (!process.waitForStarted()) {
        qFatal("cannot start %s", qPrintable(program));
    }
}

CompanionProcess::~CompanionProcess()
{
    process.closeWriteChannel();
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
    // What a killed one left behind goes with the last who leaves it, not into the next test.
    QSharedMemory left(QStringLiteral("DashportSharedMem"));
    if (left.attach()) {
        left.detach();
    }
}

bool CompanionProcess::obey(const QByteArray &command)
{
    process.write(command + '\n');
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(10000)) {
            lastError = "no answer";
            return false;
        }
    }
    lastError = process.readLine().trimmed();
    return lastError == "ok";
}

bool CompanionProcess::publish(const QString &text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes.size() <= size ? obey("write " + bytes.toHex())
                                : publishBytes(bytes, qMax(usualSize, bytes.size()));
}

bool CompanionProcess::publishBytes(const QByteArray &bytes, int segmentSize)
{
    size = segmentSize;
    return obey("create " + QByteArray::number(segmentSize)) && obey("write " + bytes.toHex());
}

bool CompanionProcess::lock()
{
    return obey("lock");
}

bool CompanionProcess::unlock()
{
    return obey("unlock");
}

bool CompanionProcess::withdraw()
{
    size = 0;
    return obey("withdraw");
}

void CompanionProcess::startToKill()
{
    process.kill();
}

void CompanionProcess::kill()
{
    process.kill();
    process.waitForFinished();
}
