#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Programs that stand in for the system's and the installation's own. They note the folder they
/// run in and their arguments, and end with 0.
///
/// A bare name is found here: on the PATH, and, where the system looks there first, in the current
/// directory, so that has to be the same folder.
class StandIns
{
public:
    /// @param folder on top of the PATH for as long as this lives
    explicit StandIns(const QString &folder);
    ~StandIns();
    Q_DISABLE_COPY(StandIns)

    /// Makes a program of this name; ".exe" is added where the system asks for it.
    /// @param path relative to the folder
    /// @param waitMs how long it runs
    void add(const QString &path, int waitMs = 0) const;
    /// Later runs of a program do not wait.
    /// @param name without ".exe"
    void hurry(const QString &name) const;
    /// Makes a batch file, or what stands for one, that does the same.
    void addBatch(const QString &path, int waitMs = 0) const;

    /// One line for each run, in the order of their starts: the program's name without ".exe" and
    /// its arguments, with blanks between.
    QStringList runs() const;
    /// The folder that the program of that line ran in.
    QString folderOfRun(int index) const;

private:
    QString recordFile() const;
    QString waitFile(const QString &name) const;
    void makeWait(const QString &name, int waitMs) const;
    QStringList lines() const;

    QString folder;
    QTemporaryDir records;
    QByteArray oldPath;
};
