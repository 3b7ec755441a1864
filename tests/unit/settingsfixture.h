#pragma once

#include "app/appsettings.h"
#include "tests/support/guitest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A folder of its own for each test of the settings files: the test runs in it, as the branding
/// and the work queue are named from there, and the documents are below it.
class SettingsFixture
{
protected:
    void enter()
    {
        folder = std::make_unique<QTemporaryDir>();
        QVERIFY(folder->isValid());
        startDirectory = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder->path()));
        settings = std::make_unique<AppSettings>(folder->filePath(QStringLiteral("Documents")));
    }

    void leave()
    {
        QVERIFY(QDir::setCurrent(startDirectory));
        settings.reset();
        folder.reset();
    }

    QByteArray settingsText() const { return readFile(settings->settingsIni()); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<AppSettings> settings;

private:
    QString startDirectory;
};
