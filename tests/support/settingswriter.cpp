// Writes settings as the program does, without end, to be killed in the middle:
//
//   settingswriter DOCUMENTS FIRST
//
// Stores FIRST, FIRST + 1 and so on under two keys at once, and says each number before it stores
// it.

#include "app/appsettings.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const AppSettings settings(arguments.value(1));
    for (int number = arguments.value(2).toInt();; ++number) {
        std::printf("%d\n", number);
        std::fflush(stdout);
        settings.write(SettingsTogether()
                           .with(SettingKeys::brightLevel, number)
                           .with(SettingKeys::dimTimer, number));
    }
}
