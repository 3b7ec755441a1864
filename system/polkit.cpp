#include "system/polkit.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>

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
    const QString pkexec = QStandardPaths::findExecutable(QStringLiteral("pkexec"));
    if (pkexec.isEmpty()) {
        return Platform::Relaunch::Failed;
    }
    std::vector<QByteArray> words;
    // pkexec would leave the program in root's home, where nothing of its own is found.
    const QStringList environment{QStringLiteral("env"), QStringLiteral("-C"), QDir::currentPath()};
    for (const QString &word :
         QStringList{pkexec} + environment + displayVariables() + QStringList{path}) {
        words.push_back(QFile::encodeName(word));
    }
    std::vector<char *> arguments;
    arguments.reserve(words.size() + 1);
    for (QByteArray &word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

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
    if (error == 0) {
        waitForEnd(readEnd);
    }
    ::close(readEnd);
    if (error != 0) {
        return Platform::Relaunch::Failed;
    }

    // An end by exit() closes the pipe a moment before the process can be waited for.
    constexpr int patience = 20;
    constexpr useconds_t pauseUs = 10'000;
    for (int i = 0; i < patience; ++i) {
        int status = 0;
        if (::waitpid(child, &status, WNOHANG) == child) {
            const bool declined = WIFEXITED(status) && WEXITSTATUS(status) == dismissed;
            return declined ? Platform::Relaunch::Declined : Platform::Relaunch::Failed;
        }
        ::usleep(pauseUs);
    }
    return Platform::Relaunch::Launched;
}
