#include "ui/trayicon.h"

#include "ui/texts.h"

#include <QAction>
#include <QIcon>

TrayIcon::TrayIcon(QWidget *window)
    : QSystemTrayIcon(window)
{
    setIcon(QIcon(QStringLiteral("branding/lumikey_system_tray.png")));
    setVisible(true);
    connect(this, SIGNAL(activated(QSystemTrayIcon::ActivationReason)), window,
            SLOT(show_hide(QSystemTrayIcon::ActivationReason)));

    auto *const exitAction = new QAction(translated(QT_TRANSLATE_NOOP("MainWindow", "Exit")), this);
    connect(exitAction, SIGNAL(triggered()), window, SLOT(close()));
    auto *const showAction =
        new QAction(translated(QT_TRANSLATE_NOOP("MainWindow", "Show Interface")), this);
    connect(showAction, SIGNAL(triggered()), window, SLOT(ShowInterface()));
    menu.addAction(showAction);
    menu.addAction(exitAction);
    setContextMenu(&menu);
}

TrayIcon::~TrayIcon()
{
    // The desktop's side of a menu lets go of an item when that is taken out, but not of those that
    // a destroyed menu still had.
    menu.clear();
}
