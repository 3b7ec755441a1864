#include "app/toolkit.h"

#include <QCoreApplication>
#include <QGuiApplication>

void Toolkit::prepare()
{
    // At each change of the display's scale Qt asks anew whether to scale, by the attribute that
    // adapt() sets, too. The window adapts itself, once, so the answer stays no.
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    // Nothing here is drawn by OpenGL; left to itself, Qt's first window on Linux loads its driver.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
}

void Toolkit::adapt()
{
    // Qt would close the window when the system asks whether the session may end, and with it the
    // program, also where the user then stays.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    // Set after the application exists, so Qt leaves scaling alone: the window adapts itself.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

void Toolkit::identify(const QString &version)
{
    QCoreApplication::setOrganizationDomain(QStringLiteral("TARVENWORKS"));
    QCoreApplication::setOrganizationName(QStringLiteral("TARVENWORKS"));
    QCoreApplication::setApplicationName(QStringLiteral("Lumikey"));
    QCoreApplication::setApplicationVersion(version);
}
