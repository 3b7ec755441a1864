#pragma once

#include "app/settingskeys.h"
#include "app/settingstogether.h"

#include <QSettings>
#include <QString>
#include <QVariant>

#include <array>
#include <memory>

/// The full name of a key of the settings or branding file ("settings/" + name).
QString settingsPath(const SettingKey &key);

/// @p value as it is to be stored under @p key: a number for "1"/"0", a bool for "true"/"false".
QVariant inStoredForm(const SettingKey &key, const QVariant &value);

/// The program's three INI files: the user's settings, the read-only branding file and the work
/// file for the updater. A small value class; whoever needs settings holds one.
///
/// Every access opens its file anew and closes it before returning, so each write is on the disk
/// when the call returns. Nothing is reported to the user: a missing or unreadable file reads as
/// defaults, a failed write is lost; either leaves one debug line when the file's state changes.
class AppSettings
{
public:
    /// @param documentsFolder the folder that holds "Corvane/Lumikey/lumikey.ini"; by default the
    ///        user's documents folder. It need not exist.
    explicit AppSettings(const QString &documentsFolder = defaultDocumentsFolder());

    /// Paths, with the system's own separators.
    const QString &documentsDir() const { return documentsDirPath; }
    const QString &companyDir() const { return companyDirPath; }
    const QString &settingsIni() const { return settingsIniPath; }
    /// Relative to the current directory, which start-up makes the program's folder.
    const QString &brandingIni() const { return brandingIniPath; }
    const QString &workIni() const { return workIniPath; }

    /// The stored value of a key, within its bounds; its default where none is stored.
    template<class Value> Value read(const Key<Value> &key) const
    {
        return key.from(readSetting(key));
    }
    template<class Value> Value read(const Key<Value, IniFile::Branding> &key) const
    {
        return key.from(readBranding(key));
    }

    /// Stores @p value, which is of the key's very type: no other compiles.
    template<class Value> void write(const Key<Value> &key, const Value &value) const
    {
        writeSetting(key, value);
    }
    template<class Value> void write(const Key<Value, IniFile::Work> &key, const Value &value) const
    {
        writeWorkQueue(key, value);
    }

    /// Stores all of them, in their order, or none.
    void write(const SettingsTogether &together) const;

    /// The same, without touching a file that holds the very value: for what is stored again and
    /// again, where each write waits for the disk.
    template<class Value> void writeIfChanged(const Key<Value> &key, const Value &value) const
    {
        const QVariant stored = readSetting(key);
        if (!stored.isValid() || stored.toString() != inStoredForm(key, value).toString()) {
            writeSetting(key, value);
        }
    }

    // The accessors under those three, one a file and direction. They look at no type: a missing
    // key is an invalid QVariant, and what is written takes the key's stored form.
    QVariant readSetting(const SettingKey &key) const;
    void writeSetting(const SettingKey &key, const QVariant &value) const;
    QVariant readBranding(const SettingKey &key) const;
    void writeWorkQueue(const SettingKey &key, const QVariant &value) const;

    /// The settings file for a caller that keeps it open; its folder is made first.
    std::unique_ptr<QSettings> openSettings() const;

    static QString defaultDocumentsFolder();

private:
    enum Access { ReadSettings, WriteSettings, ReadBranding, WriteWork };

    QVariant readFrom(Access access, const QString &path, const SettingKey &key) const;
    /// Whether a write through QSettings will come back soon: the disk has room and nobody else is
    /// writing. Reports it when not.
    bool isReadyForWriting(Access access, const QString &path) const;
    void report(Access access, const QSettings &settings) const;
    void report(Access access, const QString &path, QSettings::Status status) const;
    void keepDamagedSettings() const;

    QString documentsDirPath;
    QString companyDirPath;
    QString brandingIniPath;
    QString settingsIniPath;
    QString workIniPath;
    using Reported = std::array<QSettings::Status, 4>;
    /// What the log was last told of each access, by this object or a copy of it, so that a lasting
    /// trouble is one line.
    std::shared_ptr<Reported> reported = std::make_shared<Reported>();
};
