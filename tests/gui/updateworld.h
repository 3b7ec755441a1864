#pragma once

#include "tests/support/boxwatcher.h"
#include "tests/support/testwindow.h"
#include "tests/support/versionserver.h"

#include <QLabel>
#include <QPushButton>

/// A window whose update server answers as told.
class UpdateWorld : public TestWindow
{
public:
    explicit UpdateWorld(const QByteArray &latest)
    {
        server.answerWith(latest);
        writeBranding({}, server.address());
    }

    QString label(const char *name) const { return get<QLabel>(name)->text(); }
    QPushButton *updateButton() const { return get<QPushButton>("Button_Update"); }
    void checkByHand() const { get<QPushButton>("Button_CheckforUpdate")->click(); }
    QString pending() const
    {
        return QSettings(settings.workIni(), QSettings::IniFormat)
            .value(QStringLiteral("workqueue/Lumikey"), QStringLiteral("(none)"))
            .toString();
    }

    VersionServer server;
};
