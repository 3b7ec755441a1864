#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

/// The icon in the notification area and its menu.
class TrayIcon : public QSystemTrayIcon
{
public:
    /// Shows it. @param window its owner; what the menu offers are its slots
    explicit TrayIcon(QWidget *window);
    ~TrayIcon() override;
    Q_DISABLE_COPY(TrayIcon)

private:
    QMenu menu;
};
