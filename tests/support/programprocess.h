#pragma once

#include "tests/support/patience.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The real program as a process of its own, run by a throw-away user. The Windows program runs
/// from the folder that is shipped.
class ProgramProcess
{
public:
    ProgramProcess();
    /// Kills what still runs.
    ~ProgramProcess();
    Q_DISABLE_COPY(ProgramProcess)

    static QString documents();
    static QString settingsFile();
    static QString executable();
    /// Folder of the executable, where its branding is.
    static QString programFolder();

    /// The settings file as an earlier run left it.
    static void writeSettings(const QByteArray &lines);
    /// The stored text of a key without its group; "(none)" when it is missing.
    static QString stored(const char *key);

    /// Starts the program in @p directory; true when the process runs.
    bool start(const QString &directory = programFolder(), const QStringList &arguments = {});
    /// Waits until the log holds @p text.
    bool waitForLog(const QByteArray &text, int timeoutMs = patienceMs) const;
    /// Starts, and waits until the Service Server listens.
    bool startAndServe(const QString &directory = programFolder(),
                       const QStringList &arguments = {});

    /// Ends the program without asking it; returns when neither it nor its window, where it is the
    /// only one, is there any more. A window that stays is warned of.
    void kill();

    /// What the program has logged since it started.
    QByteArray log() const;

    QTemporaryDir home;
    QProcess process;
    QStringList launcher; ///< a command that becomes the program named behind it; may be empty

private:
    QString logFile() const { return home.filePath(QStringLiteral("log")); }
};
