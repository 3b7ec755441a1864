#include "app/appsettings.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QStorageInfo>

#include <utility>

namespace {

QString workPath(const SettingKey &key)
{
    return QStringLiteral("workqueue/") + QLatin1String(key.name);
}

/// How long a write waits for another process that is writing the same file; that takes
/// milliseconds.
constexpr int longestWaitMs = 300;
/// After so long a lock may be one that a killed process has left. The system knows better: it
/// does not let anybody remove the lock of a process that lives.
constexpr int abandonedAfterMs = 200;

/// Whether another process has been writing the file for longer than this one is ready to wait.
/// QSettings itself would wait for half a minute, and the window with it.
bool isHeld(const QString &path, int patienceMs)
{
    const QString lockPath = path + QStringLiteral(".lock");
    if (!QFileInfo::exists(lockPath)) {
        return false; // as nearly always; to take the lock would double the time of a write
    }
    QLockFile lock(lockPath);
    lock.setStaleLockTime(abandonedAfterMs);
    return !lock.tryLock(patienceMs) && lock.error() == QLockFile::LockFailedError;
}

/// What a write needs beside the new file itself: QSettings makes a lock file too, and the disk
/// gives each file a whole number of its blocks.
constexpr qint64 roomBesideTheFile = qint64{16} * 1024;

/// Whether the disk can take the file a second time, which QSettings needs to replace it. It is not
/// tried without: on Windows a lock file that the disk has no room for stays behind with the
/// process that took it, and the next write would wait for it for ever.
bool hasRoom(const QString &path)
{
    const QFileInfo file(path);
    const QStorageInfo disk(file.absolutePath());
    // Of a folder that is not there, or a disk that does not tell its size, the write will tell.
    return disk.bytesTotal() <= 0 || disk.bytesAvailable() >= file.size() + roomBesideTheFile;
}

/// An existing file that cannot be opened: QSettings itself stays silent about it when reading.
bool isUnreadable(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && (!file.isFile() || !file.isReadable());
}

} // namespace

QString settingsPath(const SettingKey &key)
{
    return QStringLiteral("settings/") + QLatin1String(key.name);
}

QVariant inStoredForm(const SettingKey &key, const QVariant &value)
{
    switch (key.form) {
    case StoredForm::Boolean:
        return value.toBool();
    case StoredForm::OneOrZero:
        return value.toBool() ? 1 : 0;
    case StoredForm::Integer:
        return value.toInt();
    case StoredForm::Text:
        return value.toString();
    case StoredForm::Bytes:
        return value.toByteArray();
    }
    return value;
}

QString AppSettings::defaultDocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

AppSettings::AppSettings(const QString &documentsFolder)
    : documentsDirPath(QDir::toNativeSeparators(documentsFolder))
    , companyDirPath(documentsDirPath
                     + QDir::toNativeSeparators(QStringLiteral("/Corvane/Lumikey/")))
    // The doubled slashes of the two relative paths are part of the names other tools know.
    , brandingIniPath(QStringLiteral("branding//lumikey_branding.ini"))
    , settingsIniPath(companyDirPath + QStringLiteral("lumikey.ini"))
    , workIniPath(QStringLiteral("updates//work.ini"))
{}

QVariant AppSettings::readSetting(const SettingKey &key) const
{
    return readFrom(ReadSettings, settingsIniPath, key);
}

void AppSettings::writeSetting(const SettingKey &key, const QVariant &value) const
{
    SettingsTogether alone;
    alone.append(key, value);
    write(alone);
}

void AppSettings::write(const SettingsTogether &together) const
{
    if (!isReadyForWriting(WriteSettings, settingsIniPath)) {
        return;
    }
    const auto settings = openSettings();
    for (const auto &[path, value] : together.stored()) {
        settings->setValue(path, value);
    }
    settings->sync();
    report(WriteSettings, settingsIniPath, settings->status());
}

QVariant AppSettings::readBranding(const SettingKey &key) const
{
    return readFrom(ReadBranding, brandingIniPath, key);
}

void AppSettings::writeWorkQueue(const SettingKey &key, const QVariant &value) const
{
    if (!isReadyForWriting(WriteWork, workIniPath)) {
        return;
    }
    QSettings settings(workIniPath, QSettings::IniFormat);
    settings.setValue(workPath(key), inStoredForm(key, value));
    settings.sync();
    report(WriteWork, workIniPath, settings.status());
}

std::unique_ptr<QSettings> AppSettings::openSettings() const
{
    QDir().mkpath(companyDirPath);
    auto settings = std::make_unique<QSettings>(settingsIniPath, QSettings::IniFormat);
    report(ReadSettings, *settings);
    return settings;
}

QVariant AppSettings::readFrom(Access access, const QString &path, const SettingKey &key) const
{
    const QSettings settings(path, QSettings::IniFormat);
    report(access, settings);
    return settings.value(settingsPath(key), QVariant());
}

bool AppSettings::isReadyForWriting(Access access, const QString &path) const
{
    const bool wasInTrouble = reported->at(access) == QSettings::AccessError;
    // Room first: looking for it takes no lock.
    if (hasRoom(path) && !isHeld(path, wasInTrouble ? 0 : longestWaitMs)) {
        return true;
    }
    report(access, path, QSettings::AccessError);
    return false;
}

void AppSettings::report(Access access, const QSettings &settings) const
{
    settings.childKeys(); // parses every section: damage is found now, not after a write
    QSettings::Status status = settings.status();
    // QSettings tries a write that failed again with the next object of the same file. Where that
    // one only reads, its AccessError is of the write: reading works, and that is what is asked
    // here.
    if (isUnreadable(settings.fileName())) {
        status = QSettings::AccessError;
    } else if (status == QSettings::AccessError) {
        status = QSettings::NoError;
    }
    report(access, settings.fileName(), status);
}

void AppSettings::report(Access access, const QString &path, QSettings::Status status) const
{
    // Only readers tell of a damaged file. A write need not: it replaces the file by a sound one.
    const bool writes = access == WriteSettings || access == WriteWork;
    if (writes && status == QSettings::FormatError) {
        return;
    }
    if (std::exchange(reported->at(access), status) == status || status == QSettings::NoError) {
        return;
    }
    const bool malformed = status == QSettings::FormatError;
    const char *const trouble = malformed ? "Malformed file:"
                                : writes  ? "Cannot write file:"
                                          : "Cannot read file:";
    qDebug().noquote() << trouble << QDir::toNativeSeparators(path);
    if (access == ReadSettings && malformed) {
        keepDamagedSettings();
    }
}

void AppSettings::keepDamagedSettings() const
{
    // The next write keeps only what could be parsed, so the file as found is put aside first.
    const QString copy = settingsIniPath + QStringLiteral(".damaged");
    const QString fresh = copy + QStringLiteral(".new");
    QFile::remove(fresh);
    if (QFile::copy(settingsIniPath, fresh)) {
        QFile::remove(copy); // an older copy goes only when the new one is whole
        QFile::rename(fresh, copy);
    }
}
