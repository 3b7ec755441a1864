#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <optional>

/// What the end-to-end tests ask of the system itself, past the program's own door to it. One
/// implementation a system, chosen by the build.
namespace TestSystem {

/// Makes the settings and autostart entries of this process and of those it starts a throw-away
/// user's. Ends the test program where that is impossible and nobody has said that the user is one.
void throwAwayUser(const QTemporaryDir &home);

/// Puts the user's documents into another folder until what is returned goes.
std::shared_ptr<void> moveDocuments(const QString &folder);

/// What the program is started with: nothing but its own folder on the path, the log on its error
/// output.
QProcessEnvironment programEnvironment(const QString &programFolder);

/// The path in the autostart entry as the system keeps it; nothing when there is no entry.
std::optional<QString> autostartEntry();
void setAutostartEntry(const QString &path);

/// The command that starts @p program with, or without, administrator rights, whoever runs the
/// tests.
QStringList commandWithRights(bool elevated, const QString &program);

/// Whether a reader that is busy finds what a process wrote to it that has ended since. A named
/// pipe without a buffer, as the toolkit makes them, takes it along.
bool messagesOutliveTheirSender();

/// The users who may connect to a local server: the permissions of its file, read by its name.
/// Nothing where the system keeps no file for it.
std::optional<QFile::Permissions> localServerPermissions(const QString &name);

/// A command that becomes the program named behind it, in a network without the service's address;
/// empty where the system has none such.
QStringList commandWithoutNetwork();

/// The display's logical DPI as the desktop's own settings name it to the programs that start;
/// nothing where they do not.
std::optional<int> displayDpi();
/// Sets it, or takes it out, and leaves the desktop's other settings as they are.
void setDisplayDpi(std::optional<int> dpi);

/// Whether this machine is a person's own, which tests leave as it is, and not one that is made for
/// them.
bool isPersonsOwn();

/// What the user answers when the system asks whether a program may have administrator rights.
enum class Consent {
    Given,
    Declined,
    Impossible, ///< nobody can be asked
};

/// Whether anything asks; Wine does not.
bool asksForConsent();

/// Puts what asks, where it is a program, into @p folder, which is to be on the path.
void makeElevationHelper(const QString &folder, Consent consent);

/// A folder that autostart launches begin in; made below @p home where the system has none.
QString systemFolder(const QTemporaryDir &home);

/// The folder that the autostart entry's own launch at the next log-in begins in.
QString logInFolder(const QTemporaryDir &home);

} // namespace TestSystem
