#pragma once

#include "app/connectionmessage.h"
#include "app/instanceblock.h"
#include "app/instancename.h"
#include "app/singleapplication.h"
#include "tests/support/fakeplatform.h"

#include <QLocalSocket>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSharedMemory>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <thread>

/// Test programs whose application object is the guard itself, and copies of them.
namespace GuardTest {

constexpr int timeoutMs = 100;

/// The name that copies of this test program meet under.
inline QString ownName(const std::optional<QString> &user, int options)
{
    return instanceName({QCoreApplication::applicationName(), QCoreApplication::organizationName(),
                         QCoreApplication::organizationDomain(),
                         QCoreApplication::applicationVersion(),
                         QCoreApplication::applicationFilePath(), user,
                         QStandardPaths::standardLocations(QStandardPaths::HomeLocation)},
                        options);
}

/// Each part of the identity says something else.
inline void identify()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Organisation"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("domain.example"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2 Beta"));
}

/// A connection to the primary copy of a name.
inline std::unique_ptr<QLocalSocket> connectTo(const QString &name)
{
    auto client = std::make_unique<QLocalSocket>();
    client->connectToServer(name);
    if (!client->waitForConnected(5000)) {
        qFatal("cannot connect: %s", qPrintable(client->errorString()));
    }
    return client;
}

/// One that has said who it is.
inline std::unique_ptr<QLocalSocket> announce(const QString &name, quint8 type, quint32 number = 0)
{
    auto client = connectTo(name);
    client->write(encodeConnectionMessage(name, {type, number}));
    client->flush();
    return client;
}

/// Names another folder for temporary files, to those who are started meanwhile as well.
class OtherTemporaryFolder
{
public:
    explicit OtherTemporaryFolder(const QString &path) { qputenv("TMPDIR", path.toLocal8Bit()); }
    ~OtherTemporaryFolder()
    {
        if (before.isNull()) {
            qunsetenv("TMPDIR");
        } else {
            qputenv("TMPDIR", before);
        }
    }
    Q_DISABLE_COPY(OtherTemporaryFolder)

private:
    QByteArray before = qgetenv("TMPDIR");
};

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
    /// @param user empty where none can be told
    /// @param task what it does: "--copy" is guarded, "--hold" takes the lock of the block and
    /// keeps it
    OtherCopy(const QString &user, bool allowSecondary, int options,
              const QString &task = QStringLiteral("--copy"))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // On Windows warnings go to a debugger else.
        environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
        process.setProcessEnvironment(environment);
        process.start(
            QCoreApplication::applicationFilePath(),
            {task, user, QString::number(allowSecondary ? 1 : 0), QString::number(options)});
    }
    ~OtherCopy()
    {
        process.kill();
        process.waitForFinished();
        warns("");
        std::fputs(errors.constData(), stderr);
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
    /// Whether it has warned of that.
    bool warns(const QByteArray &word)
    {
        errors += process.readAllStandardError();
        return errors.contains(word);
    }
    /// Whether it has done what it was told: "hand over", "take back".
    bool does(const QByteArray &task)
    {
        process.write(task + '\n');
        return QTest::qWaitFor([&] { return says("done: " + task); }, 10'000);
    }
    /// Lets it end its event loop.
    bool end()
    {
        process.write("end\n");
        return process.waitForFinished();
    }

    QProcess process;
    QByteArray output;
    QByteArray errors;
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
    identify();
    FakePlatform platform;
    if (user.isEmpty()) {
        platform.user.reset();
    } else {
        platform.user = user;
    }
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
        say("queued " + std::to_string(platform.locks) + " for "
            + std::to_string(platform.lockTimeout) + " ms");
        return platform.ended;
    }
    QObject::connect(&application, &SingleApplication::instanceStarted, [] { say("started"); });
    say("runs");
    const auto carryOut = [&application](const std::string &task) {
        if (task == "hand over") {
            application.handOver();
        } else if (task == "take back") {
            application.takeBack();
        } else {
            QCoreApplication::quit();
        }
        say("done: " + task);
    };
    std::thread([carryOut] {
        for (std::string line; std::getline(std::cin, line);) {
            QMetaObject::invokeMethod(
                qApp, [carryOut, line] { carryOut(line); }, Qt::QueuedConnection);
        }
    }).detach();
    return QApplication::exec();
}

/// What a test has whose application object is the primary copy of the user "guarded".
class InsidePrimary : public QObject
{
protected:
    explicit InsidePrimary(SingleApplication &guard)
        : application(guard)
    {}

    SingleApplication &application;
    const QString name = ownName(QStringLiteral("guarded"), SingleApplication::PerUser);
    QSignalSpy started{&application, &SingleApplication::instanceStarted};
};

/// Runs such a test.
template<class Test> int runGuarded(int argc, char **argv)
{
    if (const auto exitCode = runCopy(argc, argv)) {
        return *exitCode;
    }
    identify();
    FakePlatform platform;
    platform.user = QStringLiteral("guarded");
    SingleApplication application(argc, argv, false, SingleApplication::PerUser, timeoutMs,
                                  platform);
    Test test(application);
    return QTest::qExec(&test, argc, argv);
}

} // namespace GuardTest
