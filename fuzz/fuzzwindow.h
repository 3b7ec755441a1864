#pragma once

#include "app/appsettings.h"
#include "tests/support/fakeplatform.h"
#include "tests/support/fakeprimaryrole.h"
#include "ui/mainwindow.h"

#include <QByteArray>
#include <QMap>
#include <QTemporaryDir>

/// What stands in an INI file, and whether it parses.
struct IniContents
{
    QMap<QString, QVariant> values;
    bool parses = false;
};

/// Two folders for the window, which every input finds empty but for its own files.
class FuzzWorld
{
public:
    FuzzWorld();

    /// Puts both files where the window looks for them.
    void write(const QByteArray &settingsFile, const QByteArray &brandingFile) const;
    /// Takes away whatever the window has left.
    void clean() const;

    /// Reads such a file from beside: Qt keeps what it has once read from a path, and its damage is
    /// told to the first reader alone.
    IniContents contentsOf(const QByteArray &file) const;

    const AppSettings &paths() const { return settings; }
    /// Where the settings file is put aside when it does not parse.
    QString damagedCopy() const { return settings.settingsIni() + QStringLiteral(".damaged"); }

private:
    QTemporaryDir folder;
    AppSettings settings;
};
