#include "system/polkit.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What pkexec ends with when the user closed the question.
constexpr int dismissed = 126;

/// Without these a program started as root finds no display.
QStringList displayVariables()
{
    QStringList assignments;
    for (const char *const name : {"DISPLAY", "XAUTHORITY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"}) {
        if (qEnvironmentVariableIsSet(name)) {
            assignments.append(QLatin1String(name) + QLatin1Char('=') + qEnvironmentVariable(name));
        }
    }
    return assignments;
}

/// Waits until nobody holds the other end of @p pipe.
void waitForEnd(int pipe)
{
    char byte = 0;
    while (::read(pipe, &byte, 1) > 0 || errno == EINTR) {
        errno = 0;
    }
}

} // namespace

Platform::Relaunch Polkit::relaunch(const QString &path)
{
    // Where there is none this is empty, and names nothing that could be started.
    const QString pkexec = QStandardPaths::findExecutable(QStringLiteral("pkexec"));
    std::vector<QByteArray> words;
    // pkexec would leave the program in root's home, where nothing of its own is found.
    const QStringList environment{QStringLiteral("env"), QStringLiteral("-C"), QDir::currentPath()};
    for (const QString &word :
         QStringList{pkexec} + environment + displayVariables() + QStringList{path}) {
        words.push_back(QFile::encodeName(word));
    }
    std::vector<char *> arguments(words.size() + 1); // the last one stays null
    std::transform(words.begin(), words.end(), arguments.begin(),
                   [](QByteArray &word) { return word.data(); });

    // pkexec closes what it inherited when, and only when, it becomes the program; so the end of
    // this pipe tells that the user has answered.
    std::array<int, 2> pipe = {};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) {
        return Platform::Relaunch::Failed;
    }
    const auto [readEnd, writeEnd] = pipe;
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    // To itself, which takes the close-on-exec flag off in the child.
    ::posix_spawn_file_actions_adddup2(&actions, writeEnd, writeEnd);
    pid_t child = 0;
    const int error = ::posix_spawn(&child, words.front().constData(), &actions, nullptr,
                                    arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(writeEnd);
    waitForEnd(readEnd); // at once where nothing was started
    ::close(readEnd);
    if (error != 0) {
        return Platform::Relaunch::Failed;
    }

    // An end by exit() closes the pipe a moment before the process can be waited for.
    constexpr int patienceMs = 200;
    constexpr unsigned long pauseMs = 10;
    int status = 0;
    bool ended = false;
    for (const QDeadlineTimer patience(patienceMs); !ended && !patience.hasExpired();) {
        ended = ::waitpid(child, &status, WNOHANG) == child;
        if (!ended) {
            QThread::msleep(pauseMs);
        }
    }
    const bool declined = WIFEXITED(status) && WEXITSTATUS(status) == dismissed;
    return !ended     ? Platform::Relaunch::Launched
           : declined ? Platform::Relaunch::Declined
                      : Platform::Relaunch::Failed;
}
