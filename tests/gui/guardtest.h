#pragma once

#include "app/instanceblock.h"
#include "app/instancename.h"
#include "app/singleapplication.h"
#include "tests/support/fakeplatform.h"

#include <QProcess>
#include <QSharedMemory>
#include <QTest>

#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <thread>

/// Test programs whose application object is the guard itself, and copies of them.
namespace GuardTest {

constexpr int timeoutMs = 100;

/// The name that copies of this test program meet under.
inline QString ownName(const QString &user, int options)
{
    return instanceName({QCoreApplication::applicationName(), QCoreApplication::organizationName(),
                         QCoreApplication::organizationDomain(),
                         QCoreApplication::applicationVersion(),
                         QCoreApplication::applicationFilePath(), user, QStringList()},
                        options);
}

/// What the other copies of a name see of the block.
inline std::optional<InstanceBlock> readBlock(const QString &name)
{
    QSharedMemory memory(name);
    if (!memory.attach() || !memory.lock()) {
        return std::nullopt;
    }
    const InstanceBlock block = *static_cast<const InstanceBlock *>(memory.constData());
    memory.unlock();
    return block;
}

/// Another copy of this test program, beside the one that tests.
class OtherCopy
{
public:
    /// What it does: "--copy" is guarded, "--hold" takes the lock of the block and keeps it.
    OtherCopy(const QString &user, bool allowSecondary, int options,
              const QString &task = QStringLiteral("--copy"))
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(
            QCoreApplication::applicationFilePath(),
            {task, user, QString::number(allowSecondary ? 1 : 0), QString::number(options)});
    }
    ~OtherCopy()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY(OtherCopy)

    /// Whether it has got past its constructor.
    bool stays()
    {
        return QTest::qWaitFor([this] { return says("runs"); }, 10'000);
    }
    /// Whether it has ended inside its constructor, with exit code 0.
    bool leaves()
    {
        return QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, 10'000)
               && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
               && !says("runs");
    }
    /// Whether it has said that.
    bool says(const QByteArray &word)
    {
        output += process.readAllStandardOutput();
        return output.contains(word);
    }
    /// Lets it end its event loop.
    bool end()
    {
        process.write("end\n");
        return process.waitForFinished();
    }

    QProcess process;
    QByteArray output;
};

inline void say(const std::string &word)
{
    std::puts(word.c_str());
    std::fflush(stdout);
}

/// The other copy, when the arguments ask for one: its exit code.
inline std::optional<int> runCopy(int argc, char **argv)
{
    if (argc != 5) {
        return std::nullopt;
    }
    const QString user = QString::fromLocal8Bit(argv[2]);
    const bool allowSecondary = argv[3] == std::string("1");
    const int options = std::stoi(argv[4]);
    FakePlatform platform;
    platform.user = user;
    if (argv[1] == std::string("--hold")) {
        const QApplication application(argc, argv);
        QSharedMemory memory(ownName(user, options));
        if (memory.attach() && memory.lock()) {
            say("holds");
            QApplication::exec();
        }
        return 1;
    }
    SingleApplication application(argc, argv, allowSecondary, options, timeoutMs, platform);
    for (const qint64 processId : qAsConst(platform.letToFront)) {
        say("front " + std::to_string(processId));
    }
    if (platform.ended) {
        say("queued " + std::to_string(platform.locks));
        return platform.ended;
    }
    QObject::connect(&application, &SingleApplication::instanceStarted, [] { say("started"); });
    say("runs");
    std::thread([] {
        for (std::string line; std::getline(std::cin, line);) {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
    }).detach();
    return QApplication::exec();
}

/// Runs a test whose application object is the primary copy of the user "guarded".
template<class Test> int runGuarded(int argc, char **argv)
{
    if (const auto exitCode = runCopy(argc, argv)) {
        return *exitCode;
    }
    FakePlatform platform;
    platform.user = QStringLiteral("guarded");
    SingleApplication application(argc, argv, false, SingleApplication::PerUser, timeoutMs,
                                  platform);
    Test test(application);
    return QTest::qExec(&test, argc, argv);
}

} // namespace GuardTest
