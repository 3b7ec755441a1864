#pragma once

#include <QString>

#include <memory>

/// A disk of a few hundred kilobytes that holds the user's settings folder.
class SmallDisk
{
public:
    /// Puts the settings folder, which must not exist yet, onto the disk; null where nobody has
    /// made one: LUMIKEY_SMALL_DISK names where it is mounted.
    static std::unique_ptr<SmallDisk> underTheSettings();
    /// Empties the disk and takes it away from under the settings.
    ~SmallDisk();
    Q_DISABLE_COPY(SmallDisk)

    /// Leaves no room for another byte.
    void fill() const;
    void makeRoom() const;
    void setWritable(bool writable) const;

private:
    SmallDisk(QString mountPoint, QString settingsFolder);
    void clear() const;
    QString filler() const { return folder + QStringLiteral("/filler"); }

    QString disk; ///< as the desktop's tools name it
    QString folder;
};
