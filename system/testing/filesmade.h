#pragma once

#include <QString>
#include <QStringList>

/// The files that are made in a folder, by whom ever and for however short.
class FilesMade
{
public:
    /// Watches from now on; the folder must be there.
    explicit FilesMade(const QString &folder);
    ~FilesMade();
    Q_DISABLE_COPY(FilesMade)

    /// Whether this system tells; where it does not, no file is ever named.
    bool areTold() const { return watch >= 0; }

    /// The names of those made since the last call, in their order.
    QStringList taken() const;

private:
    int watch = -1;
};
