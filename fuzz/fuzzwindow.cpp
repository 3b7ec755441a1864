#include "fuzz/fuzzwindow.h"

#include "tests/support/guitest.h"

#include <QApplication>
#include <QNetworkProxy>

namespace {

void beSilent(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        std::abort();
    }
}

} // namespace

FuzzWorld::FuzzWorld()
    : settings(folder.filePath(QStringLiteral("Documents")))
{
    qInstallMessageHandler(beSilent);
    // The branding file names a server, and nothing real is to be asked: nobody is at this proxy.
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), 1));
    QDir(folder.path()).mkpath(QStringLiteral("program"));
    QDir::setCurrent(folder.filePath(QStringLiteral("program")));
}

void FuzzWorld::write(const QByteArray &settingsFile, const QByteArray &brandingFile) const
{
    writeFile(settings.settingsIni(), settingsFile);
    writeFile(settings.brandingIni(), brandingFile);
}

void FuzzWorld::clean() const
{
    QFile::remove(settings.settingsIni());
    QFile::remove(damagedCopy());
    QFile::remove(settings.brandingIni());
    QFile::remove(settings.workIni());
}

IniContents FuzzWorld::contentsOf(const QByteArray &file) const
{
    const QString path = folder.filePath(QStringLiteral("beside.ini"));
    writeFile(path, file);
    const QSettings read(path, QSettings::IniFormat);
    IniContents contents;
    const QStringList keys = read.allKeys();
    for (const QString &key : keys) {
        contents.values.insert(key, read.value(key));
    }
    contents.parses = read.status() == QSettings::NoError;
    return contents;
}
