#include "app/appsettings.h"
#include "app/singleapplication.h"
#include "app/startup.h"
#include "app/toolkit.h"
#include "app/translation.h"
#include "system/platform.h"
#include "ui/darkstyle.h"
#include "ui/mainwindow.h"
#include "ui/windowshowing.h"

#include <QDateTime>
#include <QDebug>
#include <QDesktopWidget>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QLocale>

namespace {

constexpr int instanceTimeoutMs = 100;

/// Moves to the program's folder after an autostart launch and mends the autostart entry. The
/// relative paths of branding and updates rest on this.
void repairWorkingDirectoryAndAutostart(Platform &platform)
{
    const StartUpPlan plan = planStartUp(platform.autostartValue(QString()), QDir::currentPath(),
                                         platform.executableForm());
    if (plan.workingDirectory) {
        QDir::setCurrent(*plan.workingDirectory);
    }
    if (plan.autostartValue) {
        platform.setAutostartValue(*plan.autostartValue);
    }
}

/// Moves to the program's folder after a start from a folder that has nothing of the program's: a
/// terminal's, or the system's own, where an elevated start begins.
void findBranding(const Platform &platform)
{
    const QString branding = QStringLiteral("branding");
    const QDir programFolder(platform.programFolder());
    if (!QFileInfo::exists(branding) && programFolder.exists(branding)) {
        QDir::setCurrent(programFolder.path());
    }
}

void setFontForDpi(const Platform &platform)
{
    QFont font = QApplication::font();
    const int dpi = QApplication::desktop()->logicalDpiX();
    qDebug() << "Logical DPI:" << dpi;
    if (const auto pixelSize = fontPixelSize(dpi)) {
        // Qt's own choice on Windows is a font of older days.
        if (const auto family = platform.messageFontFamily()) {
            font.setFamily(*family);
        }
        font.setPixelSize(*pixelSize);
        QApplication::setFont(font);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const std::unique_ptr<Platform> platform = createPlatform();
    repairWorkingDirectoryAndAutostart(*platform);

    Toolkit::prepare();
    SingleApplication application(argc, argv, false, SingleApplication::PerUser, instanceTimeoutMs,
                                  *platform);
    findBranding(*platform);
    Toolkit::adapt();
    setFontForDpi(*platform);
    Toolkit::identify(QStringLiteral(LUMIKEY_VERSION));
    QApplication::setStyle(new DarkStyle); // the application takes ownership
    const AppSettings settings;
    speakChosenLanguage(settings, QLocale::system().uiLanguages());

    // Building the window lets events in, so a later start may come before there is a window.
    bool startedAgain = false;
    QObject::connect(&application, &SingleApplication::instanceStarted,
                     [&startedAgain] { startedAgain = true; });

    MainWindow window(settings, *platform, application, QDateTime::currentMSecsSinceEpoch,
                      ServiceEndpoint());
    QObject::connect(&application, SIGNAL(aboutToQuit()), &window, SLOT(ShutdownQuit()));
    QObject::connect(&application, &SingleApplication::instanceStarted, &window,
                     [&window] { WindowShowing::again(window); });

    // On purpose the one settings object that lives until the event loop has ended; every other
    // access makes one for the call.
    const auto openSettings = settings.openSettings();
    settings.write(SettingKeys::appUrl,
                   QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    const bool startHidden =
        SettingKeys::startHidden.from(openSettings->value(settingsPath(SettingKeys::startHidden)));

    WindowShowing::first(window, startHidden && !startedAgain && !window.wasAskedFor());
    return QApplication::exec();
}
