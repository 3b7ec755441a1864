#pragma once

#include <QString>

#include <memory>

/// A disk of a few hundred kilobytes that holds the user's documents, and so the settings.
class SmallDisk
{
public:
    /// Puts the documents onto the disk; null where nobody has made one: LUMIKEY_SMALL_DISK names
    /// where it is mounted.
    static std::unique_ptr<SmallDisk> underTheSettings();
    /// Empties the disk and takes it away from under the documents.
    ~SmallDisk();
    Q_DISABLE_COPY(SmallDisk)

    /// Leaves no room for another byte.
    void fill() const;
    void makeRoom() const;
    /// False where tests cannot do it.
    bool setWritable(bool writable) const;

private:
    explicit SmallDisk(const QString &mountPoint);
    void clear() const;
    QString filler() const { return disk + QStringLiteral("/filler"); }

    QString disk;
    std::shared_ptr<void> documents; ///< are there for as long as this is held
};
