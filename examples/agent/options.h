#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace agent {

/// The program's exit codes.
enum ExitCode {
    Done = 0,
    NoServer = 1,        ///< nothing listens, or no longer
    MalformedAnswer = 2, ///< a connection broke the wire format or the time limit
    WrongUse = 3,        ///< a wrong command line, or standard output cannot be written
};

/// Where the Service Server listens; fixed on both sides.
constexpr const char *serverAddress = "127.0.0.9";
constexpr quint16 serverPort = 52316;

struct Options
{
    int period = 100;   ///< milliseconds from one connection's start to the next, 1..3600000
    int timeout = 2000; ///< milliseconds one connection may take, 1..3600000
    bool once = false;  ///< end after the first answer
    bool json = false;  ///< JSON instead of text
    bool wait = false;  ///< keep trying while no server is there
};

/// What to do instead of running: print `text` and end with `exitCode`. On standard output when
/// that is `Done` (help and version), otherwise on standard error.
struct Notice
{
    QString text;
    int exitCode;
};

/// Reads the command line; `arguments` begin with the program's name. Needs the application
/// object's name and version for help and version.
std::variant<Options, Notice> parseOptions(const QStringList &arguments);

} // namespace agent
