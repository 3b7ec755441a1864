#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// The real program as a process of its own, in a throw-away home.
class ProgramProcess
{
public:
    ProgramProcess();
    /// Kills what still runs.
    ~ProgramProcess();
    Q_DISABLE_COPY(ProgramProcess)

    QString documents() const { return home.filePath(QStringLiteral("Documents")); }
    QString settingsFile() const;
    QString autostartFile() const;
    /// Folder of the executable, where its branding is.
    static QString programFolder();
    static QString executable();

    /// The settings file as an earlier run left it.
    void writeSettings(const QByteArray &lines) const;
    /// The stored text of a key without its group; "(none)" when it is missing.
    QString stored(const char *key) const;

    /// Starts the program in @p directory; true when the process runs.
    bool start(const QString &directory = programFolder());
    /// Waits until the log holds @p text.
    bool waitForLog(const QByteArray &text, int timeoutMs = 10000);
    /// Starts, and waits until the Service Server listens.
    bool startAndServe(const QString &directory = programFolder());

    QByteArray log() const { return output; }

    QTemporaryDir home;
    QProcess process;

private:
    QByteArray output;
};
