#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <variant>

namespace companion {

/// The program's exit codes; each fault has its own, so that a script can tell them apart.
enum ExitCode {
    Done = 0,
    NoLumikey = 1,
    NoNumber = 2,
    NotANumber = 3,
    TooSmall = 4,
    TooLarge = 5,
    SeveralNumbers = 6,
    WrongOption = 7,
    NotPublished = 8,
};

struct Meaning
{
    ExitCode code;
    const char *text;
};

/// What the help and the documents say of each.
constexpr std::array<Meaning, 9> meanings{{
    {Done, "published for as long as a running Lumikey needs to take it over"},
    {NoLumikey, "no Lumikey runs beside this program for this user"},
    {NoNumber, "no number was given"},
    {NotANumber, "what was given is no whole number"},
    {TooSmall, "the number is below 0"},
    {TooLarge, "the number is above 100"},
    {SeveralNumbers, "more than one number was given"},
    {WrongOption, "an option that does not exist"},
    {NotPublished, "the segment is locked, too small for the text, or another user's"},
}};

/// What to do instead of publishing: print `text` and end with `exitCode`. On standard output when
/// that is `Done` (help and version), otherwise on standard error.
struct Notice
{
    QString text;
    ExitCode exitCode;
};

/// A complaint as it is printed: a line, behind the program's name.
QString complaint(const QString &what);

/// The brightness to publish, 0..100, or what to say instead. Needs an application object, whose
/// name for the program stands in the help.
/// @param arguments begin with the program's name
std::variant<int, Notice> decide(const QStringList &arguments, const QString &version);

} // namespace companion
