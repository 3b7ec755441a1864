#pragma once

#include "app/appsettings.h"
#include "tests/support/fakeplatform.h"
#include "tests/support/fakeprimaryrole.h"
#include "tests/support/guitest.h"
#include "tests/support/serviceclient.h"
#include "ui/mainwindow.h"

#include <QDir>
#include <QImage>
#include <QTcpServer>
#include <QTemporaryDir>

#include <memory>

/// A main window in a world of its own: a throw-away documents folder, a throw-away program folder
/// as the current directory, a platform that is not the system, and a clock that the test moves.
class TestWindow
{
public:
    TestWindow()
        : startDirectory(QDir::currentPath())
        , settings(folder.filePath(QStringLiteral("Documents")))
    {
        QDir(folder.path()).mkpath(QStringLiteral("program/branding"));
        QDir::setCurrent(folder.filePath(QStringLiteral("program")));
        writeBranding({});
    }
    ~TestWindow()
    {
        window.reset();
        QDir::setCurrent(startDirectory);
    }
    Q_DISABLE_COPY(TestWindow)

    /// The settings file as an earlier run left it.
    void writeSettings(const QByteArray &lines) const
    {
        writeFile(settings.settingsIni(), "[settings]\n" + lines);
    }

    /// The branding file; an update server that is not there answers at once.
    void writeBranding(const QByteArray &lines,
                       const QString &updateServer = QStringLiteral("http://127.0.0.1:1"))
    {
        writeFile(QStringLiteral("branding/lumikey_branding.ini"),
                  "[settings]\nupdateserver=" + updateServer.toUtf8() + '\n' + lines);
    }

    /// What a stored key holds now; "(none)" when it is missing.
    QString stored(const SettingKey &key) const
    {
        return QSettings(settings.settingsIni(), QSettings::IniFormat)
            .value(settingsPath(key), QStringLiteral("(none)"))
            .toString();
    }

    /// Constructs the window; the settings are read but not yet applied.
    MainWindow &construct()
    {
        window = std::make_unique<MainWindow>(
            settings, platform, primaryRole, [this] { return clock; }, endpoint);
        return *window;
    }

    /// Constructs the window and applies the settings at once instead of a second later.
    MainWindow &start()
    {
        construct();
        window->delayedApply();
        return *window;
    }

    /// Where agents find this window.
    quint16 servicePort() const { return window->findChild<QTcpServer *>()->serverPort(); }
    /// What the next agent receives.
    QString readLine() const { return ServiceClient::readLine(servicePort()); }

    template<class Widget> Widget *get(const char *name) const
    {
        return widget<Widget>(*window, name);
    }

    QTemporaryDir folder;
    QString startDirectory;
    AppSettings settings;
    FakePlatform platform;
    FakePrimaryRole primaryRole;
    /// A port that the system chooses, so that windows of other processes are not in the way.
    ServiceEndpoint endpoint{ServiceEndpoint().address, 0};
    qint64 clock = 1'000'000'000'000;
    std::unique_ptr<MainWindow> window;
};
