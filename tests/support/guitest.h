#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QWidget>

/// Finds a widget by its object name; a missing one ends the test program with that name.
template<class Widget> Widget *widget(const QObject &window, const char *name)
{
    auto *const found = window.findChild<Widget *>(QString::fromLatin1(name));
    if (found == nullptr) {
        qFatal("no widget named %s", name);
    }
    return found;
}

/// Writes a whole file, its folder first.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
