#include "system/testing/loadedlibraries.h"

#include <QFile>

QStringList loadedLibraries(qint64 processId)
{
    QFile map(QStringLiteral("/proc/%1/maps").arg(processId));
    QStringList files;
    if (map.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = map.readAll().split('\n');
        for (const QByteArray &line : lines) {
            const int path = line.indexOf('/');
            if (path >= 0) {
                files += QString::fromLocal8Bit(line.mid(path));
            }
        }
    }
    files.removeDuplicates();
    return files;
}
