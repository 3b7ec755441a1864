// What the report of a trial begins with: trial-machine FILE writes what machine this is.

#include "system/testing/currentuser.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QTextStream>

#include <cstdlib>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(1));
    if (arguments.size() != 2 || !file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return EXIT_FAILURE;
    }
    QTextStream out(&file);
    out << "System:  " << QSysInfo::prettyProductName() << ", kernel " << QSysInfo::kernelVersion()
        << ", " << QSysInfo::currentCpuArchitecture() << '\n'
        << "Toolkit: Qt " << qVersion() << '\n'
        << "Rights:  " << (CurrentUser::isElevated() ? "administrator" : "user") << '\n';
    const auto screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        const QRect place = screen->geometry();
        out << "Screen:  " << place.width() << " x " << place.height() << " at " << place.x()
            << ", " << place.y() << ", " << screen->logicalDotsPerInch() << " DPI, "
            << screen->refreshRate() << " Hz\n";
    }
    return EXIT_SUCCESS;
}
