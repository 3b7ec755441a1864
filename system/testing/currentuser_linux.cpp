#include "system/testing/currentuser.h"

#include <QProcess>

namespace {

QString id(const char *option)
{
    QProcess process;
    process.start(QStringLiteral("id"), {QString::fromLatin1(option)});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

} // namespace

QString CurrentUser::name()
{
    return id("-un");
}

bool CurrentUser::isElevated()
{
    return id("-u") == QLatin1String("0");
}
