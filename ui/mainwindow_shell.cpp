#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "system/platform.h"
#include "ui/trayicon.h"
#include "ui/windowplace.h"

#include <QApplication>
#include <QChildEvent>
#include <QCloseEvent>
#include <QFile>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QTextStream>

#include <cstdio>

void MainWindow::systemtraystart()
{
    shell.trayIcon = new TrayIcon(this);
}

void MainWindow::show_hide(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Unknown && reason != QSystemTrayIcon::DoubleClick) {
        return;
    }
    if (isVisible()) {
        shell.askedFor = false;
        hide();
    } else if (ui->UsePerKeyApp->isChecked()) {
        startPerKeyApplication();
    } else {
        ShowInterface();
    }
}

void MainWindow::ShowInterface()
{
    shell.askedFor = true;
    // Shown, then raised, then focused: the order in which the window comes out of the tray. A
    // later start and an update raise a window that may be shown already, in orders of their own.
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
    showNormal();
    activateWindow();
}

void MainWindow::on_closeButton_clicked()
{
    if (ui->Check_CloseHides->isChecked()) {
        hide();
    } else {
        close();
    }
}

void MainWindow::on_minimizeButton_clicked()
{
    showMinimized();
}

void MainWindow::SetStyle()
{
    QFile sheet(QStringLiteral(":/darkstyle/darkstyle.qss"));
    if (!sheet.exists()) {
        std::fputs("Unable to set stylesheet, file not found\n", stdout);
        return;
    }
    if (sheet.open(QIODevice::ReadOnly | QIODevice::Text)) {
        const QString text = QTextStream(&sheet).readAll();
        // Setting the same sheet once more would have Qt work through every widget of the form
        // again.
        if (qApp->styleSheet() != text) {
            qApp->setStyleSheet(text);
        }
    }
}

bool MainWindow::eventFilter(QObject * /*watched*/, QEvent * /*event*/)
{
    return false;
}

bool MainWindow::event(QEvent *event)
{
    // Qt makes the native window anew when its flags change, and the new one knows nothing of what
    // the old one was told; so each is told.
    if (event->type() == QEvent::WinIdChange && internalWinId() != 0) {
        platform.prepareWindow(internalWinId());
    }
    return QMainWindow::event(event);
}

void MainWindow::childEvent(QChildEvent *event)
{
    // Only widgets are polished; of a child that leaves, that part may be gone.
    if (event->polished()) {
        // Qt quits when the last visible window closes. While this one is in the tray, a message
        // box would be that last one.
        qobject_cast<QWidget *>(event->child())->setAttribute(Qt::WA_QuitOnClose, false);
    }
}

void MainWindow::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        if (!shell.sizesAdapted) {
            DPIfixes(); // somebody asks for the window, or it asks something, before it is finished
        }
        comeBackToAScreen();
    }
}

void MainWindow::comeBackToAScreen()
{
    QVector<QRect> available;
    const auto screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        available.append(screen->availableGeometry());
    }
    if (!WindowPlace::isOnAScreen(geometry(), available)) {
        setGeometry(WindowPlace::movedInto(geometry(), available.constFirst()));
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    // By the window manager: a key, or the task bar. "Exit" and the end of the session, which is
    // not to be held up, come otherwise.
    if (event->spontaneous() && ui->Check_CloseHides->isChecked() && !qApp->isSavingSession()) {
        event->ignore();
        shell.askedFor = false;
        hide();
        return;
    }
    shell.closed = true;
    emit closed();
    const auto boxes = findChildren<QMessageBox *>();
    for (QMessageBox *box : boxes) {
        box->reject(); // nobody is left to answer
    }
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        shell.dragGrip = event->pos();
    }
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton) && shell.dragGrip) {
        move(pos() + event->pos() - *shell.dragGrip);
    }
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        shell.dragGrip.reset();
    }
}
